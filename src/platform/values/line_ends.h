#pragma once

#include <QString>

namespace values {

/// The text with LF for each line end that it holds: CR LF, CR or LF.
[[nodiscard]] QString withPlainLineEnds(QString text);

}  // namespace values
