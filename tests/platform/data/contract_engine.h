#pragma once

#include <memory>
#include <string>
#include <vector>

#include "schema/tables.h"
#include "sqlserver/tds_server.h"

// The engines that the contract suite runs against.
namespace contract {

/// "Embedded", "FreeTds" (the server's protocol, against the test server), "RealServer" where
/// ZARIM_TEST_SERVER holds the connection string of an empty database, and "SqliteOdbc", the SQLite library
/// under the driver manager, which stands for any other driver that a whole connection string names.
[[nodiscard]] std::vector<std::string> engines();

/// How an engine is reached and how its tables are made.
class Engine {
 public:
  explicit Engine(const std::string& name);
  [[nodiscard]] QString connectionString() const { return connectionString_; }
  [[nodiscard]] QStringList createTable(const schema::Table& table) const;

 private:
  std::string name_;
  QTemporaryDir folder_;
  std::unique_ptr<sqlserver::TdsServer> server_;
  QString connectionString_;
};

/// Whether an engine compares texts, reads dates and refuses values as the server does.
[[nodiscard]] inline bool isLikeTheServer(const std::string& engine) { return engine != "SqliteOdbc"; }

}  // namespace contract
