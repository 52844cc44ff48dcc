#include "platform/mail/html_text.h"

#include <QHash>
#include <QRegularExpression>
#include <QStringList>
#include <QTextDocumentFragment>

using namespace Qt::StringLiterals;

namespace mail {

namespace {

/// What a tag leaves in the text. Others leave nothing.
QString markOf(const QString& tag) {
  static const QHash<QString, QString> marks = [] {
    QHash<QString, QString> all{
        {u"/td"_s, u"\t"_s}, {u"/th"_s, u"\t"_s}, {u"br"_s, u"\n"_s}, {u"hr"_s, u"\n"_s}};
    for (const QString& block : {u"p"_s, u"div"_s, u"table"_s, u"tr"_s, u"li"_s, u"ul"_s, u"ol"_s, u"h1"_s,
                                 u"h2"_s, u"h3"_s, u"h4"_s, u"center"_s}) {
      all.insert(block, u"\n"_s);
      all.insert(u'/' + block, u"\n"_s);
    }
    return all;
  }();
  return marks.value(tag);
}

/// Name of the tag that begins at a "<", in small letters, with the slash of a closing one.
QString tagAt(const QString& html, qsizetype at) {
  qsizetype end = at + 1;
  while (end < html.size() && (html.at(end).isLetterOrNumber() || (end == at + 1 && html.at(end) == u'/')))
    ++end;
  return html.sliced(at + 1, end - at - 1).toLower();
}

/// Where the text goes on after the tag that begins at a "<"; the end of the document if the tag has none.
qsizetype behindTag(const QString& html, qsizetype at, const QString& tag) {
  static const QStringList unseen{u"head"_s, u"style"_s, u"script"_s, u"title"_s};
  const auto after = [&html](QStringView end, qsizetype from) {
    const qsizetype found = html.indexOf(end, from, Qt::CaseInsensitive);
    return found < 0 ? html.size() : found + end.size();
  };
  if (QStringView(html).sliced(at).startsWith(u"<!--")) return after(u"-->", at);
  if (unseen.contains(tag)) at = after(u"</"_s + tag, at);
  return after(u">", at);
}

/// The text between the tags, with what the tags leave in it.
QString withoutTags(const QString& html) {
  QString text;
  for (qsizetype at = 0; at < html.size();) {
    const qsizetype open = html.indexOf(u'<', at);
    for (const QChar c : QStringView(html).sliced(at, (open < 0 ? html.size() : open) - at))
      text += c.isSpace() && c != QChar::Nbsp ? u' ' : c;
    if (open < 0) break;
    const QString tag = tagAt(html, open);
    text += markOf(tag);
    at = behindTag(html, open, tag);
  }
  return text;
}

}  // namespace

QString textOfHtml(const QString& html) {
  // Old pages leave out the semicolon, which the toolkit wants.
  static const QRegularExpression blank(u"&nbsp;?"_s);
  // What is left holds no tag; the toolkit reads its character references.
  const QString bare = withoutTags(html).replace(blank, u" "_s);
  const QString text = QTextDocumentFragment::fromHtml(u"<pre>"_s + bare + u"</pre>"_s).toPlainText();
  QString out;
  int empty = 0;  // lines since the last one with words: one stands between rows, more between tables
  for (const QString& line : text.split(u'\n')) {
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

}  // namespace mail
