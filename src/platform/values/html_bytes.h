#pragma once

#include <QByteArray>
#include <QString>

// HTML as bytes. A character that the encoding lacks becomes a decimal numeric character reference, so that
// nothing is lost.
namespace values {

/// In ISO-8859-1, the encoding that the program's own HTML declares.
[[nodiscard]] QByteArray toHtmlLatin1(const QString& html);

/// In ASCII: right in every encoding that a document may declare.
[[nodiscard]] QByteArray toHtmlAscii(const QString& html);

}  // namespace values
