#include "platform/data/odbc_batch.h"

#include <QStringList>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace data {

std::size_t togetherInOneRequest(std::span<const ReadStatement> statements) {
  const auto alone = std::ranges::find_if_not(statements, &ReadStatement::mayTravel);
  return std::max<std::size_t>(static_cast<std::size_t>(alone - statements.begin()), 1);
}

QString requestText(std::span<const ReadStatement> statements, bool liftsLimit) {
  static const QString kLimit = u"SET ROWCOUNT 1"_s;
  static const QString kNoLimit = u"SET ROWCOUNT 0"_s;
  QStringList lines;
  if (liftsLimit) lines << kNoLimit;
  // A server can be set up to leave the counts out, by which the results are distinguished.
  if (statements.size() > 1 && !std::ranges::all_of(statements, &ReadStatement::isSelect))
    lines << u"SET NOCOUNT OFF"_s;
  bool limited = false;
  for (const ReadStatement& statement : statements) {
    const bool first = statement.given.rows == Rows::First && statement.mayTravel();
    if (first != limited) {
      limited = first;
      lines << (limited ? kLimit : kNoLimit);
    }
    lines << statement.given.sql;
  }
  if (limited) lines << kNoLimit;
  return lines.join(u'\n');
}

}  // namespace data
