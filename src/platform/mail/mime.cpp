#include "platform/mail/mime.h"

#include <QMimeDatabase>
#include <QRegularExpression>
#include <QSet>

#include "platform/mail/headers.h"
#include "platform/markup/tree.h"
#include "platform/values/html_bytes.h"
#include "platform/values/line_ends.h"

using namespace Qt::StringLiterals;

namespace mail {

namespace {

constexpr char kAlternative[] = "multipart/alternative";

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

/// The text of a node: a line for each line's element, before and after it, and a tab after each cell.
QString textOf(const markup::Tree& tree, TidyNode node) {
  static const QSet<TidyTagId> kUnseen{TidyTag_HEAD, TidyTag_STYLE, TidyTag_SCRIPT, TidyTag_TITLE};
  static const QSet<TidyTagId> kLines{TidyTag_P,  TidyTag_DIV, TidyTag_TABLE, TidyTag_TR,
                                      TidyTag_LI, TidyTag_UL,  TidyTag_OL,    TidyTag_H1,
                                      TidyTag_H2, TidyTag_H3,  TidyTag_H4,    TidyTag_CENTER};
  const TidyTagId tag = tidyNodeGetId(node);
  if (tidyNodeIsText(node)) return tree.textOf(node);
  if (tag == TidyTag_BR || tag == TidyTag_HR) return u"\n"_s;
  if (kUnseen.contains(tag)) return {};
  const QString line = kLines.contains(tag) ? u"\n"_s : QString();
  QString text = line;
  for (const TidyNode child : markup::childrenOf(node)) text += textOf(tree, child);
  return text + (tag == TidyTag_TD || tag == TidyTag_TH ? u"\t"_s : line);
}

/// What an HTML document says, as lines of plain text: cells of a row beside each other, a line for each row
/// and paragraph. Takes any text, and loads nothing that it names.
QString textOfHtml(const QString& html) {
  const markup::Tree tree(html.toUtf8(), markup::Encoding::Utf8);
  QString out;
  int empty = 0;  // lines since the last one with words: one stands between rows, more between tables
  for (const QString& line : textOf(tree, tree.root()).split(u'\n')) {
    QStringList cells;
    for (const QString& cell : line.split(u'\t'))
      if (const QString words = cell.simplified(); !words.isEmpty()) cells << words;
    if (cells.isEmpty()) {
      ++empty;
      continue;
    }
    if (empty > 1 && !out.isEmpty()) out += u'\n';
    out += cells.join(u"  "_s) + u'\n';
    empty = 0;
  }
  return out;
}

/// A call fails where memory runs out, and nowhere else.
void check(CURLcode result) {
  if (result != CURLE_OK) throw std::bad_alloc();
}

/// In base64, whose length is known before it goes: a server can then refuse a message for its size at once.
curl_mimepart* addPart(const Mime& parts, const QByteArray& type, const QByteArray& content) {
  curl_mimepart* part = curl_mime_addpart(parts.get());
  check(curl_mime_data(part, content.constData(), static_cast<size_t>(content.size())));
  check(curl_mime_type(part, type.constData()));
  check(curl_mime_encoder(part, "base64"));
  return part;
}

/// In the character set that its head declares; what that can't hold becomes a numeric character reference.
/// UTF-8 without a declaration.
void addHtml(const Mime& parts, const QString& html) {
  using enum values::HtmlEncoding;
  const QString text = values::withWindowsLineEnds(html);
  const QByteArray charset = declaredCharset(html);
  if (charset.isEmpty() || charset == "utf-8" || charset == "utf8")
    addPart(parts, "text/html; charset=UTF-8", text.toUtf8());
  else
    addPart(parts, "text/html; charset=" + charset,
            values::toHtmlBytes(text, charset == "iso-8859-1" ? Latin1 : Ascii));
}

void addFile(const Mime& parts, const AttachmentList::File& file) {
  const QMimeType type = QMimeDatabase().mimeTypeForFile(file.name, QMimeDatabase::MatchExtension);
  curl_mimepart* part = addPart(parts, type.name().toLatin1(), file.content);
  // The client would write a name with accents as it stands.
  List headers = makeList({dispositionHeader(file.name)});
  check(curl_mime_headers(part, headers.get(), 1));
  static_cast<void>(headers.release());
}

}  // namespace

Parts makeParts(CURL* handle, const MailMessage& mail) {
  const QString plain = mail.MessageText.isEmpty() ? textOfHtml(mail.MessageHTML) : mail.MessageText;
  Mime forms(curl_mime_init(handle));
  addPart(forms, "text/plain; charset=UTF-8", values::withWindowsLineEnds(plain).toUtf8());
  if (!mail.MessageHTML.isEmpty()) addHtml(forms, mail.MessageHTML);
  if (mail.Attachments.files().empty())
    return {std::move(forms), "Content-Type: " + QByteArray(kAlternative)};

  Mime all(curl_mime_init(handle));
  curl_mimepart* first = curl_mime_addpart(all.get());
  check(curl_mime_subparts(first, forms.get()));
  static_cast<void>(forms.release());
  check(curl_mime_type(first, kAlternative));
  for (const AttachmentList::File& file : mail.Attachments.files()) addFile(all, file);
  return {std::move(all), "Content-Type: multipart/mixed"};
}

}  // namespace mail
