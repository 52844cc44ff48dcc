#include <QApplication>
#include <QClipboard>
#include <QGraphicsView>
#include <QProcess>
#include <QRegularExpression>
#include <QScrollBar>

#include "platform/web/document_view.h"
#include "web_case.h"

using namespace Qt::StringLiterals;

namespace {

using WebPaneTest = PaneCase;

TEST_F(WebPaneTest, ShowsAccentsOfOldTagSoupAndFindsThem) {
  pane_.navigate(u"c:\\nothing.html"_s);
  EXPECT_FALSE(pane_.stands());
  EXPECT_EQ(pane_.pageText(), u"O arquivo não foi encontrado:\nc:\\nothing.html"_s);
  pane_.navigate(
      page(u"<TABLE><tr><td><b><font id=x>Orçamento: </b>Ação&nbsp</font></td><tr><td>Pão<P></table>"_s));
  EXPECT_TRUE(pane_.stands());
  EXPECT_EQ(pane_.pageText().simplified(), u"Orçamento: Ação Pão"_s);
  EXPECT_TRUE(pane_.find(u"ORÇAMENTO"_s));
  EXPECT_FALSE(pane_.find(u"desconto"_s) || pane_.find({}));
  pane_.navigate({});
  EXPECT_TRUE(pane_.stands());
  EXPECT_EQ(pane_.pageText(), QString());
}

// What was typed in lines stands in lines; how the document's own text is broken is no matter.
TEST_F(WebPaneTest, ShowsTypedLinesAsLinesAndBreaksAWordOfSeventyLetters) {
  const QString word(70, u'm');
  pane_.navigate(
      page(u"<table width=200><tr><td>50% de sinal\r\n\r\n50% na entrega\r\n</td></tr>\r\n<tr><td>\r\n"
           "      uma linha\r\n      só, LINHA</td></tr><tr><td>%1</td></tr></table>"_s.arg(word)));
  EXPECT_EQ(pane_.pageText().trimmed().replace(u" \n"_s, u"\n"_s),
            u"50% de sinal\n\n50% na entrega\numa linha só, LINHA\n"_s + word);
  EXPECT_LT(pane_.findChild<QGraphicsView*>()->sceneRect().width(), 820);
  pane_.findChild<QGraphicsView*>()->setFocus();
  EXPECT_TRUE(pane_.find(u"li"_s) && pane_.find(u"linha"_s)) << "typed on, it is the same place";
  QTest::keySequence(pane_.focusWidget(), QKeySequence::Copy);
  EXPECT_EQ(QApplication::clipboard()->text(), u"linha"_s);
}

TEST_F(WebPaneTest, LoadsPicturesOfDrivePathsWhateverTheirCase) {
  QImage image(40, 40, QImage::Format_RGB32);
  image.fill(Qt::red);
  ASSERT_TRUE(image.save(folder_.filePath(u"Foto Ação #1.png"_s)));
  pane_.navigate(page(u"<img src='C:\\FOTO AÇÃO #1.png'>"_s));
  EXPECT_TRUE(shows(Qt::red));
}

TEST_F(WebPaneTest, ShrinksWidePagesWhileTheyStayReadableUntilTheUserZooms) {
  const QString wide = u"<table width='%1'><tr><td>largo</td></tr></table>"_s;
  for (const auto& [width, least, most] : {std::tuple{800, 0.7, 0.75}, {3000, 0.7, 0.7}}) {
    pane_.navigate(page(wide.arg(width)));
    ASSERT_TRUE(pane_.stands());
    EXPECT_TRUE(pane_.zoom() >= least && pane_.zoom() <= most) << width << ' ' << pane_.zoom();
  }
  pane_.resize(1000, 400);
  pane_.navigate(page(wide.arg(800)));
  EXPECT_DOUBLE_EQ(pane_.zoom(), 1.0);
  pane_.setZoom(1.5);
  pane_.navigate(page(wide.arg(800)));
  ASSERT_TRUE(pane_.stands());
  EXPECT_DOUBLE_EQ(pane_.zoom(), 1.5);
}

TEST_F(WebPaneTest, LongDocumentIsReadableBeforeAllOfItIsLaidOut) {
  QString body;
  for (int line = 1; line <= 3000; ++line) body += u"<p>linha %1 de muitas</p>"_s.arg(line);
  pane_.navigate(page(body));
  ASSERT_TRUE(pane_.stands());
  auto* view = pane_.findChild<QGraphicsView*>();
  const auto* bar = view->verticalScrollBar();
  QApplication::processEvents();
  const QImage first = view->viewport()->grab().toImage();
  const int early = bar->maximum();
  ASSERT_TRUE(QTest::qWaitFor([&] { return bar->maximum() > 20 * early; })) << "the rest goes on by itself";
  EXPECT_EQ(bar->value(), bar->minimum());
  EXPECT_EQ(view->viewport()->grab().toImage(), first) << "what was read stays where it was";

  const auto marked = [view] {
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, QPoint(20, 12));
    QApplication::clipboard()->clear();
    QTest::keyClick(view, Qt::Key_C, Qt::ControlModifier);
    return QApplication::clipboard()->text() == u"linha";
  };
  EXPECT_TRUE(QTest::qWaitFor(marked)) << "then its words can be marked";

