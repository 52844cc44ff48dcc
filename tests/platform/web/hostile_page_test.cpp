#include <QDesktopServices>
#include <QDir>
#include <QElapsedTimer>
#include <QGraphicsView>

#include "platform/web/pictures.h"
#include "web_case.h"

using namespace Qt::StringLiterals;

// A document is not trusted, as if nothing of its data had been escaped.
namespace {

class Hostile : public PaneCase {
 protected:
  /// Everything that data in a document could try, with %1 as a server that would learn of it.
  QString attack() {
    return uR"(<p id=x>Orçamento 3</p><img src='%1picture.png'>
<script>document.getElementById('x').innerText='tomado';new Image().src='%1script'</script>
<script src='%1script.js'></script><img src=x onerror="new Image().src='%1onerror'">
<svg onload="new Image().src='%1svg'"></svg><a href="javascript:new Image().src='%1href'">y</a>
<meta http-equiv='refresh' content='0;url=%1refresh'><meta http-equiv='refresh' content='0;url=file:///etc/passwd'>
<iframe src='file:///etc/passwd'></iframe><iframe src='%1frame'></iframe><iframe srcdoc="<script src='%1doc'></script>"></iframe>
<object data='%1object'></object><object data='file:///etc/passwd'></object><embed src='%1embed'>
<link rel=stylesheet href='%1style.css'><style>@import url('%1import.css');@font-face{font-family:f;src:url('%1font')}
p{font-family:f}</style><link rel=preload as=script href='%1preload'><link rel=prefetch href='%1prefetch'>
<link rel=preconnect href='%2'><link rel=dns-prefetch href='%2'>
<link rel=icon href='%1icon'><video src='%1video' autoplay poster='c:\secret.txt'></video><audio src='%1audio' autoplay></audio>
<base href='%1base/'><img src='relative.png'><form action='%1form'><input type=image src='c:\page.html'></form>
<img src='file:///etc/passwd'><img src='c:\..\..\etc\passwd'><p>fim</p>)"_s.arg(server_.address({}),
                                                                                other_.address({}));
  }
  void expectItself() {
    ASSERT_TRUE(pane_.stands());
    QTest::qWait(500);
    const QString shown = pane_.pageText();
    EXPECT_TRUE(shown.contains(u"Orçamento 3"_s)) << shown.toStdString();
    EXPECT_TRUE(shown.contains(u"fim"_s)) << shown.toStdString();
    EXPECT_FALSE(shown.contains(u"root:"_s) || shown.contains(u"tomado"_s)) << shown.toStdString();
    EXPECT_EQ(other_.connections, 0);
    EXPECT_EQ(server_.asked, QStringList{u"/picture.png"_s});
  }

  PictureServer server_, other_;
};

TEST_F(Hostile, DocumentFetchesPicturesAlone) {
  pane_.navigate(page(attack()));
  expectItself();
}

