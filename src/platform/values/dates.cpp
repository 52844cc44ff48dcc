#include "platform/values/dates.h"

#include <optional>

#include "platform/values/runtime_error.h"

using namespace Qt::StringLiterals;

namespace values {

namespace {

std::function<QDateTime()>& clock() {
  static std::function<QDateTime()> source;
  return source;
}

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
  if (!date.isValid() || date.year() < 1 || !time.isValid()) return std::nullopt;
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
  if (!date.isValid()) return {};
  const auto number = [](int value, int width) { return QString::number(value).rightJustified(width, u'0'); };
  QString out;
  bool behindHours = false;
  while (!form.isEmpty()) {
    const auto takes = [&form](QStringView token) {
      if (!form.startsWith(token)) return false;
      form = form.sliced(token.size());
      return true;
    };
    if (takes(u"yyyy")) {
      out += number(date.date().year(), 4);
    } else if (takes(u"dd")) {
      out += number(date.date().day(), 2);
    } else if (takes(u"hh")) {
      out += number(date.time().hour(), 2);
      behindHours = true;
    } else if (takes(u"mm")) {
      out += number(behindHours ? date.time().minute() : date.date().month(), 2);
    } else if (takes(u"ss")) {
      out += number(date.time().second(), 2);
    } else {
      out += form.front();
      form = form.sliced(1);
    }
  }
  return out;
}

QString formatDate(const QString& text, QStringView form) {
  const auto date = parse(text);
  return date ? formatDate(*date, form) : text;
}

QString toText(const QDateTime& date) {
  return formatDate(date, date.time() == QTime(0, 0) ? u"dd/mm/yyyy" : u"dd/mm/yyyy hh:mm:ss");
}

QDateTime now() {
  const QDateTime present = clock() ? clock()() : QDateTime::currentDateTime();
  const QTime time = present.time();
  return wallClock(present.date(), QTime(time.hour(), time.minute(), time.second()));
}

QDate today() { return now().date(); }

void setClock(std::function<QDateTime()> source) { clock() = std::move(source); }

}  // namespace values
