#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "platform/data/asked.h"
#include "platform/data/recordset.h"
#include "platform/data/statement.h"
#include "platform/values/runtime_error.h"

namespace data {

class Engine;

/// The one database connection. The string decides the engine: "server=(embutido)" is the embedded file named
/// by "database=", anything else goes to the ODBC driver manager. A statement that fails raises
/// values::RuntimeError -2147217900 with the database's own words; a connection that can't be made or is lost
/// raises -2147467259; any use of a closed one raises 3704. A text that would be more than one statement
/// fails unsent. After an error in a transaction, or when the connection is lost, nothing more is sent: every
/// later call raises the same error again.
class Connection {
 public:
  Connection();
  /// Opened at once.
  Connection(const QString& connectionString, int timeout);
  ~Connection();
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  /// timeout in seconds, for the login. The embedded file must be there: data::createEmbedded makes one.
  void open(const QString& connectionString, int timeout);
  [[nodiscard]] bool isOpen() const { return engine_ != nullptr; }
  /// An open transaction is lost. It is closed afterwards even where the database raises an error.
  void close();
  /// The same for one that is given up: raises nothing.
  void drop();

  /// Runs a statement that gives no rows.
  void execute(const QString& sql);
  /// Runs a statement and reads its result whole, or its first row.
  [[nodiscard]] Recordset query(const QString& sql, Rows rows = Rows::All);
  /// Runs statements in their order and gives a result for each, a closed one where there are no columns. To
  /// a server they go in one request for every 2,000. Ends at the first that fails, which the error names;
  /// what stands after it does not count as run.
  std::vector<Recordset> batch(const std::vector<Statement>& statements);
  /// A statement whose answer may wait for that of others, to travel with them: see asked.h. An engine that
  /// has no network to cross answers at once.
  [[nodiscard]] Asked<Recordset> ask(QString sql, Rows rows = Rows::All);

  /// Takes the write lock at once on the embedded file.
  void begin();
  void commit();

  /// Sees every statement before it runs, "BEGIN" and "COMMIT" among them; for tests and measurements.
  void setListener(std::function<void(const QString&)> listener) { listener_ = std::move(listener); }

 private:
  /// Raises what forbids the use of the connection; passes to the listener what is about to run.
  void announce(const QString& statement);
  /// Adds a result for each statement, up to the first that fails.
  void run(const std::vector<Statement>& statements, std::vector<Recordset>& results);
  /// The same of a full batch at most.
  void runTogether(std::span<const Statement> request, std::vector<Recordset>& results);
  /// BEGIN or COMMIT.
  void control(const QString& word, void (Engine::*command)());
  /// Raises an error of a statement; keeps one that ends the use of the connection.
  [[noreturn]] void fail(const values::RuntimeError& error, const QString& statement);

  std::unique_ptr<Engine> engine_;
  bool inTransaction_ = false;
  std::optional<values::RuntimeError> failure_;
  std::function<void(const QString&)> listener_;
  Questions questions_;
};

}  // namespace data
