#pragma once

#include <QPagedPaintDevice>

#include "platform/office/word_document.h"

namespace office {

/// Paints a document on a printer or PDF writer, page by page, inside the document's own margins. A table row
/// never stands on two pages unless it is higher than a page. Whether painting could begin.
[[nodiscard]] bool paint(const Document& document, QPagedPaintDevice& device);

}  // namespace office
