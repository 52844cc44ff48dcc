#include "platform/office/word_processor.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "platform/files/contents.h"
#include "platform/values/runtime_error.h"
#include "support/errors.h"

using namespace Qt::StringLiterals;

namespace office {
namespace {

class WordProcessorTest : public ::testing::Test {
 protected:
  QString path(const QString& name) const { return folder_.filePath(name); }

  /// Prints it and gives what a tool says of the file.
  QString printed(WordProcessor& word, const QString& program, QStringList arguments) {
    word.printToPdf(path(u"x.pdf"_s));
    QProcess tool;
    tool.start(program, arguments.replaceInStrings(u"x.pdf"_s, path(u"x.pdf"_s)));
    EXPECT_TRUE(tool.waitForFinished()) << "poppler-utils is needed";
    return QString::fromUtf8(tool.readAllStandardOutput());
  }

  QTemporaryDir folder_;
};

TEST_F(WordProcessorTest, WritesTablesTextsAndPicturesAsRichText) {
  WordProcessor word(u"Orçamento 7"_s);
  word.addTable(2, true);
  word.setColumnShares({47.0422, 52.9578});
  ASSERT_TRUE(QImage(96, 48, QImage::Format_RGB32).save(path(u"logo.jpg"_s)));
  word.addPicture(path(u"logo.jpg"_s));
  word.moveRight();
  word.setFont(u"Arial"_s, 9, true);
  word.typeText(u"Praça {1}\r\nSão João – R$ \\ "_s);
  word.moveRight();
  word.typeText(u"segunda linha"_s);
  word.moveAfterTable();
  word.typeText(u"fim"_s);
  const QByteArray rtf = toRtf(word.document());

  EXPECT_EQ(rtf.count('{') - rtf.count("\\{"), rtf.count('}') - rtf.count("\\}"));
  EXPECT_EQ(rtf.count("\\row\n"), 2) << "moving on from the last cell adds a row";
  EXPECT_TRUE(rtf.contains("\\picwgoal1440\\pichgoal720\\jpegblip")) << "96 dots are an inch";
  EXPECT_TRUE(rtf.contains("Pra\\u231?a \\{1\\}")) << rtf.constData();
  EXPECT_TRUE(rtf.contains("\\u8211? R$ \\\\ ")) << "what code page 1252 lacks goes out as well";
  EXPECT_TRUE(rtf.contains("\\cellx3892")) << "200 points less the outer padding";
}

TEST_F(WordProcessorTest, AnEmptyLineStandsBetweenTwoTables) {
  WordProcessor word;
  for (const auto& text : {u"um"_s, u"dois"_s}) {
    word.addTable(1, true);
    word.typeText(text);
    word.moveAfterTable();
  }
  const QString words = printed(word, u"pdftotext"_s, {u"-bbox"_s, u"x.pdf"_s, u"-"_s});
  const auto top = [&words](const QString& text) {
    const QRegularExpression place(u"yMin=\"([0-9.]+)\"[^>]*>%1<"_s.arg(text));
    return place.match(words).captured(1).toDouble();
  };
  EXPECT_GT(top(u"dois"_s) - top(u"um"_s), 2 * 12 + 2 * 2.25) << words.toStdString();
  EXPECT_EQ(toRtf(word.document()).count("\\par\n"), 3) << "the empty one, and two after the last table";
}

TEST_F(WordProcessorTest, FaultsAreReported) {
  WordProcessor word;
  EXPECT_EQ(support::errorOf([&] { word.addPicture(path(u"nenhum.jpg"_s)); }), values::kPictureNotFound);
  files::write(path(u"texto.jpg"_s), "not a picture");
  EXPECT_EQ(support::errorOf([&] { word.addPicture(path(u"texto.jpg"_s)); }), values::kInvalidPicture);
  EXPECT_EQ(support::errorOf([&] { word.printToPdf(path(u"sem/x.pdf"_s)); }), values::kPathNotFound);
}

}  // namespace
}  // namespace office
