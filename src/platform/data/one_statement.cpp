#include "platform/data/one_statement.h"

#include <algorithm>
#include <span>
#include <utility>

#include "platform/values/runtime_error.h"

using namespace Qt::StringLiterals;

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

/// Walks through the text of a statement, in one pass. It must outlive the walk.
class SqlTokens {
 public:
  explicit SqlTokens(QStringView sql) : sql_(sql) {}

  /// The next piece, blanks passed over.
  SqlToken next() {
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

 private:
  [[nodiscard]] QChar at(qsizetype place) const { return place < sql_.size() ? sql_[place] : QChar(); }

  SqlToken take(Kind kind, qsizetype end) {
    const SqlToken token{kind, sql_.sliced(at_, end - at_)};
    at_ = end;
    return token;
  }

  SqlToken enclosed(Kind kind, QChar last) {
    qsizetype end = sql_.indexOf(last, at_ + 1);
    while (end >= 0 && at(end + 1) == last) end = sql_.indexOf(last, end + 2);
    return end < 0 ? take(Kind::Unpaired, sql_.size()) : take(kind, end + 1);
  }

  SqlToken word() {
    qsizetype end = at_ + 1;
    while (isWordCharacter(at(end))) ++end;
    // N'…' and X'…' read as any text; other prefixes change what a quote or a backslash inside means.
    const bool prefix = end == at_ + 1 && at(end) == u'\'' && !QStringView(u"nNxX").contains(sql_[at_]);
    return take(prefix ? Kind::Strange : Kind::Word, end);
  }

  SqlToken number() {
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

  QStringView sql_;
  qsizetype at_ = 0;
};

/// Words that begin a statement on the server and can't be a bare name there; TRIGGER stands for ENABLE and
/// DISABLE TRIGGER, whose first word can. OPENQUERY and its like run a statement that is given as a text.
constexpr QStringView kBeginnings[] = {
    u"ADD",      u"ALTER",          u"BACKUP",    u"BEGIN",      u"BREAK",   u"CHECKPOINT",
    u"CLOSE",    u"COMMIT",         u"CONTINUE",  u"CREATE",     u"DBCC",    u"DEALLOCATE",
    u"DECLARE",  u"DELETE",         u"DENY",      u"DISK",       u"DROP",    u"DUMP",
    u"END",      u"EXEC",           u"EXECUTE",   u"FETCH",      u"GOTO",    u"GRANT",
    u"IF",       u"INSERT",         u"KILL",      u"LINENO",     u"LOAD",    u"MERGE",
    u"OPEN",     u"OPENDATASOURCE", u"OPENQUERY", u"OPENROWSET", u"PRINT",   u"RAISERROR",
    u"READTEXT", u"RECONFIGURE",    u"RESTORE",   u"RETURN",     u"REVERT",  u"REVOKE",
    u"ROLLBACK", u"SAVE",           u"SELECT",    u"SET",        u"SETUSER", u"SHUTDOWN",
    u"TRIGGER",  u"TRUNCATE",       u"UPDATE",    u"UPDATETEXT", u"USE",     u"WAITFOR",
    u"WHILE",    u"WRITETEXT"};

/// Words before the "(" of a subselect.
constexpr QStringView kBeforeSubselect[] = {
    u"ALL",    u"AND",  u"ANY",    u"APPLY", u"AS",        u"BETWEEN", u"BY",   u"CASE", u"ELSE",  u"EXCEPT",
    u"EXISTS", u"FROM", u"HAVING", u"IN",    u"INTERSECT", u"IS",      u"JOIN", u"LIKE", u"LIMIT", u"NOT",
    u"ON",     u"OR",   u"SELECT", u"SOME",  u"THEN",      u"UNION",   u"WHEN", u"WHERE"};

/// Words before a SELECT that goes on with the same statement.
constexpr QStringView kBeforeSelect[] = {u"ALL", u"EXCEPT", u"INTERSECT", u"PLAN", u"UNION"};

constexpr auto kOrder = [](QStringView one, QStringView other) { return one[0] < other[0]; };
static_assert(std::ranges::is_sorted(kBeginnings, kOrder) && std::ranges::is_sorted(kBeforeSelect, kOrder) &&
              std::ranges::is_sorted(kBeforeSubselect, kOrder));

/// Whether a token is one of some words in the order of their first letters; not of the end.
bool isOneOf(std::span<const QStringView> words, const SqlToken& token) {
  const QChar first = token.text[0].toUpper();
  const auto [from, to] = std::equal_range(words.begin(), words.end(), QStringView(&first, 1), kOrder);
  return std::any_of(from, to, [&](QStringView word) { return token.isWord(word); });
}

class Look {
 public:
  Look(QStringView sql, std::array<SqlToken, 2>& first) : tokens_(sql), first_(first) {}

  Statements read() {
    for (SqlToken token = tokens_.next(); token.kind != Kind::End; token = tokens_.next()) {
      if (token.kind == Kind::Unpaired && !ended_) return Statements::Unpaired;
      if (token.kind == Kind::Strange || (ended_ && !token.isSign(u';'))) return Statements::More;
      if (token.kind == Kind::Word) {
        if (previous_.isWord(u"CREATE") && token.isWord(u"TRIGGER")) return Statements::One;  // with its body
        if (!goesOn(token)) return Statements::More;
      } else if (token.kind == Kind::Sign) {
        note(token);
      }
      if (first_[0].kind == Kind::End)
        begin(token);
      else if (first_[1].kind == Kind::End)
        first_[1] = token;
      previous_ = token;
    }
    return Statements::One;
  }

 private:
  void begin(const SqlToken& token) {
    first_[0] = token;
    mayTakeSelect_ = token.isWord(u"INSERT") || token.isWord(u"WITH");
    mayTakeSet_ = token.isWord(u"UPDATE");
  }

  void note(const SqlToken& sign) {
    if (sign.isSign(u';')) ended_ = true;
    if (sign.isSign(u')')) --depth_;
    if (!sign.isSign(u'(')) return;
    ++depth_;
    // After a value a "(" would begin another statement: "… = 'x' (SELECT …)".
    opensSubselect_ = previous_.kind == Kind::End || isOneOf(kBeforeSubselect, previous_) ||
                      (previous_.kind == Kind::Sign && !previous_.isSign(u')'));
  }

  /// Whether a word is the statement's first one or goes on with the same statement.
  bool goesOn(const SqlToken& word) {
    if (word.isWord(u"CASE")) ++cases_;
    if (word.isWord(u"VALUES") && depth_ == 0) mayTakeSelect_ = false;
    if (first_[0].kind == Kind::End || !isOneOf(kBeginnings, word)) return true;
    if (word.isWord(u"SELECT"))
      return (previous_.isSign(u'(') && opensSubselect_) || isOneOf(kBeforeSelect, previous_) ||
             (depth_ == 0 && std::exchange(mayTakeSelect_, false));
    if (word.isWord(u"SET")) return std::exchange(mayTakeSet_, false);
    if (word.isWord(u"END")) return cases_-- > 0;
    if (word.isWord(u"FETCH")) return previous_.isWord(u"ROWS");
    if (word.isWord(u"IF")) return previous_.isWord(u"TABLE") || previous_.isWord(u"INDEX");
    return first_[0].isWord(u"ALTER") && (word.isWord(u"ADD") || word.isWord(u"DROP"));
  }

  SqlTokens tokens_;
  std::array<SqlToken, 2>& first_;
  SqlToken previous_;
  int depth_ = 0;                // of "("
  int cases_ = 0;                // CASE without its END
  bool opensSubselect_ = false;  // the last "(" may
  bool mayTakeSelect_ = false;   // in place of VALUES, or after the tables of a WITH
  bool mayTakeSet_ = false;
  bool ended_ = false;  // by ";"
};

}  // namespace

ReadStatement readStatement(Statement statement) {
  ReadStatement one{std::move(statement), {}, {}};
  one.read = Look(one.given.sql, one.first).read();
  return one;
}

ReadStatement readOneStatement(Statement statement) {
  const auto refuse = [](const QString& why) {
    throw values::RuntimeError(values::kStatementFailed, u"A instrução não foi enviada: "_s + why);
  };
  if (statement.sql.contains(QChar::Null)) refuse(u"um texto contém um caractere nulo."_s);
  if (!statement.sql.isValidUtf16()) refuse(u"um texto contém metade de um caractere, que não se grava."_s);
  ReadStatement one = readStatement(std::move(statement));
  if (one.read == Statements::More)
    refuse(u"um apóstrofo termina um texto antes do fim, e o que segue seria outra instrução."_s);
  return one;
}

}  // namespace data
