#pragma once

#include <QString>
#include <memory>
#include <span>
#include <vector>

#include "platform/data/one_statement.h"
#include "platform/data/recordset.h"

namespace data {

/// What a Connection works on: one class for each kind of database.
class Engine {
 public:
  virtual ~Engine() = default;
  /// Adds a result for each statement, in their order, up to the first that fails: a closed recordset for one
  /// without columns.
  virtual void run(std::span<const ReadStatement> statements, std::vector<Recordset>& results) = 0;
  /// Whether several statements travel in one request.
  [[nodiscard]] virtual bool sendsTogether() const { return false; }
  virtual void begin() = 0;
  virtual void commit() = 0;
  /// Before it goes: ends what is open, and raises what the database says against it.
  virtual void close() {}
};

/// The embedded file on the SQLite library (embedded.cpp), which takes the server's text;
/// docs/architecture.md lists where it differs. Raises -2147467259 when the file is missing, not a database,
/// damaged or can't be opened, with a text that says what to do.
[[nodiscard]] std::unique_ptr<Engine> openEmbedded(const QString& path);

/// Makes an empty embedded file (embedded.cpp), for who installs the schema on it. Its user alone may read
/// it: passwords stand in it. Raises 75 when it can't be made or the path is taken.
void createEmbedded(const QString& path);

/// Any ODBC data source through the driver manager (odbc.cpp). timeout in seconds.
[[nodiscard]] std::unique_ptr<Engine> openOdbc(const QString& connectionString, int timeout);

}  // namespace data