// Neither what nests, nor what repeats, nor a number takes all of the machine: it is shown, or a sentence is.
TEST_F(Hostile, DocumentOfAnyShapeIsLaidOutInBounds) {
  const auto times = [](const QString& text, int count) { return text.repeated(count); };
  QElapsedTimer clock;
  for (
      const QString& body :
      {times(u"<div><b>"_s, 10'000), times(u"<table><tr><td>"_s, 1'000),
       times(u"<b><i><u><font size=1>"_s, 9'000) + times(u"</b>"_s, 9'000),
       times(u"<font size=1>"_s, 300) + times(u"<p>x"_s, 30'000), times(u"<b><table></b></table>"_s, 10'000),
       u"<table><tr><td colspan=999999999 rowspan=999999999 width=999999999 height=999999999>x</table>"_s,
       u"<font style='font-size:99999999pt'>x</font><font size=999999999>x</font><img src=x width=9e9 height=9e9>"_s,
       times(u"<td>"_s, 50'000) + times(u"</table>"_s, 50'000), u"<table><tr>"_s + times(u"<td>"_s, 5'000),
       times(u"<"_s, 100'000), times(u"&"_s, 100'000), QString(u"<!--"_s), QString(u"<a href='"_s),
       QString(u"<style>"_s)}) {
    clock.start();
    pane_.navigate(page(u"<p>começo</p>"_s + body));
    EXPECT_TRUE(pane_.pageText().contains(pane_.stands() ? u"começo"_s : u"não pôde ser mostrado"_s))
        << body.left(40).toStdString();
    pane_.grab();
    EXPECT_LT(clock.elapsed(), 5'000) << body.left(40).toStdString();
  }
}

/// Peak memory of this process in MB.
double peak() {
  QFile status(u"/proc/self/status"_s);
  EXPECT_TRUE(status.open(QIODevice::ReadOnly));
  const QByteArray all = status.readAll();
  return all.mid(all.indexOf("VmHWM:") + 6, 20).trimmed().split(' ').first().toDouble() / 1024;
}

QByteArray pdfOf(const QByteArray& page, const QByteArray& objects) {
  return "%PDF-1.4\n1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj\n2 0 obj<</Type/Pages/Count 1/Kids[3 0 "
         "R]>>endobj\n3 0 obj<</Type/Page/Parent 2 0 R" +
         page + ">>endobj\n" + objects + "trailer<</Root 1 0 R>>\n%%EOF\n";
}

TEST_F(Hostile, PdfPageOfAnySizeIsAPictureThatMemoryHolds) {
  pane_.navigate(file(u"x.pdf"_s, pdfOf("/MediaBox[0 0 14400 14400]", {})));
  ASSERT_TRUE(pane_.stands());
  pane_.setZoom(4.0);
  const double before = peak();
  EXPECT_FALSE(pane_.grab().isNull());
  EXPECT_LT(peak() - before, 600);
}

TEST_F(Hostile, PdfWhoseFormsStandInEachOtherWithoutEndIsNotShown) {
  QByteArray forms;
  const QByteArray drawn = QByteArray("/F Do ").repeated(20);
  for (int form = 4; form < 24; ++form)
    forms += QByteArray::number(form) +
             " 0 obj<</Type/XObject/Subtype/Form/BBox[0 0 600 800]/Resources<</XObject<</F " +
             QByteArray::number(form + 1) + " 0 R>>>>/Length " + QByteArray::number(drawn.size()) +
             ">>stream\n" + drawn + "\nendstream endobj\n";
  forms +=
      "24 0 obj<</Type/XObject/Subtype/Form/BBox[0 0 600 800]/Length 17>>stream\n0 0 600 800 re f  "
      "\nendstream endobj\n"
      "25 0 obj<</Length 5>>stream\n/F Do\nendstream endobj\n";
  const double before = peak();
  QElapsedTimer clock;
  clock.start();
  pane_.navigate(file(
      u"x.pdf"_s, pdfOf("/MediaBox[0 0 600 800]/Contents 25 0 R/Resources<</XObject<</F 4 0 R>>>>", forms)));
  EXPECT_FALSE(pane_.stands());
  EXPECT_TRUE(pane_.pageText().contains(u"não pôde ser mostrado"_s));
  EXPECT_LT(clock.elapsed(), 10'000);
  EXPECT_LT(peak() - before, 200);
}

/// Notes what would be opened in the system's own programs.
class Opened : public QObject {
  Q_OBJECT
 public:
  Opened() {
    for (const QString& scheme : kSchemes) QDesktopServices::setUrlHandler(scheme, this, "take");
  }
  ~Opened() override {
    for (const QString& scheme : kSchemes) QDesktopServices::unsetUrlHandler(scheme);
  }
  Q_INVOKABLE void take(const QUrl& url) { urls << url.toString(); }

  QStringList urls;
  const QStringList kSchemes{u"http"_s, u"https"_s, u"mailto"_s, u"file"_s,  u"ftp"_s, u"smb"_s,
                             u"c"_s,    u"data"_s,  u"ssh"_s,    u"about"_s, u"tel"_s, u"javascript"_s};
};

TEST_F(Hostile, LinksOpenTheWebPlainMailAndPicturesOfThePictureFolders) {
  const QString pictures = folder_.filePath(u"fotos"_s);
  const QString other = folder_.filePath(u"docs"_s);
  ASSERT_TRUE(QDir().mkpath(pictures) && QDir().mkpath(other));
  for (const QString& name : {u"fotos/VL-301_g.jpg"_s, u"fotos/calc.exe"_s, u"docs/secret.jpg"_s})
    file(name, "x");
  QFile::link(other + u"/secret.jpg"_s, pictures + u"/link.jpg"_s);
  const web::PictureFolders folders({u"c:\\fotos\\"_s, u"http://127.0.0.1/web/"_s, QString()});
  const std::pair<QString, bool> cases[] = {
      {u"http://zarim.example/fotos/VL-301_g.jpg"_s, true},
      {u"https://zarim.example/"_s, true},
      {u"mailto:ana@correio.example?subject=Pedido"_s, true},
      {u"mailto:a@b.example?subject=x&attach=/etc/passwd"_s, false},
      {u"mailto:a@b.example?Attachment=/etc/passwd"_s, false},
      {u"mailto:a@b.example?subject=x%26ATTACH=/etc/passwd"_s, false},
      {u"mailto:a@b.example?x=1&%2561ttach=/etc/passwd"_s, false},
      {u"mailto:a@b.example?subject=x',attachment='/etc/passwd"_s, false},
      {u"c:\\fotos\\vl-301_G.jpg"_s, true},
      {u"file://"_s + pictures + u"/VL-301_g.jpg"_s, true},
      {u"c:\\fotos\\calc.exe"_s, false},
      {u"c:\\fotos\\link.jpg"_s, false},
      {u"c:\\fotos\\..\\docs\\secret.jpg"_s, false},
      {u"c:\\docs\\secret.jpg"_s, false},
      {u"file:///etc/passwd"_s, false},
      {u"file://server/share/calc.exe"_s, false},
      {u"smb://server/share"_s, false},
      {u"ftp://server/x"_s, false},
      {u"ssh://server"_s, false},
      {u"tel:123"_s, false},
      {u"data:text/html,x"_s, false},
      {u"javascript:alert(1)"_s, false},
      {u"about:blank"_s, false}};
  for (const auto& [address, opens] : cases) {
    Opened opened;
    web::openLink(web::addressOf(address, other), folders);
    EXPECT_EQ(opened.urls.size(), opens ? 1 : 0) << address.toStdString();
  }
}

TEST_F(Hostile, LinkOfADocumentOpensOutsideAndThePaneStays) {
  Opened opened;
  pane_.navigate(
      page(u"<a TARGET='_self' href='http://example.invalid/a&amp;b'>llllllllllllllllllllllllllllll</a>"_s));
  ASSERT_TRUE(pane_.stands());
  auto* viewport = pane_.findChild<QGraphicsView*>()->viewport();
  QTest::mouseClick(viewport, Qt::LeftButton, {}, QPoint(40, 16));
  EXPECT_EQ(opened.urls, QStringList{u"http://example.invalid/a&b"_s});
  EXPECT_TRUE(pane_.pageText().contains(u'l'));
}

}  // namespace

#include "hostile_page_test.moc"
