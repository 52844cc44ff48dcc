#include "platform/data/sql_tokens.h"

namespace data {

namespace {

using Kind = SqlToken::Kind;

constexpr QStringView kSigns = u"(),.;=<>+-*/%!|&~^";

bool isBlank(QChar c) { return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r'; }

bool isDigit(QChar c) { return c >= u'0' && c <= u'9'; }

/// Letters beyond Latin-1 begin no word: what is blank or a look-alike differs from server to server.
bool beginsWord(QChar c) {
  return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || c == u'_' || c == u'@' || c == u'#' ||
         (c >= QChar(0xC0) && c <= QChar(0xFF) && c.isLetter());
}

bool isWordCharacter(QChar c) { return beginsWord(c) || isDigit(c); }

}  // namespace

SqlToken SqlTokens::take(Kind kind, qsizetype end) {
  const SqlToken token{kind, sql_.sliced(at_, end - at_)};
  at_ = end;
  return token;
}

SqlToken SqlTokens::next() {
  while (isBlank(at(at_))) ++at_;
  if (at_ >= sql_.size()) return {};
  const QChar c = sql_[at_];
  if (c == u'\'') return enclosed(Kind::Text, u'\'');
  if (c == u'"') return enclosed(Kind::Name, u'"');
  if (c == u'[') return enclosed(Kind::Name, u']');
  if (beginsWord(c)) return word();
  const QChar following = at(at_ + 1);
  if (isDigit(c) || (c == u'.' && isDigit(following))) return number();
  const bool comment = (c == u'-' && following == u'-') || (c == u'/' && following == u'*');
  return take(comment || !kSigns.contains(c) ? Kind::Strange : Kind::Sign, at_ + 1);
}

SqlToken SqlTokens::enclosed(Kind kind, QChar last) {
  qsizetype end = sql_.indexOf(last, at_ + 1);
  while (end >= 0 && at(end + 1) == last) end = sql_.indexOf(last, end + 2);
  return end < 0 ? take(Kind::Unpaired, sql_.size()) : take(kind, end + 1);
}

SqlToken SqlTokens::word() {
  qsizetype end = at_ + 1;
  while (isWordCharacter(at(end))) ++end;
  // N'…' and X'…' read as any text; other prefixes change what a quote or a backslash inside means.
  const bool prefix = end == at_ + 1 && at(end) == u'\'' && !QStringView(u"nNxX").contains(sql_[at_]);
  return take(prefix ? Kind::Strange : Kind::Word, end);
}

SqlToken SqlTokens::number() {
  qsizetype end = at_;
  if (sql_[at_] == u'0' && at(at_ + 1).toLower() == u'x') {
    end += 2;
    while (isDigit(at(end)) || (at(end).toLower() >= u'a' && at(end).toLower() <= u'f')) ++end;
  } else {
    while (isDigit(at(end)) || at(end) == u'.') ++end;
    const bool sign = at(end + 1) == u'+' || at(end + 1) == u'-';
    if (at(end).toLower() == u'e' && isDigit(at(end + (sign ? 2 : 1)))) {
      end += sign ? 2 : 1;
      while (isDigit(at(end))) ++end;
    }
  }
  // "1delete" is a number and a word to some databases.
  return take(isWordCharacter(at(end)) || at(end) == u'.' ? Kind::Strange : Kind::Number, end);
}

}  // namespace data
