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

// clang-format off
// Where the embedded file differs from the server, and what is done about it. The SQL text is the same.
//
// | the server                                            | the embedded file                                          |
// |-------------------------------------------------------|------------------------------------------------------------|
// | `select @@identity as 'Name'`                         | the library's function stands in its place                 |
// | `delete TABLE where …` without FROM                   | FROM is put in before the statement runs                   |
// | = and ORDER BY without regard to case                 | collation ZARIM on every text column; letters with accents |
// | and, for =, to trailing blanks                        | too, they sort after the same letter without one           |
// | LIKE without regard to case                           | own function; % and _ only, no [set] of characters         |
// | '' into a whole-number column is 0                    | trigger of the table                                       |
// | a text that is no number into a number column fails   | CHECK of the column, which names it; '' into a decimal     |
// |                                                       | column fails too                                           |
// | a text that is no date into a date column fails       | CHECK of the column; "yyyymmdd" with or without " hh:mm"   |
// |                                                       | or " hh:mm:ss" are dates, '' is none                       |
// | datetime compares and sorts by time                   | text with collation ZARIM_DATE: missing hours are midnight |
// | '10' meets a number column                            | the same, by the column's affinity                         |
// | a text that is no number against a number column in a | finds nothing, where the server raises an error            |
// | WHERE                                                 |                                                            |
// | decimals are cut to 6 places, texts too long refused  | decimals stand as given, texts of any length are taken     |
// | begin takes locks as rows are written                 | begin takes the write lock of the file at once             |
// | SET ROWCOUNT cuts a result to its first row           | its other rows are not read                                |
// clang-format on

/// The embedded file on the SQLite library (embedded.cpp). Raises -2147467259 when the file is missing, not a
/// database, damaged or can't be opened, with a text that says what to do.
[[nodiscard]] std::unique_ptr<Engine> openEmbedded(const QString& path);

/// Makes an empty embedded file (embedded.cpp), for who installs the schema on it. Its user alone may read
/// it: passwords stand in it. Raises 75 when it can't be made or the path is taken.
void createEmbedded(const QString& path);

/// Any ODBC data source through the driver manager (odbc.cpp). timeout in seconds.
[[nodiscard]] std::unique_ptr<Engine> openOdbc(const QString& connectionString, int timeout);

}  // namespace data
