#include "sample/server.h"

#include <algorithm>
#include <set>

#include "platform/files/drives.h"
#include "platform/values/runtime_error.h"
#include "run/configuration.h"
#include "run/context.h"
#include "sample/fill.h"
#include "sample/rows.h"
#include "schema/parts.h"

using namespace Qt::StringLiterals;

namespace sample {
namespace {

/// The columns that say which row it is: key and first text; without one of them the numbers that it ties.
QStringList tellingColumns(const schema::Table& table, const QStringList& given) {
  QStringList keys, numbers, texts;
  for (const schema::Column& column : table.columns) {
    const QString& name = column.name;
    if (!given.contains(name)) continue;
    if (column.type == schema::Type::Key) keys += name;
    if (column.type == schema::Type::Integer) numbers += name;
    if (column.type == schema::Type::Text && texts.isEmpty()) texts += name;
  }
  if (keys.isEmpty()) return numbers + texts;
  return keys + (texts.isEmpty() ? numbers : texts);
}

bool holdsOnlySampleRows(const schema::Table& table, data::Recordset there) {
  if (!there.isOpen() || there.eof()) return true;
  const QString& name = table.name;
  QStringList columns;
  std::set<QStringList> known;
  for (const Rows& rows : tables()) {
    if (rows.name != name) continue;
    columns = tellingColumns(table, rows.columns);
    for (std::size_t row = 0; row < rows.rows.size(); ++row) {
      QStringList values;
      for (const QString& column : columns) values += rows.at(row, column).trimmed();
      known.insert(values);
    }
  }
  for (; !there.eof(); there.moveNext()) {
    QStringList values;
    for (const QString& column : columns) values += there.text(column).trimmed();
    if (!known.contains(values)) return false;
  }
  return true;
}

/// A closed one where there is no such table.
data::Recordset rowsOf(data::Connection& connection, const QString& table) {
  try {
    return connection.query(u"select * from "_s + table);
  } catch (const values::RuntimeError& error) {
    if (error.number() != values::kStatementFailed) throw;
    return {};
  }
}

/// A table that holds other rows than the sample's; none where all are. Quotes are the program's own to
/// write: they count as the sample's where its company is the one of the database.
QString foreignTable(data::Connection& connection) {
  const auto company = rowsOf(connection, u"empr"_s);
  const bool hasCompany = company.isOpen() && !company.eof();
  const auto quotes = schema::quoteTables();
  for (const schema::Table& table : schema::tables()) {
    const bool ofQuotes =
        std::ranges::any_of(quotes, [&](const auto& one) { return one.name == table.name; });
    if ((ofQuotes && hasCompany) || holdsOnlySampleRows(table, rowsOf(connection, table.name))) continue;
    return table.name;
  }
  return {};
}

[[noreturn]] void refuse(const QString& why) {
  throw values::RuntimeError(values::kPathFileAccess, why + u" Nothing was changed."_s);
}

}  // namespace

void fillServer(const QString& folder, const QString& database, const Wishes& wishes, bool fresh) {
  files::standForDriveC(folder);
  contexto().Ambiente = u"PRD"_s;
  ConectaServidor();
  if (contexto().NomeBanco != database)
    refuse(u"server.ini names the database \"%1\", not \"%2\"."_s.arg(contexto().NomeBanco, database));
  data::Connection& connection = contexto().Conexao;
  if (const QString table = fresh ? foreignTable(connection) : QString(); !table.isEmpty())
    refuse(u"The table %1 of \"%2\" holds rows that are not the sample's."_s.arg(table, database));
  if (fresh)
    for (const QString& statement : schema::dropStatements()) connection.execute(statement);
  fill(connection, schema::Dialect::SqlServer, wishes.day);
  setMailServer(connection, wishes);
  connection.close();
}

}  // namespace sample
