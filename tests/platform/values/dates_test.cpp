#include "platform/values/dates.h"

#include <gtest/gtest.h>

#include "platform/values/runtime_error.h"

using namespace Qt::StringLiterals;

namespace {

QString asText(const QDateTime& date) { return values::toText(date.date(), date.time()); }

TEST(Dates, OnlyTheFixedFormsAreDates) {
  for (const auto& text : {u"29/02/2024"_s, u"01/01/2024 00:00"_s, u"31/12/1999 23:59"_s, u"01/01/1753"_s})
    EXPECT_TRUE(values::isDate(text)) << text.toStdString();
  for (const auto& text : {u""_s, u"31/02/2024"_s, u"29/02/2023"_s, u"1/2/2024"_s, u"2024-01-01"_s,
                           u"01/01/24"_s, u"01/01/2024 24:00"_s, u"01/01/2024 10:60"_s,
                           u"01/01/2024 10:00:00"_s, u"__/__/____"_s, u"01/01/2024  1:00"_s, u"01/13/2024"_s,
                           u"-1/01/2024"_s, u"31/12/1752"_s, u" 01/01/2024"_s, u"01/01/202٣"_s}) {
    EXPECT_FALSE(values::isDate(text)) << text.toStdString();
    EXPECT_THROW(static_cast<void>(values::toDate(text)), values::RuntimeError) << text.toStdString();
  }
}

TEST(Dates, FormsOfADate) {
  const QDateTime date = values::toDate(u"05/03/2024 14:07");
  EXPECT_EQ(values::formatDate(date, u"dd/mm"), u"05/03");
  EXPECT_EQ(values::formatDate(date, u"yyyymmdd hh:mm"), u"20240305 14:07");
  EXPECT_EQ(values::formatDate(u"__/__/____"_s, u"yyyymmdd"), u"__/__/____");
  EXPECT_EQ(values::formatDate(QDateTime(), u"yyyymmdd"), u"");
  EXPECT_EQ(asText(date), u"05/03/2024 14:07:00");
  EXPECT_EQ(asText(values::toDate(u"05/03/2024")), u"05/03/2024");
}

// In a zone whose summer time begins at midnight, that midnight is a time of day like any other.
TEST(Dates, SummerTimeTakesNothingOutOfADay) {
  qputenv("TZ", "America/Sao_Paulo");
  tzset();
  EXPECT_EQ(asText(values::toDate(u"04/11/2018")), u"04/11/2018");
  values::setClock([] { return QDateTime(QDate(2018, 11, 3), QTime(23, 30, 15, 900)); });
  EXPECT_EQ(asText(values::now()), u"03/11/2018 23:30:15");
  EXPECT_LT(values::now(), values::toDate(u"04/11/2018"));
  EXPECT_EQ(values::formatDate(values::now().addDays(1), u"dd/mm/yyyy hh:mm"), u"04/11/2018 23:30");
  values::setClock({});
  qunsetenv("TZ");
  tzset();
}

}  // namespace
