#pragma once

#include <QByteArray>

#include "platform/office/word_document.h"

namespace office {

/// The document in Rich Text Format 1.9 (pictures inside, characters outside ASCII as \u escapes), which word
/// processors open under the ending .doc.
[[nodiscard]] QByteArray toRtf(const Document& document);

}  // namespace office
