#include <gtest/gtest.h>

#include <QRandomGenerator>
#include <cmath>

#include "platform/values/dates.h"
#include "platform/values/numbers.h"
#include "platform/values/runtime_error.h"
#include "shared/text.h"
#include "support/printing.h"
#include "text/fields.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kTries = 40'000;  // of each reader; some two seconds in all

/// Texts made of pieces that mean something to a reader, and of any characters. The same ones on every run.
class Texts {
 public:
  explicit Texts(QStringList pieces) : pieces_(std::move(pieces)) {}

  QString next() {
    QString text;
    for (int count = random_.bounded(8); count > 0; --count) {
      if (random_.bounded(8) == 0)
        text += QChar(static_cast<char16_t>(random_.bounded(0x10000)));
      else
        text += pieces_[random_.bounded(static_cast<int>(pieces_.size()))];
    }
    return text;
  }

 private:
  QStringList pieces_;
  QRandomGenerator random_{20240315};
};

TEST(Readers, NumbersAreReadOrRefused) {
  Texts texts({u"0"_s, u"1"_s, u"9"_s, u"12"_s, u","_s, u"."_s, u"-"_s, u"+"_s, u" "_s, u"e"_s, u"E5"_s,
               u"%"_s, u"999999999"_s, u"inf"_s, u"nan"_s, u"0x1"_s});
  for (int i = 0; i < kTries; ++i) {
    const QString text = texts.next();
    SCOPED_TRACE(text.toStdString());
    ASSERT_TRUE(std::isfinite(leNumero(text)));
    if (values::isNumeric(text)) {
      const double number = values::toNumber(text);
      ASSERT_TRUE(std::isfinite(number));
      // What is shown is read back as what is shown, by both readers.
      if (std::fabs(number) < 1e12) {
        const QString money = emMoeda(number);
        ASSERT_EQ(emMoeda(values::toNumber(money)), money);
        ASSERT_EQ(leNumero(money), values::toNumber(money));
      }
    } else {
      ASSERT_THROW((void)values::toNumber(text), values::RuntimeError);
    }
  }
}

TEST(Readers, DatesAreReadOrRefused) {
  Texts texts({u"0"_s, u"1"_s, u"31"_s, u"12"_s, u"02"_s, u"2024"_s, u"/"_s, u"15/03/2024"_s, u" "_s, u":"_s,
               u"10:30"_s, u"____"_s, u"__/__/____"_s, u"__:__"_s, u"__"_s});
  values::setClock([] { return values::toDate(u"15/03/2024 10:30"); });
  for (int i = 0; i < kTries; ++i) {
    const QString text = texts.next();
    SCOPED_TRACE(text.toStdString());
    const QString completed = ValidaDataMascara(text);
    ASSERT_EQ(completed.isNull() && !text.isEmpty(), false);
    if (!values::isDate(text)) {
      ASSERT_THROW((void)values::toDate(text), values::RuntimeError);
      continue;
    }
    ASSERT_TRUE(text == completed);
    ASSERT_EQ(values::formatDate(text, text.size() > 10 ? u"dd/mm/yyyy hh:mm" : u"dd/mm/yyyy"), text);
  }
  values::setClock({});
}

TEST(Readers, FieldsComeOutAsTheyWereJoined) {
  Texts texts({u" "_s, u"  "_s, u"a"_s, u"|"_s, u"."_s, u"\t"_s, u"\r"_s, u"\n"_s});
  for (int i = 0; i < kTries; ++i) {
    // Blanks around the whole text go; those inside stay.
    QStringList fields{u"first"_s};
    for (int count = i % 5; count > 0; --count) fields << texts.next().remove(u'^');
    fields << u"last"_s;
    QString text = u" "_s + fields.join(u'^') + (i % 2 > 0 ? u"^ "_s : u" "_s);
    SCOPED_TRACE(text.toStdString());
    for (int n = 1; n <= fields.size(); ++n) ASSERT_EQ(PegaCampo(text, n), fields[n - 1]);
    ASSERT_EQ(PegaCampo(text, static_cast<int>(fields.size()) + 1), u"."_s);
    ASSERT_EQ(PegaCampo(text, 0), QString());
  }
}

}  // namespace