  pane_.navigate(page(body + u"<p>fim</p>"_s));
  EXPECT_TRUE(pane_.find(u"linha 2999"_s)) << "a search doesn't wait for the rest";
  EXPECT_GT(pane_.findChild<QGraphicsView*>()->verticalScrollBar()->value(), 20 * early);
}

TEST_F(WebPaneTest, KeysOfTheScreenWorkAfterAClickIntoThePage) {
  struct Screen : QWidget {
    void keyPressEvent(QKeyEvent* event) override { keys << event->key(); }
    QList<int> keys;
  } screen;
  web::WebPane pane(&screen);
  pane.resize(600, 400);
  screen.show();
  pane.navigate(page(u"<p>Orçamento</p>"_s));
  ASSERT_TRUE(pane.stands());
  auto* view = pane.findChild<QGraphicsView*>();
  QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, QPoint(100, 20));
  for (const auto key : {Qt::Key_Escape, Qt::Key_F5, Qt::Key_Return}) QTest::keyClick(view, key);
  EXPECT_EQ(screen.keys, QList<int>({Qt::Key_Escape, Qt::Key_F5, Qt::Key_Return}));
}

TEST_F(WebPaneTest, PdfIsReadFoundZoomedAndMarked) {
  pane_.navigate(pdf({u"Primeira pagina"_s, u"Segunda pagina"_s, u"Terceira"_s}));
  ASSERT_TRUE(pane_.stands());
  EXPECT_TRUE(pane_.pageText().contains(u"Terceira"_s));
  EXPECT_GE(pane_.zoom(), 0.7);
  const QImage before = pane_.grab().toImage();
  EXPECT_FALSE(pane_.find(u"quarta"_s));
  EXPECT_TRUE(pane_.find(u"SEGUNDA"_s));
  EXPECT_NE(pane_.grab().toImage(), before);
  pane_.zoomIn();
  const double zoomed = pane_.zoom();
  pane_.navigate(pdf({u"Outra"_s}));
  EXPECT_TRUE(pane_.pageText().contains(u"Outra"_s));
  EXPECT_DOUBLE_EQ(pane_.zoom(), zoomed);
  pane_.navigate(file(u"estragado.pdf"_s, "%PDF-1.4 nada"));
  EXPECT_FALSE(pane_.stands());
  EXPECT_TRUE(pane_.pageText().contains(u"não pôde ser mostrado"_s));
}

/// What pdftotext says of a file's words: their page and edges in points.
class Paper : public PaneCase {
 protected:
  struct Word {
    int page;
    double left, top, right, bottom;
    QString text;
  };
  QList<Word> print(const QString& body) {
    const QString out = folder_.filePath(u"out.pdf"_s);
    pane_.navigate(page(body));
    EXPECT_TRUE(pane_.printToFile(out));
    QProcess tool;
    tool.start(u"pdftotext"_s, {u"-bbox"_s, out, u"-"_s});
    EXPECT_TRUE(tool.waitForFinished());
    const QRegularExpression mark(
        uR"re(<page |xMin="([-\d.]+)" yMin="([-\d.]+)" xMax="([-\d.]+)" yMax="([-\d.]+)">([^<]*))re"_s);
    QList<Word> words;
    int page = 0;
    for (auto all = mark.globalMatch(QString::fromUtf8(tool.readAllStandardOutput())); all.hasNext();) {
      const auto match = all.next();
      if (match.captured(5).isEmpty()) {
        ++page;
        continue;
      }
      const auto edge = [&match](int i) { return match.captured(i).toDouble(); };
      if (edge(2) < 28 || edge(4) > 841.9 - 17)
        continue;  // cut off: a page's edge went through its neighbour
      words.append({page, edge(1), edge(2), edge(3), edge(4), match.captured(5)});
    }
    return words;
  }
  static int pageOf(const QList<Word>& words, const QString& text) {
    const auto found = std::ranges::find(words, text, &Word::text);
    return found == words.end() ? 0 : found->page;
  }
  /// A table of rows that are a twelfth of a page high.
  static QString table(const QString& name, int rows) {
    QString made = u"<table border='1' width='800'>"_s;
    for (int row = 1; row <= rows; ++row)
      made += u"<tr><td>%1%2<br>x<br>x<br>x<br>x</td><td align=right>ate%1%2</td></tr>"_s.arg(name).arg(row);
    return made + u"</table><br>"_s;
  }
};

