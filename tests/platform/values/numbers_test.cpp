#include "platform/values/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

#include "support/errors.h"

using namespace Qt::StringLiterals;
using support::errorOf;

namespace {

TEST(Numbers, LeadingNumberStopsAtTheFirstForeignCharacter) {
  const std::pair<QString, double> cases[] = {
      {u""_s, 0},    {u"abc"_s, 0}, {u"12a"_s, 12},  {u"  7"_s, 7}, {u"-3.5x"_s, -3.5}, {u"1.2.3"_s, 1.2},
      {u"0,5"_s, 0}, {u"+4"_s, 4},  {u".5"_s, 0.5},  {u"."_s, 0},   {u"-"_s, 0},        {u"1e5"_s, 1},
      {u"1,5"_s, 1}, {u"--1"_s, 0}, {u"1 000"_s, 1}, {u"5."_s, 5},  {u"٣"_s, 0},        {u"\u00A07"_s, 0}};
  for (const auto& [text, value] : cases) EXPECT_EQ(values::leadingNumber(text), value) << text.toStdString();
}

TEST(Numbers, RegionalConversionTakesCommaAndGrouping) {
  const std::pair<QString, double> good[] = {
      {u"1.234,50"_s, 1234.5}, {u"-3"_s, -3},          {u" 12 "_s, 12},    {u"1.5"_s, 15},
      {u",5"_s, 0.5},          {u"5,"_s, 5},           {u"+2,25"_s, 2.25}, {u"1E+20"_s, 1e20},
      {u"12.34.5"_s, 12345},   {u"2,5E-03"_s, 0.0025}, {u"1E-400"_s, 0}};
  for (const auto& [text, value] : good) EXPECT_EQ(values::toNumber(text), value) << text.toStdString();
  for (const auto& text : {u""_s, u" "_s, u"abc"_s, u"1,2,3"_s, u"1,2.3"_s, u"."_s, u"-"_s, u"R$ 5"_s,
                           u"1E"_s, u"5%"_s, u".5"_s, u"1 2"_s}) {
    EXPECT_FALSE(values::isNumeric(text)) << text.toStdString();
    EXPECT_EQ(errorOf([&] { (void)values::toNumber(text); }), values::kTypeMismatch) << text.toStdString();
  }
  const QString huge(400, u'9');
  EXPECT_FALSE(values::isNumeric(huge));
  EXPECT_EQ(errorOf([&] { (void)(values::toNumber(huge)); }), values::kOverflow);
}

TEST(Numbers, MasksRoundHalfAwayFromZeroOnTheDecimalText) {
  const std::tuple<double, QStringView, QString> cases[] = {{1.005, u"###0.00", u"1,01"_s},
                                                            {-2.675, u"###0.00", u"-2,68"_s},
                                                            {-0.001, u"###0.00", u"0,00"_s},
                                                            {9.995, u"###0.00", u"10,00"_s},
                                                            {0.1 + 0.2, u"###0.00", u"0,30"_s},
                                                            {99999.5, u"###0", u"100000"_s},
                                                            {123, u"000000", u"000123"_s},
                                                            {1234567, u"000000", u"1234567"_s},
                                                            {0.049, u"###0.0", u"0,0"_s},
                                                            {1e-9, u"###0.0000", u"0,0000"_s},
                                                            {1e18, u"###0.00", u"1000000000000000000,00"_s}};
  for (const auto& [number, mask, text] : cases) EXPECT_EQ(values::format(number, mask), text) << number;
}

TEST(Numbers, PlainTextIsTheShortest) {
  const std::pair<double, QString> cases[] = {
      {0.1 + 0.2, u"0,3"_s}, {1234.5, u"1234,5"_s},   {-0.25, u"-0,25"_s},       {1e14, u"100000000000000"_s},
      {1e15, u"1E+15"_s},    {0.00001, u"0,00001"_s}, {-1.5e-20, u"-1,5E-20"_s}, {-0.0, u"0"_s}};
  for (const auto& [number, text] : cases) EXPECT_EQ(values::toText(number), text) << number;
}

TEST(Numbers, WholeNumbersThatDoNotFitOverflow) {
  EXPECT_EQ(values::toInt16(32767.4), 32767);
  EXPECT_EQ(values::toInt16(2.5), 3);
  EXPECT_EQ(values::toInt16(-2.5), -3);
  EXPECT_EQ(values::toInt32(-2147483648.0), std::numeric_limits<qint32>::min());
  const std::function<void()> overflows[] = {
      [] { (void)(values::toInt16(32767.5)); },      [] { (void)(values::toInt16(-32769)); },
      [] { (void)(values::toInt32(2147483648.0)); }, [] { (void)(values::toInt64(9.3e18)); },
      [] { (void)(values::toInt64(std::nan(""))); }, [] { (void)(values::format(HUGE_VAL, u"###0.00")); }};
  for (const auto& call : overflows) EXPECT_EQ(errorOf(call), values::kOverflow);
}

}  // namespace
