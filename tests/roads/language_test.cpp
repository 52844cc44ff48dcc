#include <gtest/gtest.h>
#include <QRandomGenerator>

#include "support/printing.h"
#include "tools/road/road_file.h"

using namespace Qt::StringLiterals;

namespace {

/// A text of characters that the language treats in its own way, and others.
QString anyText(QRandomGenerator& random, int most) {
  static const QString kCharacters = u"ab \"\\nt\n\t#é^|\r\u0000expect start"_s;
  QString text;
  for (int i = random.bounded(most); i > 0; --i) {
    text += random.bounded(8) == 0 ? QChar(random.bounded(0x10000))
                                   : kCharacters.at(random.bounded(kCharacters.size()));
  }
  return text;
}

QString inQuotes(QString text) {
  text.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s).replace(u'\n', u"\\n"_s).replace(u'\t', u"\\t"_s);
  return u'"' + text + u'"';
}

}  // namespace

TEST(RoadLanguage, AQuotedTextComesBackAsItWas) {
  QRandomGenerator random(1);
  for (int i = 0; i < 20'000; ++i) {
    const QString text = anyText(random, 30);
    const road::Words words = road::cutWords(u"type txtX "_s + inQuotes(text) + u" end"_s);
    ASSERT_EQ(words.size(), 4);
    ASSERT_EQ(words.at(2).text, text);
    ASSERT_EQ(words.at(3).text, u"end"_s);
  }
}

TEST(RoadLanguage, AnyTextIsARoadOrFailsWithItsLine) {
  QRandomGenerator random(2);
  int refused = 0;
  for (int i = 0; i < 20'000; ++i) {
    const QString text = anyText(random, 80);
    int line = 0;
    try {
      for (const road::Step& step : road::readRoad(u"x"_s, text, line).steps)
        EXPECT_FALSE(step.verb.isEmpty());
    } catch (const road::Failure&) {
      ++refused;
      ASSERT_GE(line, 1);
      ASSERT_LE(line, text.count(u'\n') + 1);
    }
  }
  EXPECT_GT(refused, 1000);
}

TEST(RoadLanguage, PathsKeepTheirBackslashesRaw) {
  const road::Words words = road::cutWords(uR"("c:\zarim\novo\t.ini" x)");
  EXPECT_EQ(words.at(0).raw, uR"(c:\zarim\novo\t.ini)"_s);
}
