#include "platform/office/word_processor.h"

#include <gtest/gtest.h>

#include <QImage>
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
  EXPECT_EQ(rtf.count("\\par\n"), 3) << "a line in a cell, the empty one after the table, the last";
  EXPECT_EQ(rtf.count("\\row\n"), 2) << "moving on from the last cell adds a row";
  EXPECT_TRUE(rtf.contains("\\picwgoal1440\\pichgoal720\\jpegblip")) << "96 dots are an inch";
  EXPECT_TRUE(rtf.contains("Pra\\u231?a \\{1\\}")) << rtf.constData();
  EXPECT_TRUE(rtf.contains("\\u8211? R$ \\\\ ")) << "what code page 1252 lacks goes out as well";
  EXPECT_TRUE(rtf.contains("\\cellx3892")) << "200 points less the outer padding";
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
