#pragma once

#include <QByteArray>
#include <QString>

namespace values {

/// How many characters an encoding has: ISO-8859-1, which the program's own HTML declares, and ASCII, which
/// is right in every encoding that a document may declare.
enum class HtmlEncoding : uint { Ascii = 0x80, Latin1 = 0x100 };

/// HTML as bytes. A character that the encoding lacks becomes a decimal numeric character reference, so that
/// nothing is lost.
[[nodiscard]] inline QByteArray toHtmlBytes(const QString& html, HtmlEncoding encoding) {
  QByteArray bytes;
  for (const uint code : html.toUcs4()) {
    if (code < static_cast<uint>(encoding))
      bytes += static_cast<char>(code);
    else
      bytes += "&#" + QByteArray::number(code) + ';';
  }
  return bytes;
}

}  // namespace values
