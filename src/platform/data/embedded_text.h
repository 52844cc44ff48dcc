#pragma once

#include <QDateTime>
#include <optional>
#include <string_view>

#include "platform/data/one_statement.h"

struct sqlite3;

// How the embedded file takes statements, and compares texts and dates. Texts are UTF-8.
namespace data {

/// A statement in the words of the SQLite library: a FROM after a DELETE that has none, and the library's
/// function for the `@@identity` that a statement selects.
[[nodiscard]] QString toEmbeddedDialect(const ReadStatement& statement);

struct StoredDate {
  QDate date;
  QTime time;
};
/// The date of "yyyymmdd", "yyyymmdd hh:mm" or "yyyymmdd hh:mm:ss"; nothing for any other text.
[[nodiscard]] std::optional<StoredDate> storedDate(std::string_view text);

/// Makes the rules known to a connection: collation ZARIM (without regard to case, trailing blanks ignored, a
/// letter with an accent after the same one without), ZARIM_DATE (hours that are not written are midnight),
/// the functions like(pattern, text) with % and _, without regard to case, and zarim_is_date(value), true of
/// null.
void registerTextRules(sqlite3* database);

}  // namespace data
