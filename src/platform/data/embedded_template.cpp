#include "platform/data/embedded_template.h"

#include <algorithm>

#include "platform/data/sql_tokens.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

using Kind = SqlToken::Kind;

bool isComparison(const SqlToken& token) {
  return token.isSign(u'=') || token.isSign(u'<') || token.isSign(u'>');
}

/// Whether a quoted text after the token is a value.
bool isBeforeText(const SqlToken& token) {
  return isComparison(token) || token.isSign(u'(') || token.isSign(u',') || token.isWord(u"LIKE") ||
         token.isWord(u"AND");
}

/// Whether a number is a whole one that surely fits.
bool isWhole(QStringView number) {
  constexpr qsizetype kSafeDigits = 18;
  return number.size() <= kSafeDigits &&
         std::ranges::all_of(number, [](QChar c) { return c >= u'0' && c <= u'9'; });
}

QByteArray withoutQuotes(QStringView text) {
  const QStringView inner = text.sliced(1, text.size() - 2);
  return inner.contains(u'\'') ? inner.toString().replace("''"_L1, "'"_L1).toUtf8() : inner.toUtf8();
}

bool hasTemplate(const SqlToken& first) {
  return first.isWord(u"SELECT") || first.isWord(u"INSERT") || first.isWord(u"UPDATE") ||
         first.isWord(u"DELETE");
}

/// Whether a statement with this token has no template.
bool isForeign(const SqlToken& token) {
  return token.kind == Kind::Strange || token.kind == Kind::Unpaired || token.isSign(u';') ||
         (token.kind == Kind::Word && token.text.startsWith(u'@'));
}

}  // namespace

std::optional<Template> templateOf(const QString& sql) {
  const QStringView text = sql;
  SqlTokens tokens(text);
  SqlToken token = tokens.next();
  if (!hasTemplate(token)) return std::nullopt;
  Template form;
  form.text.reserve(text.size());
  qsizetype copied = 0;
  for (SqlToken before; token.kind != Kind::End; before = token, token = tokens.next()) {
    if (isForeign(token)) return std::nullopt;
    if (token.kind == Kind::Text && isBeforeText(before))
      form.values.emplace_back(withoutQuotes(token.text));
    else if (token.kind == Kind::Number && isComparison(before) && isWhole(token.text))
      form.values.emplace_back(token.text.toLongLong());
    else
      continue;
    const qsizetype start = token.text.data() - text.data();
    form.text += text.sliced(copied, start - copied);
    form.text += "? "_L1;
    copied = start + token.text.size();
  }
  form.text += text.sliced(copied);
  return form;
}

}  // namespace data
