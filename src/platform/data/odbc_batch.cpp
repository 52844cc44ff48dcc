#include "platform/data/odbc_batch.h"

#include <QStringList>
#include <algorithm>

#include "platform/data/one_statement.h"
#include "platform/data/sql_tokens.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

bool spoilsOthers(const QString& sql) { return statementsIn(sql) != Statements::One; }

}  // namespace

std::size_t togetherInOneRequest(std::span<const Statement> statements) {
  std::size_t count = 0;
  while (count < statements.size() && !spoilsOthers(statements[count].sql)) ++count;
  return qMax<std::size_t>(count, 1);
}

QString requestText(std::span<const Statement> statements, bool liftsLimit) {
  static const QString kLimit = u"SET ROWCOUNT 1"_s;
  static const QString kNoLimit = u"SET ROWCOUNT 0"_s;
  QStringList lines;
  if (liftsLimit) lines << kNoLimit;
  // A server can be set up to leave the counts out, by which the results are distinguished.
  const auto writes = [](const Statement& one) { return !isSelect(one.sql); };
  if (statements.size() > 1 && std::ranges::any_of(statements, writes)) lines << u"SET NOCOUNT OFF"_s;
  bool limited = false;
  for (const Statement& statement : statements) {
    const bool first = statement.rows == Rows::First && !spoilsOthers(statement.sql);
    if (first != limited) {
      limited = first;
      lines << (limited ? kLimit : kNoLimit);
    }
    lines << statement.sql;
  }
  if (limited) lines << kNoLimit;
  return lines.join(u'\n');
}

bool isSelect(const QString& sql) { return SqlTokens(sql).next().isWord(u"SELECT"); }

bool isWrite(const QString& sql) {
  const SqlToken first = SqlTokens(sql).next();
  return first.isWord(u"INSERT") || first.isWord(u"UPDATE") || first.isWord(u"DELETE");
}

}  // namespace data
