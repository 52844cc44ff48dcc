#include "platform/values/html_bytes.h"

#include <QList>

namespace values {

namespace {

/// Characters below `end` as they are, the others as references.
QByteArray withReferences(const QString& html, uint end) {
  QByteArray bytes;
  bytes.reserve(html.size());
  for (const uint code : html.toUcs4()) {
    if (code < end)
      bytes += static_cast<char>(code);
    else
      bytes += "&#" + QByteArray::number(code) + ';';
  }
  return bytes;
}

}  // namespace

QByteArray toHtmlLatin1(const QString& html) { return withReferences(html, 0x100); }

QByteArray toHtmlAscii(const QString& html) { return withReferences(html, 0x80); }

}  // namespace values
