#pragma once

#include <QString>

namespace values {

/// The text with LF for each line end that it holds: CR LF, CR or LF.
[[nodiscard]] QString withPlainLineEnds(QString text);

/// The same with CR LF, as files, mails and documents have them.
[[nodiscard]] QString withWindowsLineEnds(const QString& text);

}  // namespace values
