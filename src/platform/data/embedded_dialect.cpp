#include "platform/data/embedded_dialect.h"

using namespace Qt::StringLiterals;

namespace data {

QString toEmbeddedDialect(const ReadStatement& statement) {
  QString sql = statement.given.sql;
  const auto& [verb, next] = statement.first;
  const qsizetype at = next.text.data() - QStringView(sql).data();
  if (verb.isWord(u"DELETE") && next.kind != SqlToken::Kind::End && !next.isWord(u"FROM"))
    sql.insert(at, u"FROM "_s);
  if (verb.isWord(u"SELECT") && next.isWord(u"@@IDENTITY"))
    sql.replace(at, next.text.size(), u"nullif(last_insert_rowid(), 0)"_s);
  return sql;
}

}  // namespace data
