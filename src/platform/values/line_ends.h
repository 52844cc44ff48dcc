#pragma once

#include <QString>

namespace values {

/// The text with LF for each line end that it holds: CR LF, CR or LF.
[[nodiscard]] inline QString withPlainLineEnds(QString text) {
  return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
}

/// The same with CR LF, as files, mails and documents have them.
[[nodiscard]] inline QString withWindowsLineEnds(const QString& text) {
  return withPlainLineEnds(text).replace(u'\n', QStringLiteral("\r\n"));
}

}  // namespace values
