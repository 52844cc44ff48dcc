#include "platform/values/dates.h"

#include <QRegularExpression>
#include <optional>

#include "platform/values/runtime_error.h"

using namespace Qt::StringLiterals;

namespace values {

namespace {

/// The server's columns for dates begin there.
constexpr int kFirstYear = 1753;

std::function<QDateTime()> ownClock;

std::optional<QDateTime> parse(QStringView text) {
  static const QRegularExpression form(uR"(^\d\d/\d\d/\d{4}(?: \d\d:\d\d)?\z)"_s);
  if (!form.match(text.toString()).hasMatch()) return std::nullopt;
  const auto number = [text](qsizetype at, qsizetype count) { return text.sliced(at, count).toInt(); };
  const QDate date(number(6, 4), number(3, 2), number(0, 2));
  const QTime time = text.size() == 10 ? QTime(0, 0) : QTime(number(11, 2), number(14, 2));
  if (!date.isValid() || date.year() < kFirstYear || !time.isValid()) return std::nullopt;
  return wallClock(date, time);
}

}  // namespace

QDateTime wallClock(QDate date, QTime time) { return QDateTime(date, time, Qt::UTC); }

bool isDate(QStringView text) { return parse(text).has_value(); }

QDateTime toDate(QStringView text) {
  const auto date = parse(text);
  if (!date) raise(kTypeMismatch);
  return *date;
}

QString formatDate(const QDateTime& date, QStringView form) {
  // The library's months are capitals.
  const QString all = form.toString(), days = all.section(u'h', 0, 0);
  return date.toString(QString(days).replace(u'm', u'M') + all.sliced(days.size()));
}

QString formatDate(const QString& text, QStringView form) {
  const auto date = parse(text);
  return date ? formatDate(*date, form) : text;
}

QString toText(QDate date, QTime time) {
  return formatDate(wallClock(date, time), time == QTime(0, 0) ? u"dd/mm/yyyy" : u"dd/mm/yyyy hh:mm:ss");
}

QDateTime now() {
  const QDateTime present = ownClock ? ownClock() : QDateTime::currentDateTime();
  const QTime time = present.time();
  return wallClock(present.date(), QTime(time.hour(), time.minute(), time.second()));
}

QDate today() { return now().date(); }

void setClock(std::function<QDateTime()> source) { ownClock = std::move(source); }

}  // namespace values
