#include "schema/rights.h"

#include <algorithm>

#include "schema/tables.h"

using namespace Qt::StringLiterals;

namespace schema {

namespace {

// A saved quote's header is never deleted; materials and instalments are taken out and put in anew.
constexpr Right kWriting[] = {{"INSERT", "prop_cmrc"},
                              {"UPDATE", "prop_cmrc"},
                              {"INSERT", "prop_cmrc_deta"},
                              {"UPDATE", "prop_cmrc_deta"},
                              {"DELETE", "prop_cmrc_deta"},
                              {"INSERT", "prop_cmrc_deta_monta"},
                              {"DELETE", "prop_cmrc_deta_monta"},
                              {"INSERT", "prop_cmrc_homg"},
                              {"UPDATE", "prop_cmrc_homg"},
                              {"DELETE", "prop_cmrc_homg"},
                              {"INSERT", "prop_cmrc_parc"},
                              {"DELETE", "prop_cmrc_parc"},
                              {"UPDATE", "prot"}};

}  // namespace

const std::vector<Right>& rights() {
  static const std::vector<Right> all = [] {
    std::vector<Right> list;
    for (const Table& table : tables()) list.push_back({"SELECT", table.name});
    list.insert(list.end(), std::begin(kWriting), std::end(kWriting));
    return list;
  }();
  return all;
}

QString probe(const Right& right) {
  const QLatin1StringView act(right.act);
  const QString table = QString::fromLatin1(right.table);
  const auto& columns = find(table)->columns;
  const auto plain =
      std::ranges::find_if(columns, [](const Column& one) { return one.type != Type::Identity; });
  const QString column = QString::fromLatin1(plain->name);
  if (act == "INSERT"_L1) return u"INSERT INTO %1 (%2) SELECT %2 FROM %1 WHERE 1=0"_s.arg(table, column);
  if (act == "UPDATE"_L1) return u"UPDATE %1 SET %2=%2 WHERE 1=0"_s.arg(table, column);
  if (act == "DELETE"_L1) return u"DELETE FROM %1 WHERE 1=0"_s.arg(table);
  return u"SELECT %2 FROM %1 WHERE 1=0"_s.arg(table, column);
}

QStringList grantStatements(const QString& role) {
  QStringList statements{u"CREATE ROLE "_s + role};
  for (const Right& right : rights())
    statements +=
        u"GRANT %1 ON %2 TO %3"_s.arg(QLatin1StringView(right.act), QLatin1StringView(right.table), role);
  return statements;
}

}  // namespace schema
