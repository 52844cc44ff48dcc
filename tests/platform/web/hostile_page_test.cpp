#include <QDesktopServices>
#include <QDir>
#include <QWebEngineHistory>
#include <QWebEngineView>

#include "platform/web/page.h"
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
    QTest::qWait(1500);
    const QString shown = pane_.pageText();
    EXPECT_TRUE(shown.contains(u"Orçamento 3"_s)) << shown.toStdString();
    EXPECT_TRUE(shown.contains(u"fim"_s)) << shown.toStdString();
    EXPECT_FALSE(shown.contains(u"root:"_s) || shown.contains(u"tomado"_s)) << shown.toStdString();
    EXPECT_EQ(other_.connections, 0);
    for (const QString& asked : std::as_const(server_.asked)) EXPECT_EQ(asked, u"/picture.png"_s);
  }

  PictureServer server_, other_;
};

TEST_F(Hostile, DocumentFetchesPicturesAloneAndStaysInThePaneWithAPdfBetween) {
  const QString hostile = page(attack());
  const QString harmless = pdf({u"Primeira"_s});
  pane_.navigate(hostile);
  ASSERT_TRUE(pane_.waitForLoad());
  expectItself();
  EXPECT_TRUE(server_.asked.contains(u"/picture.png"_s));
  // Changing to a PDF while the document still stands, and back by all that a user has.
  for (int round = 0; round < 2; ++round) {
    pane_.navigate(harmless);
    QTest::qWait(300);
    for (const auto button : {Qt::BackButton, Qt::ForwardButton})
      QTest::mouseClick(pane_.childAt(100, 100), button, {}, QPoint(100, 100));
    QTest::keyClick(pane_.focusProxy(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_TRUE(pane_.pageText().contains(u"Primeira"_s));
    pane_.navigate(hostile);
    expectItself();
  }
  const auto* view = pane_.findChild<QWebEngineView*>();
  ASSERT_NE(view, nullptr);
  EXPECT_FALSE(view->history()->canGoBack() || view->history()->canGoForward());
  EXPECT_FALSE(view->acceptDrops());
}

TEST_F(Hostile, PolicyStandsInFrontOfAllThatTheEngineReads) {
  const QByteArray ownBase = "<base href='" + server_.address(u"base/"_s).toLatin1() + "'>";
  // Comments that end sooner than they seem to, and what a parser takes for text in front of the type.
  for (const QByteArray& head : {"<!-->" + ownBase + "-->", "<!--->" + ownBase + "-->",
                                 "<!--x--!>" + ownBase + "-->", "\v" + ownBase, "<!--x-->" + ownBase}) {
    pane_.navigate(file(u"page.html"_s, head + "<!DOCTYPE html><html>corpo<img src='relative.png'></html>"));
    ASSERT_TRUE(pane_.waitForLoad());
    EXPECT_TRUE(server_.asked.isEmpty()) << head.toStdString();
  }
}

TEST_F(Hostile, PdfPageOfAnySizeIsAPictureThatMemoryHolds) {
  pane_.navigate(
      file(u"x.pdf"_s,
           "%PDF-1.4\n1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj\n2 0 obj<</Type/Pages/Count 1/Kids[3 0 "
           "R]>>endobj\n3 0 obj<</Type/Page/Parent 2 0 R/MediaBox[0 0 14400 14400]>>endobj\n"
           "trailer<</Root 1 0 R>>\n%%EOF\n"));
  ASSERT_TRUE(pane_.waitForLoad());
  pane_.setZoom(4.0);
  EXPECT_LT(14400 / 72.0 * pane_.logicalDpiX() * pane_.zoom(), 6001);
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

class OpenPage : public web::Page {
 public:
  using web::Page::Page;
  bool follows(const QString& address) {
    return acceptNavigationRequest(QUrl(address), NavigationTypeLinkClicked, true);
  }
};

TEST_F(Hostile, LinksOpenTheWebPlainMailAndPicturesOfThePictureFolders) {
  const QString pictures = folder_.filePath(u"fotos"_s);
  const QString other = folder_.filePath(u"docs"_s);
  ASSERT_TRUE(QDir().mkpath(pictures) && QDir().mkpath(other));
  for (const QString& name : {u"fotos/VL-301_g.jpg"_s, u"fotos/calc.exe"_s, u"docs/secret.jpg"_s})
    file(name, "x");
  QFile::link(other + u"/secret.jpg"_s, pictures + u"/link.jpg"_s);
  OpenPage shown({}, other, web::PictureFolders({u"c:\\fotos\\"_s, u"http://127.0.0.1/web/"_s, QString()}),
                 {}, nullptr);
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
    EXPECT_FALSE(shown.follows(address)) << "the pane stays";
    EXPECT_EQ(opened.urls.size(), opens ? 1 : 0) << address.toStdString();
  }
}

TEST_F(Hostile, LinkOfADocumentOpensOutsideWhereverItAims) {
  Opened opened;
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
    EXPECT_EQ(opened.urls.last(), u"http://example.invalid/"_s + target);
    EXPECT_TRUE(pane_.pageText().contains(u'x'));
  }
}

}  // namespace

#include "hostile_page_test.moc"
