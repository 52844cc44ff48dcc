#include "platform/mail/bodies.h"

#include <QRegularExpression>

#include "platform/values/html_bytes.h"
#include "platform/values/line_ends.h"

using namespace Qt::StringLiterals;

namespace mail {

namespace {

/// The character set of the first declaration in a document's head, in lower case.
QByteArray declaredCharset(const QString& html) {
  static const QRegularExpression declaration(
      u"<meta\\b[^>]*\\bcharset\\s*=\\s*[\"']?\\s*([A-Za-z0-9._:-]+)"_s,
      QRegularExpression::CaseInsensitiveOption);
  static const QRegularExpression headEnd(u"</head\\s*>|<body\\b"_s,
                                          QRegularExpression::CaseInsensitiveOption);
  const qsizetype end = html.indexOf(headEnd);
  const QRegularExpressionMatch match = declaration.match(end < 0 ? html : html.first(end));
  return match.captured(1).toLatin1().toLower();
}

}  // namespace

Body htmlBody(const QString& html) {
  const QString text = values::withWindowsLineEnds(html);
  const QByteArray charset = declaredCharset(html);
  if (charset.isEmpty() || charset == "utf-8" || charset == "utf8")
    return {"text/html; charset=UTF-8", text.toUtf8()};
  const QByteArray type = "text/html; charset=" + charset;
  return {type, charset == "iso-8859-1" ? values::toHtmlLatin1(text) : values::toHtmlAscii(text)};
}

Body plainBody(const QString& text) {
  return {"text/plain; charset=UTF-8", values::withWindowsLineEnds(text).toUtf8()};
}

}  // namespace mail
