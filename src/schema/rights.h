#pragma once

#include <QString>
#include <QStringList>
#include <vector>

// What the program does with each table, and so the rights that its login needs, and no others.
namespace schema {

struct Right {
  QString act;  ///< "SELECT", "INSERT", "UPDATE" or "DELETE"
  QString table;
};

/// Reading of every table, then each kind of writing of those that are written.
[[nodiscard]] const std::vector<Right>& rights();

/// A statement that needs the right and touches no row.
[[nodiscard]] QString probe(const Right& right);

/// Statements for SQL Server that give a role exactly these rights.
[[nodiscard]] QStringList grantStatements(const QString& role);

}  // namespace schema
