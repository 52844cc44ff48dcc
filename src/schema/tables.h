#pragma once

#include <QString>
#include <QStringList>
#include <span>
#include <vector>

// The tables of the ERP that the program touches, each defined once, as data. The texts that create them come
// from here, for the embedded file and for SQL Server.
namespace schema {

enum class Type {
  Identity,  ///< whole number given by the database, primary key; numbers of deleted rows are not used again
  Key,       ///< whole number, primary key, given by the writer
  Integer,
  Decimal,  ///< money, quantities and percentages: decimal(18,6)
  DateTime,
  Text,  ///< varchar of the given length
  Memo,  ///< text without a limit
};

struct Column {
  QString name;
  Type type;
  int length = 0;
};

struct Index {
  QStringList columns;
};

struct Table {
  QString name;
  std::vector<Column> columns;
  std::vector<Index> indexes = {};
};

[[nodiscard]] const std::vector<Table>& tables();
[[nodiscard]] const Table* find(QStringView name);

enum class Dialect { Embedded, SqlServer };

/// Statements that create all tables and indexes, in order.
[[nodiscard]] QStringList createStatements(Dialect dialect);

/// The same for one table.
[[nodiscard]] QStringList createStatements(const Table& table, Dialect dialect);

/// Statements that drop all tables that are there, in order; for a test schema on a server.
[[nodiscard]] QStringList dropStatements();

}  // namespace schema
