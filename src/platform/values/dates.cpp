#include "platform/values/dates.h"

#include <algorithm>
#include <optional>

#include "platform/values/runtime_error.h"

using namespace Qt::StringLiterals;

namespace values {

namespace {

/// The server's columns for dates begin there.
constexpr int kFirstYear = 1753;

std::function<QDateTime()> ownClock;

/// Whole number in a fixed place, -1 where a character is no digit.
int digits(QStringView text, qsizetype at, qsizetype count) {
  int value = 0;
  for (const QChar c : text.sliced(at, count)) {
    if (c < u'0' || c > u'9') return -1;
    value = value * 10 + (c.unicode() - u'0');
  }
  return value;
}

std::optional<QDateTime> parse(QStringView text) {
  const bool withTime = text.size() == 16;
  if (text.size() != 10 && !withTime) return std::nullopt;
  if (text[2] != u'/' || text[5] != u'/') return std::nullopt;
  const QDate date(digits(text, 6, 4), digits(text, 3, 2), digits(text, 0, 2));
  QTime time(0, 0);
  if (withTime) {
    if (text[10] != u' ' || text[13] != u':') return std::nullopt;
    time = QTime(digits(text, 11, 2), digits(text, 14, 2));
  }
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
  return date.isValid() ? formatDate(date.date(), date.time(), form) : QString();
}

QString formatDate(QDate date, QTime time, QStringView form) {
  int year = 0, month = 0, day = 0;
  date.getDate(&year, &month, &day);
  QString out(form.size(), Qt::Uninitialized);
  QChar* at = out.data();
  const auto write = [&at](int value, int width) {
    for (int place = width; place > 0; --place, value /= 10) at[place - 1] = QChar(u'0' + value % 10);
    at += width;
  };
  bool behindHours = false;
  for (qsizetype i = 0; i < form.size();) {
    qsizetype width = 1;
    while (i + width < form.size() && form[i + width] == form[i]) ++width;
    const int places = static_cast<int>(width);
    const QChar sign = form[i];
    const int value = sign == u'y'   ? year
                      : sign == u'd' ? day
                      : sign == u'h' ? time.hour()
                      : sign == u's' ? time.second()
                      : sign == u'm' ? (behindHours ? time.minute() : month)
                                     : -1;
    if (value >= 0)
      write(value, places);
    else
      at = std::fill_n(at, places, sign);
    behindHours = behindHours || sign == u'h';
    i += width;
  }
  return out;
}

QString formatDate(const QString& text, QStringView form) {
  const auto date = parse(text);
  return date ? formatDate(*date, form) : text;
}

QString toText(QDate date, QTime time) {
  return formatDate(date, time, time == QTime(0, 0) ? u"dd/mm/yyyy" : u"dd/mm/yyyy hh:mm:ss");
}

QDateTime now() {
  const QDateTime present = ownClock ? ownClock() : QDateTime::currentDateTime();
  const QTime time = present.time();
  return wallClock(present.date(), QTime(time.hour(), time.minute(), time.second()));
}

QDate today() { return now().date(); }

void setClock(std::function<QDateTime()> source) { ownClock = std::move(source); }

}  // namespace values
