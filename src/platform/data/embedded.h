#pragma once

#include <sqlite3.h>

#include <QString>
#include <memory>

#include "platform/data/one_statement.h"

// The embedded file as the SQLite library opens it.
namespace data {

struct CloseDatabase {
  void operator()(sqlite3* database) const { sqlite3_close_v2(database); }
};
using Database = std::unique_ptr<sqlite3, CloseDatabase>;

/// Opens the file with the rules for texts, the write-ahead log, full synchronisation and the busy time-out.
/// Raises -2147467259 when it is missing, is no database, is shorter than it says it is, or can't be opened.
[[nodiscard]] Database openLibrary(const QString& path);

/// A statement in the words of the SQLite library: a FROM after a DELETE that has none, and the library's
/// function for the `@@identity` that a statement selects.
[[nodiscard]] QString toEmbeddedDialect(const ReadStatement& statement);

}  // namespace data
