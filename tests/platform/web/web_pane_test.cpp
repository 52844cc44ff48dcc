#include "platform/web/web_pane.h"

#include <gtest/gtest.h>

#include <QDesktopServices>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const bool kPrepared = (web::prepare(), true);  // the engine wants it before the application object

class WebPaneTest : public ::testing::Test {
 protected:
  WebPaneTest() {
    qputenv("ZARIM_DRIVE_C", folder_.path().toUtf8());
    pane_.resize(600, 400);
    pane_.show();
  }

  QString page(const QString& body) {
    const QString path = folder_.filePath(u"page.html"_s);
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write((u"<html><meta http-equiv='Content-Type' content='text/html; charset=iso-8859-1'><body>"_s +
                body + u"</body></html>"_s)
                   .toLatin1());
    return path;
  }
  /// Waits until the pane shows a colour somewhere. A picture of it is taken now and then only, since taking
  /// one holds up the drawing.
  bool shows(QColor color) {
    for (int attempt = 0; attempt < 50; ++attempt) {
      QTest::qWait(100);
      const QImage image = pane_.grab().toImage();
      for (int y = 0; y < image.height(); y += 4)
        for (int x = 0; x < image.width(); x += 4)
          if (image.pixelColor(x, y) == color) return true;
    }
    return false;
  }

  QTemporaryDir folder_;
  web::WebPane pane_;
};

TEST_F(WebPaneTest, ShowsAccentsOfOldTagSoupFindsThemAndRunsNoScripts) {
  pane_.navigate(u"c:\\nothing.html"_s);
  EXPECT_FALSE(pane_.waitForLoad());
  pane_.navigate(
      page(u"<TABLE><tr><td><b><font id=x>Orçamento: </b>Ação</font></td><tr><td>Pão<P></table>"
           "<script>document.getElementById('x').innerText='Outra'</script>"_s));
  EXPECT_TRUE(pane_.waitForLoad());
  const QString text = pane_.pageText();
  EXPECT_TRUE(text.contains(u"Orçamento: Ação"_s) && text.contains(u"Pão"_s)) << text.toStdString();
  EXPECT_TRUE(pane_.find(u"ORÇAMENTO"_s));
  EXPECT_FALSE(pane_.find(u"desconto"_s) || pane_.find({}));
  pane_.navigate({});
  EXPECT_TRUE(pane_.waitForLoad());
  EXPECT_EQ(pane_.pageText(), QString());
}

TEST_F(WebPaneTest, LoadsPicturesOfDrivePathsWhateverTheirCase) {
  QImage image(40, 40, QImage::Format_RGB32);
  image.fill(Qt::red);
  ASSERT_TRUE(image.save(folder_.filePath(u"Foto Ação.png"_s)));
  pane_.navigate(page(u"<img src='C:\\FOTO AÇÃO.png'>"_s));
  EXPECT_TRUE(shows(Qt::red));
}

TEST_F(WebPaneTest, ShrinksWidePagesUntilTheUserZooms) {
  const QString wide = page(u"<table width='800'><tr><td>largo</td></tr></table>"_s);
  pane_.navigate(wide);
  ASSERT_TRUE(pane_.waitForLoad());
  EXPECT_TRUE(
      QTest::qWaitFor([this] { return pane_.zoom() < 0.8 && pane_.contentWidth() == pane_.width(); }));
  EXPECT_GT(pane_.zoom(), 0.65);
  pane_.setZoom(1.5);
  pane_.navigate(wide);
  ASSERT_TRUE(pane_.waitForLoad());
  EXPECT_DOUBLE_EQ(pane_.zoom(), 1.5);
}

TEST_F(WebPaneTest, PrintsTheWholeWidthOnA4WithVectors) {
  QString rows;
  for (int i = 0; i < 90; ++i)
    rows += u"<tr><td width=50%>esquerda%1</td><td align=right>direita%1</td></tr>"_s.arg(i);
  const QString pdf = folder_.filePath(u"out.pdf"_s);
  EXPECT_FALSE(pane_.printToFile(pdf));
  pane_.navigate(page(u"<table border='1' width='800' align='center'>"_s + rows + u"</table>"_s));
  ASSERT_TRUE(pane_.printToFile(pdf));
  QProcess tool;
  tool.start(u"pdftotext"_s, {u"-bbox"_s, pdf, u"-"_s});
  ASSERT_TRUE(tool.waitForFinished());
  const QString words = QString::fromUtf8(tool.readAllStandardOutput());
  const QRegularExpression word(
      u"xMin=\"([-\\d.]+)\" yMin=\"[-\\d.]+\" xMax=\"([-\\d.]+)\"[^>]*>(esquerda|direita)"_s);
  int seen = 0;
  for (auto all = word.globalMatch(words); all.hasNext(); ++seen) {
    const auto match = all.next();
    EXPECT_GE(match.captured(1).toDouble(), 0.0);
    EXPECT_LE(match.captured(2).toDouble(), 595.3);  // an A4 page is 595.3 points wide
  }
  EXPECT_EQ(seen, 180);
}

class Opened : public QObject {
  Q_OBJECT
 public:
  QList<QUrl> urls;
  Q_INVOKABLE void take(const QUrl& url) { urls << url; }
};

TEST_F(WebPaneTest, LinksOpenOutside) {
  static Opened opened;  // outlives the handler
  QDesktopServices::setUrlHandler(u"http"_s, &opened, "take");
  const QString link =
      u"<a TARGET='%1' href='http://example.invalid/%1'><div style='height:380px;background:red'>x</div></a>"_s;
  for (const QString& target : {u"_blank"_s, u"_self"_s}) {
    pane_.navigate(page(link.arg(target)));
    ASSERT_TRUE(pane_.waitForLoad());
    ASSERT_TRUE(shows(Qt::red));
    const auto before = opened.urls.size();
    ASSERT_TRUE(QTest::qWaitFor([&] {
      QTest::mouseClick(pane_.childAt(100, 100), Qt::LeftButton, {}, QPoint(100, 100));
      QTest::qWait(100);
      return opened.urls.size() > before;
    }));
    EXPECT_EQ(opened.urls.last().path(), u"/"_s + target);
    EXPECT_TRUE(pane_.pageText().contains(u'x'));
  }
  QDesktopServices::unsetUrlHandler(u"http"_s);
}

}  // namespace

#include "web_pane_test.moc"
