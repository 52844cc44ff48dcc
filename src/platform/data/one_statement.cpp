#include "platform/data/one_statement.h"

#include <algorithm>
#include <span>
#include <utility>

#include "platform/data/sql_tokens.h"
#include "platform/values/runtime_error.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

using Kind = SqlToken::Kind;

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

/// isWord looks at the lengths first.
bool isOneOf(std::span<const QStringView> words, const SqlToken& token) {
  return std::ranges::any_of(words, [&](QStringView word) { return token.isWord(word); });
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

Statements statementsIn(QStringView sql) {
  std::array<SqlToken, 2> first;
  return Look(sql, first).read();
}

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
