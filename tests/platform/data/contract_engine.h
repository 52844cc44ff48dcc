#pragma once

#include <QTemporaryDir>
#include <memory>
#include <string>
#include <vector>

#include "schema/tables.h"

// The engines that the contract suite runs against.
namespace contract {

/// How an engine is reached and how its tables are made.
class Engine {
 public:
  virtual ~Engine() = default;
  [[nodiscard]] virtual QString connectionString() = 0;
  [[nodiscard]] virtual QStringList createTable(const schema::Table& table) {
    return schema::createStatements(table, schema::Dialect::SqlServer);
  }
};

/// "Embedded", "FreeTds" (the server's protocol, against the test server), "RealServer" where
/// ZARIM_TEST_SERVER holds the connection string of an empty database, and "SqliteOdbc", which stands for any
/// other driver that a whole connection string names.
[[nodiscard]] std::vector<std::string> engines();
[[nodiscard]] std::unique_ptr<Engine> make(const std::string& engine);

/// Whether an engine compares texts, reads dates and refuses values as the server does.
[[nodiscard]] inline bool isLikeTheServer(const std::string& engine) { return engine != "SqliteOdbc"; }

}  // namespace contract
