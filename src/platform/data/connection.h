#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <vector>

#include "platform/data/asked.h"
#include "platform/data/recordset.h"
#include "platform/data/statement.h"
#include "platform/values/runtime_error.h"

namespace data {

class Session;

/// The one database connection. The string decides the engine: "server=(embutido)" is the embedded file named
/// by "database=", anything else goes to the ODBC driver manager. A statement that fails raises
/// values::RuntimeError -2147217900 with the database's own words; a connection that can't be made or is lost
/// raises -2147467259; any use of a closed one raises 3704. A text that would be more than one statement
/// fails unsent. After an error in a transaction, or when the connection is lost, nothing more is sent: every
/// later call raises the same error again.
class Connection {
 public:
  Connection();
  ~Connection();
  Connection(Connection&&) noexcept;
  Connection& operator=(Connection&&) noexcept;

  /// timeout in seconds, for the login. The embedded file must be there: data::createEmbedded makes one.
  void open(const QString& connectionString, int timeout);
  [[nodiscard]] bool isOpen() const;
  /// An open transaction is lost. It is closed afterwards even where the database raises an error.
  void close();

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
  void setListener(std::function<void(const QString&)> listener);

 private:
  std::unique_ptr<Session> session_;
};

}  // namespace data
