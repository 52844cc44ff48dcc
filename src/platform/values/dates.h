#pragma once

#include <QDateTime>
#include <QString>
#include <functional>

// Dates as text in the program's fixed forms, and the clock. A date is what a clock on the wall shows: it is
// held without a time zone (as UTC), so that no summer time takes an hour out of a stored day and all dates
// compare.
namespace values {

/// A date and time of day as the program holds it.
[[nodiscard]] QDateTime wallClock(QDate date, QTime time = QTime(0, 0));

/// The date test: "dd/mm/yyyy" with or without " hh:mm", a day that exists, from 1753 on, and nothing else.
[[nodiscard]] bool isDate(QStringView text);

/// The date of a text that isDate accepts; raises 13 for any other.
[[nodiscard]] QDateTime toDate(QStringView text);

/// A date in one of the program's forms: "dd/mm/yyyy", "dd/mm/yyyy hh:mm", "yyyymmdd", "yyyymmdd hh:mm",
/// "yyyy/mm/dd", "dd/mm". mm after hh is minutes. An invalid date gives an empty text.
[[nodiscard]] QString formatDate(const QDateTime& date, QStringView form);

/// The same for a text that is a date; any other text comes back as it stands.
[[nodiscard]] QString formatDate(const QString& text, QStringView form);

/// The plain conversion of a date to text: "dd/mm/yyyy", with " hh:mm:ss" after it unless it is midnight.
[[nodiscard]] QString toText(QDate date, QTime time);

/// Present local date and time, to the second, from the clock below.
[[nodiscard]] QDateTime now();
[[nodiscard]] QDate today();

/// Puts another clock in place; an empty function brings the system's back.
void setClock(std::function<QDateTime()> source);

}  // namespace values
