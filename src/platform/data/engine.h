#pragma once

#include <QString>
#include <memory>

#include "platform/data/recordset.h"

namespace data {

/// What stands behind a Connection: one class for each kind of database.
class Engine {
 public:
  virtual ~Engine() = default;
  virtual void execute(const QString& sql) = 0;
  [[nodiscard]] virtual Recordset query(const QString& sql) = 0;
  virtual void begin() = 0;
  virtual void commit() = 0;
};

/// The embedded file on the SQLite library. Raises -2147467259 when the file is missing, not a database,
/// damaged or can't be opened, with a text that says what to do.
[[nodiscard]] std::unique_ptr<Engine> openEmbedded(const QString& path);

/// Any ODBC data source through the driver manager. timeout in seconds.
[[nodiscard]] std::unique_ptr<Engine> openOdbc(const QString& connectionString, int timeout);

}  // namespace data
