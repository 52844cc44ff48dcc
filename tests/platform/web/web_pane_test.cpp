#include <QProcess>
#include <QRegularExpression>
#include <QTimer>
#include <QWindow>

#include "platform/web/printing.h"
#include "web_case.h"

using namespace Qt::StringLiterals;

namespace {

const bool kPrepared = (web::prepare(), true);  // the engine wants it before the application object

using WebPaneTest = PaneCase;

TEST_F(WebPaneTest, ShowsAccentsOfOldTagSoupAndFindsThem) {
  pane_.navigate(u"c:\\nothing.html"_s);
  EXPECT_FALSE(pane_.waitForLoad());
  EXPECT_EQ(pane_.pageText(), u"O arquivo não foi encontrado:\nc:\\nothing.html"_s);
  pane_.navigate(
      page(u"<TABLE><tr><td><b><font id=x>Orçamento: </b>Ação</font></td><tr><td>Pão<P></table>"_s));
  EXPECT_TRUE(pane_.waitForLoad());
  const QString text = pane_.pageText();
  EXPECT_TRUE(text.contains(u"Orçamento: Ação"_s)) << text.toStdString();
  EXPECT_TRUE(text.contains(u"Pão"_s)) << text.toStdString();
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

TEST_F(WebPaneTest, ShrinksWidePagesWhileTheyStayReadableUntilTheUserZooms) {
  const QString wide = u"<table width='%1'><tr><td>largo</td></tr></table>"_s;
  for (const auto& [width, least, most] : {std::tuple{800, 0.7, 0.8}, {3000, 0.7, 0.7}, {300, 1.0, 1.0}}) {
    pane_.navigate(page(wide.arg(width)));
    ASSERT_TRUE(pane_.waitForLoad());
    EXPECT_TRUE(QTest::qWaitFor([&] { return pane_.zoom() >= least && pane_.zoom() <= most; })) << width;
  }
  pane_.setZoom(1.5);
  pane_.navigate(page(wide.arg(800)));
  ASSERT_TRUE(pane_.waitForLoad());
  EXPECT_DOUBLE_EQ(pane_.zoom(), 1.5);
}

TEST_F(WebPaneTest, PdfIsReadFoundZoomedAndMarkedWithoutTheEngine) {
  pane_.navigate(pdf({u"Primeira pagina"_s, u"Segunda pagina"_s, u"Terceira"_s}));
  ASSERT_TRUE(pane_.waitForLoad());
  EXPECT_TRUE(pane_.pageText().contains(u"Terceira"_s));
  EXPECT_EQ(pane_.findChild<QWidget*>(u"QWebEngineView"_s), nullptr);
  EXPECT_GE(pane_.zoom(), 0.7);
  const QImage before = pane_.grab().toImage();
  EXPECT_FALSE(pane_.find(u"quarta"_s));
  EXPECT_TRUE(pane_.find(u"SEGUNDA"_s));
  QTest::qWait(500);
  EXPECT_NE(pane_.grab().toImage(), before);
  pane_.zoomIn();
  const double zoomed = pane_.zoom();
  pane_.navigate(pdf({u"Outra"_s}));
  EXPECT_TRUE(pane_.pageText().contains(u"Outra"_s));
  EXPECT_DOUBLE_EQ(pane_.zoom(), zoomed);
  pane_.navigate(file(u"estragado.pdf"_s, "%PDF-1.4 nada"));
  EXPECT_FALSE(pane_.waitForLoad());
  EXPECT_TRUE(pane_.pageText().contains(u"não pôde ser mostrado"_s));
}

TEST_F(WebPaneTest, PrintsTheWholeWidthOnA4WithVectors) {
  QString rows;
  for (int i = 0; i < 90; ++i)
    rows += u"<tr><td width=50%>esquerda%1</td><td align=right>direita%1</td></tr>"_s.arg(i);
  const QString out = folder_.filePath(u"out.pdf"_s);
  EXPECT_FALSE(pane_.printToFile(out));
  pane_.navigate(page(u"<table border='1' width='800' align='center'>"_s + rows + u"</table>"_s));
  ASSERT_TRUE(pane_.printToFile(out));
  QProcess tool;
  tool.start(u"pdftotext"_s, {u"-bbox"_s, out, u"-"_s});
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

TEST_F(WebPaneTest, PictureServerThatNeverAnswersHoldsNothingUpAndIsNamed) {
  PictureServer silent, good;
  silent.silent = true;
  const QString out = folder_.filePath(u"out.pdf"_s);
  pane_.navigate(page(u"<p>Orçamento</p><img src='%1'><img src='%2' width=200 height=200>"_s.arg(
      silent.address(u"logo.jpg"_s), good.address(u"foto.jpg"_s))));
  QElapsedTimer clock;
  clock.start();
  // A close of the window from outside waits until the text is there.
  QTimer::singleShot(200, pane_.windowHandle(), &QWindow::close);
  EXPECT_EQ(pane_.pageText().trimmed(), u"Orçamento"_s);
  EXPECT_TRUE(pane_.isVisible());
  EXPECT_TRUE(QTest::qWaitFor([&] { return !pane_.isVisible(); }));
  pane_.show();
  EXPECT_TRUE(pane_.printToFile(out));
  EXPECT_LT(clock.elapsed(), 20'000);
  EXPECT_EQ(pane_.missingPictures(), QStringList{silent.address(u"logo.jpg"_s)});
  EXPECT_TRUE(shows(Qt::red));
}

/// A printing system of its own in front of the machine's.
class Spooler : public PaneCase {
 protected:
  Spooler() : path_(qgetenv("PATH")) { qputenv("PATH", folder_.path().toUtf8()); }
  ~Spooler() override { qputenv("PATH", path_); }
  void install(const QByteArray& script) {
    const QString lp = file(u"lp"_s, "#!/bin/sh\n" + script);
    QFile::setPermissions(lp, QFile::ReadOwner | QFile::ExeOwner);
  }

 private:
  QByteArray path_;
};

TEST_F(Spooler, TakesTheJobByTheDocumentsNameOrRefusesWithoutAWord) {
  const QString document = pdf({u"Orcamento"_s});
  const auto print = [&] { return web::printPdf(document, u"laser"_s, u"orca_cliente_000003"_s); };
  install("echo \"$@\" >\"$ZARIM_DRIVE_C/job\"; echo request id is laser-1");
  testing::internal::CaptureStdout();
  EXPECT_EQ(print(), web::Printed::Sent);
  install("echo lp: no >&2; exit 1");
  EXPECT_EQ(print(), web::Printed::Refused);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  QFile job(folder_.filePath(u"job"_s));
  ASSERT_TRUE(job.open(QIODevice::ReadOnly));
  EXPECT_EQ(QString::fromUtf8(job.readAll()).trimmed(), u"-d laser -t orca_cliente_000003 -- "_s + document);
}

}  // namespace
