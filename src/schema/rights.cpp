#include "schema/rights.h"

#include <algorithm>

#include "schema/tables.h"

using namespace Qt::StringLiterals;

namespace schema {

namespace {

// A saved quote's header is never deleted; materials and instalments are taken out and put in anew.
const Right kWriting[] = {{u"INSERT"_s, u"prop_cmrc"_s},
                          {u"UPDATE"_s, u"prop_cmrc"_s},
                          {u"INSERT"_s, u"prop_cmrc_deta"_s},
                          {u"UPDATE"_s, u"prop_cmrc_deta"_s},
                          {u"DELETE"_s, u"prop_cmrc_deta"_s},
                          {u"INSERT"_s, u"prop_cmrc_deta_monta"_s},
                          {u"DELETE"_s, u"prop_cmrc_deta_monta"_s},
                          {u"INSERT"_s, u"prop_cmrc_homg"_s},
                          {u"UPDATE"_s, u"prop_cmrc_homg"_s},
                          {u"DELETE"_s, u"prop_cmrc_homg"_s},
                          {u"INSERT"_s, u"prop_cmrc_parc"_s},
                          {u"DELETE"_s, u"prop_cmrc_parc"_s},
                          {u"UPDATE"_s, u"prot"_s}};

}  // namespace

const std::vector<Right>& rights() {
  static const std::vector<Right> all = [] {
    std::vector<Right> list;
    for (const Table& table : tables()) list.push_back({u"SELECT"_s, table.name});
    list.insert(list.end(), std::begin(kWriting), std::end(kWriting));
    return list;
  }();
  return all;
}

QString probe(const Right& right) {
  const auto& [act, table] = right;
  const auto& columns = find(table)->columns;
  const auto plain =
      std::ranges::find_if(columns, [](const Column& one) { return one.type != Type::Identity; });
  const QString& column = plain->name;
  if (act == u"INSERT") return u"INSERT INTO %1 (%2) SELECT %2 FROM %1 WHERE 1=0"_s.arg(table, column);
  if (act == u"UPDATE") return u"UPDATE %1 SET %2=%2 WHERE 1=0"_s.arg(table, column);
  if (act == u"DELETE") return u"DELETE FROM %1 WHERE 1=0"_s.arg(table);
  return u"SELECT %2 FROM %1 WHERE 1=0"_s.arg(table, column);
}

QStringList grantStatements(const QString& role) {
  QStringList statements{u"CREATE ROLE "_s + role};
  for (const Right& right : rights())
    statements += u"GRANT %1 ON %2 TO %3"_s.arg(right.act, right.table, role);
  return statements;
}

}  // namespace schema