TEST_F(Paper, HoldsTheWholeWidthAndNumbersThePagesFromTheSecondOn) {
  EXPECT_FALSE(pane_.printToFile(folder_.filePath(u"out.pdf"_s)));
  pane_.setFoot(u"Orçamento 000123"_s);
  const QList<Word> words = print(table(u"a"_s, 30));
  int seen = 0;
  for (const Word& word : words) {
    EXPECT_GE(word.left, 28);
    EXPECT_LE(word.right, 595.3 - 28);  // an A4 page is 595.3 points wide
    seen += word.text.startsWith(u"atea"_s) ? 1 : 0;
  }
  EXPECT_EQ(seen, 30);
  const int last = words.last().page;
  EXPECT_GE(last, 3);
  EXPECT_EQ(words.last().text, QString::number(last));
  EXPECT_EQ(std::ranges::count(words, u"000123"_s, &Word::text), last - 1) << "not on the first";
  EXPECT_EQ(pageOf(words, u"000123"_s), 2);
}

TEST_F(Paper, CutsNoRowAndKeepsTogetherWhatBelongsTogether) {
  // Wherever the page happens to end, a low table stands on one, and a title row with the one after it.
  for (int before = 4; before <= 12; ++before) {
    const QList<Word> words =
        print(table(u"a"_s, before) + table(u"b"_s, 2) + table(u"c"_s, 6) + u"ultimo"_s);
    EXPECT_EQ(pageOf(words, u"b1"_s), pageOf(words, u"b2"_s)) << before;
    EXPECT_EQ(pageOf(words, u"c1"_s), pageOf(words, u"c2"_s)) << before;
    for (const Word& word : words) {
      EXPECT_LT(word.bottom, 841.9 - 42);
      const bool end = word.text.startsWith(u"ate"_s);
      EXPECT_EQ(word.page, end ? pageOf(words, word.text.sliced(3)) : word.page) << before;
    }
    EXPECT_EQ(pageOf(words, u"ultimo"_s), pageOf(words, u"c6"_s)) << before;
  }
}

TEST_F(Paper, RowHigherThanAPageGoesOnAndWhatFollowsUsesTheRestOfItsLastPage) {
  QString lines;
  for (int line = 1; line <= 90; ++line) lines += u"l%1<br>"_s.arg(line);
  const QList<Word> words = print(table(u"a"_s, 2) + u"<table border=1><tr><td>"_s + lines +
                                  u"</td></tr><tr><td>depois</td></tr></table>"_s);
  EXPECT_EQ(pageOf(words, u"l1"_s), 2);
  EXPECT_EQ(pageOf(words, u"l90"_s), 3);
  EXPECT_EQ(pageOf(words, u"depois"_s), 3);
  for (int line = 1; line <= 90; ++line)
    EXPECT_EQ(std::ranges::count(words, u"l%1"_s.arg(line), &Word::text), 1) << line;
}

TEST_F(WebPaneTest, PictureServerThatNeverAnswersHoldsNothingUpAndIsNamed) {
  PictureServer silent, good;
  silent.silent = true;
  pane_.navigate(page(u"<p>Orçamento</p><img src='%1'><img src='%2' width=200 height=200>"_s.arg(
      silent.address(u"logo.jpg"_s), good.address(u"foto.jpg"_s))));
  QElapsedTimer clock;
  clock.start();
  EXPECT_EQ(pane_.pageText().left(9), u"Orçamento"_s);
  EXPECT_LT(clock.elapsed(), 1'000);
  EXPECT_TRUE(pane_.printToFile(folder_.filePath(u"out.pdf"_s)));
  EXPECT_LT(clock.elapsed(), 10'000);
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
  pane_.navigate(page(u"Orçamento"_s));
  ASSERT_TRUE(pane_.stands());
  auto& view = *pane_.findChild<web::DocumentView*>();
  const auto print = [&] { return view.print(u"laser"_s, u"orca_cliente_000003"_s); };
  install("echo \"$@\" >\"$ZARIM_DRIVE_C/job\"; echo request id is laser-1");
  testing::internal::CaptureStdout();
  EXPECT_EQ(print(), web::Printed::Sent);
  install("echo lp: no >&2; exit 1");
  EXPECT_EQ(print(), web::Printed::Refused);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  QFile job(folder_.filePath(u"job"_s));
  ASSERT_TRUE(job.open(QIODevice::ReadOnly));
  EXPECT_TRUE(QString::fromUtf8(job.readAll()).startsWith(u"-d laser -t orca_cliente_000003 -- /"_s));
}

}  // namespace
