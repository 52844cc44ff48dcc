#pragma once

#include <QDateTime>
#include <QString>
#include <optional>
#include <string_view>

struct sqlite3;

// How the embedded file compares texts and dates. Texts are UTF-8.
namespace data {

/// Order of two texts: without regard to case, trailing blanks ignored; a letter with an accent stands after
/// the same letter without one. Below, at or above 0.
[[nodiscard]] int compareTexts(std::string_view left, std::string_view right);

/// Whether a text meets a pattern with % and _, without regard to case.
[[nodiscard]] bool isLike(std::string_view text, std::string_view pattern);

/// Order of two stored dates; hours that are not written are midnight.
[[nodiscard]] int compareDates(std::string_view left, std::string_view right);

struct StoredDate {
  QDate date;
  QTime time;
};
/// The date of "yyyymmdd", "yyyymmdd hh:mm" or "yyyymmdd hh:mm:ss"; nothing for any other text.
[[nodiscard]] std::optional<StoredDate> storedDate(std::string_view text);

/// Makes all of this known to a connection: collations ZARIM and ZARIM_DATE, the functions like(pattern,
/// text) and zarim_is_date(value), which is true of null.
void registerTextRules(sqlite3* database);

}  // namespace data
