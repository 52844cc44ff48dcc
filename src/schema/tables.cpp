#include "schema/tables.h"

#include "schema/parts.h"

using namespace Qt::StringLiterals;

namespace schema {

namespace {

/// One word of each dialect for a type; the embedded one gives the affinity and, for dates, the meaning.
QString typeText(const Column& column, Dialect dialect) {
  const bool embedded = dialect == Dialect::Embedded;
  switch (column.type) {
    case Type::Identity:
      return embedded ? u"INTEGER PRIMARY KEY AUTOINCREMENT"_s : u"int IDENTITY(1,1) NOT NULL PRIMARY KEY"_s;
    case Type::Key:
      return embedded ? u"INTEGER PRIMARY KEY"_s : u"int NOT NULL PRIMARY KEY"_s;
    case Type::Integer:
      return embedded ? u"INTEGER"_s : u"int NULL"_s;
    case Type::Decimal:
      return embedded ? u"DECIMAL(18,6)"_s : u"decimal(18,6) NULL"_s;
    case Type::DateTime:
      return embedded ? u"DATETIME TEXT COLLATE ZARIM_DATE"_s : u"datetime NULL"_s;
    case Type::Text:
      return (embedded ? u"VARCHAR(%1) COLLATE ZARIM"_s : u"varchar(%1) NULL"_s).arg(column.length);
    case Type::Memo:
      return embedded ? u"TEXT COLLATE ZARIM"_s : u"varchar(max) NULL"_s;
  }
  return {};
}

/// The embedded file takes any text in any column unless a CHECK refuses it; its name is what the user reads.
QString checkText(const Column& column) {
  const QString& name = column.name;
  switch (column.type) {
    case Type::Integer:  // the trigger turns '' into 0
      return u" CONSTRAINT \"%1: número inválido\" CHECK(typeof(%1) IN ('integer','null') OR %1='')"_s.arg(
          name);
    case Type::Decimal:
      return u" CONSTRAINT \"%1: número inválido\" CHECK(typeof(%1) IN ('integer','real','null'))"_s.arg(
          name);
    case Type::DateTime:
      return u" CONSTRAINT \"%1: data inválida\" CHECK(zarim_is_date(%1))"_s.arg(name);
    default:
      return {};
  }
}

QString createTable(const Table& table, Dialect dialect) {
  QStringList columns;
  for (const Column& column : table.columns)
    columns += column.name + u' ' + typeText(column, dialect) +
               (dialect == Dialect::Embedded ? checkText(column) : QString());
  return u"CREATE TABLE %1 (%2)"_s.arg(table.name, columns.join(u", "_s));
}

QStringList createIndexes(const Table& table) {
  QStringList statements;
  for (const Index& index : table.indexes) {
    statements += u"CREATE INDEX ix_%1_%2 ON %1 (%3)"_s.arg(
        table.name, QString::number(statements.size() + 1), index.columns.join(u", "_s));
  }
  return statements;
}

/// Triggers that turn '' into 0 in the whole-number columns of a table, as the server does.
QStringList createTriggers(const Table& table) {
  QStringList values, names, settings;
  for (const Column& column : table.columns) {
    if (column.type != Type::Integer) continue;
    const QString& name = column.name;
    names += name;
    values += u"NEW."_s + name;
    settings += u"%1=CASE WHEN %1='' THEN 0 ELSE %1 END"_s.arg(name);
  }
  if (names.isEmpty()) return {};
  const QString text =
      u"CREATE TRIGGER zero_%1_%2 AFTER %3 ON %1 WHEN '' IN (%4) BEGIN "
      "UPDATE %1 SET %5 WHERE rowid=NEW.rowid; END"_s;
  const auto trigger = [&](const QString& suffix, const QString& event) {
    return text.arg(table.name, suffix, event, values.join(u','), settings.join(u','));
  };
  return {trigger(u"i"_s, u"INSERT"_s), trigger(u"u"_s, u"UPDATE OF "_s + names.join(u','))};
}

}  // namespace

const std::vector<Table>& tables() {
  static const std::vector<Table> all = [] {
    std::vector<Table> joined;
    for (const auto& part : {quoteTables(), catalogueTables(), partyTables(), companyTables(), orderTables()})
      joined.insert(joined.end(), part.begin(), part.end());
    return joined;
  }();
  return all;
}

const Table* find(QStringView name) {
  for (const Table& table : tables())
    if (name.compare(table.name, Qt::CaseInsensitive) == 0) return &table;
  return nullptr;
}

QStringList createStatements(const Table& table, Dialect dialect) {
  QStringList statements{createTable(table, dialect)};
  statements += createIndexes(table);
  if (dialect == Dialect::Embedded) statements += createTriggers(table);
  return statements;
}

QStringList createStatements(Dialect dialect) {
  QStringList statements;
  for (const Table& table : tables()) statements += createStatements(table, dialect);
  return statements;
}

QStringList dropStatements() {
  QStringList statements;
  for (const Table& table : tables()) statements += u"DROP TABLE IF EXISTS "_s + table.name;
  return statements;
}

}  // namespace schema
