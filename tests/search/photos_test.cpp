#include "platform/forms/process.h"
#include "platform/web/web_pane.h"
#include "search/frmBROWSE_PRODUTO.h"
#include "search/frmBROWSE_Prototipo.h"
#include "search/frmImagem.h"
#include "search_test.h"

using namespace Qt::StringLiterals;

// Photos of the search screens: of the current row, its four views, in real size, and the page of pictures.
namespace {

const bool kPrepared = (web::prepare(), true);  // the engine wants it before the application object

bool showsRed(QWidget& pane) {
  const QImage image = pane.grab().toImage();
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixelColor(x, y) == QColor(Qt::red)) return true;
  return false;
}

class Photos : public SearchTest {
 protected:
  Photos() {
    support::fillBasics(databasePath());
    contexto().NomeUsuarioAtual = u"MARIA"_s;
  }
  static QString first(const QString& name) { return contexto().PathImagens + name + contexto().ExtImagens; }
  static QString second(const QString& name) {
    return contexto().PathImagens2 + name + contexto().ExtImagens2;
  }
};

TEST_F(Photos, FollowTheClickedRowAndTheFourButtons) {
  picture(first(u"CX-100"_s), 100);
  picture(second(u"CX-100"_s), 200);
  picture(second(u"CX-100_3"_s), 203);
  picture(second(u"BOM-1"_s), 300);
  open<frmBROWSE_PRODUTO>([&](frmBROWSE_PRODUTO& screen) {
    screen.Option1->click();
    support::click(screen.cmdPesquisa);
    const auto shown = [&] { return screen.Image1->foto().width(); };
    const std::array buttons{screen.cmdImagem1_1, screen.cmdImagem1_2, screen.cmdImagem1_3,
                             screen.cmdImagem1_4};
    support::clickRow(screen.Flex, 2);
    EXPECT_EQ(shown(), 300) << "only in the second folder";
    support::clickRow(screen.Flex, 3);
    EXPECT_EQ(shown(), 10) << "in none";
    support::clickRow(screen.Flex, 1);
    EXPECT_EQ(shown(), 100) << "the first folder wins";

    for (const auto& [button, width] :
         {std::pair{2, 203}, std::pair{1, 10}, std::pair{3, 10}, std::pair{0, 100}}) {
      support::click(buttons[static_cast<std::size_t>(button)]);
      EXPECT_EQ(shown(), width);
      for (int i = 0; i < 4; ++i) EXPECT_EQ(buttons[static_cast<std::size_t>(i)]->isChecked(), i == button);
    }
    EXPECT_EQ(pesquisa::lembrancas().ArqImagem, first(u"CX-100"_s));
  });
}

TEST_F(Photos, OfPrototypesGoByTheirNumber) {
  picture(first(u"202_2"_s), 222);
  open<frmBROWSE_Prototipo>([&](frmBROWSE_Prototipo& screen) {
    screen.Option1->click();
    support::click(screen.cmdPesquisa);
    support::clickRow(screen.Flex, 2);
    support::click(screen.cmdImagem1_2);
    EXPECT_EQ(screen.Image1->foto().width(), 222);
  });
}

TEST_F(Photos, OpenInTheirRealSizeAndReloadOnAClick) {
  picture(first(u"CX-100"_s), 640);
  open<frmBROWSE_PRODUTO>([&](frmBROWSE_PRODUTO& screen) {
    screen.Option1->click();
    support::click(screen.cmdPesquisa);
    support::clickRow(screen.Flex, 1);
    script.modal([&](forms::Form& opened) {
      auto& image = dynamic_cast<frmImagem&>(opened);
      EXPECT_EQ(image.windowTitle(), u"Zarim 1.2 - Visualização de Produtos (/MARIA)"_s);
      EXPECT_EQ(image.picNormal().width(), 640);
      EXPECT_EQ(image.Picture1->width(), 640);
      picture(first(u"CX-100"_s), 320);
      support::click(image.Picture1);
      EXPECT_EQ(image.picNormal().width(), 320);
      support::key(&image, Qt::Key_Escape);
    });
    QTest::mouseDClick(screen.Image1, Qt::LeftButton);
  });
}

TEST_F(Photos, AFileThatIsGoneLeavesTheViewerEmptyAndFailsWhenItIsReloaded) {
  script.box(u"Erro em tempo de execução '53':\n\nArquivo não encontrado: c:\\zarim\\imagens\\CX-100.jpg"_s)
      .expectEnd(1);
  pesquisa::lembrancas().ArqImagem2 = first(u"CX-100"_s);
  const auto enlarge = [this](frmBROWSE_PRODUTO& screen) {
    script.modal([](forms::Form& opened) {
      auto& image = dynamic_cast<frmImagem&>(opened);
      EXPECT_TRUE(image.picNormal().isNull());
      support::click(image.Picture1);
    });
    QTest::mouseDClick(screen.Image1, Qt::LeftButton);
  };
  EXPECT_THROW(open<frmBROWSE_PRODUTO>(enlarge), forms::Ended);
}

TEST_F(Photos, APageOfPicturesIsWrittenOnEnteringTheTabAndRemovedOnLeavingIt) {
  picture(first(u"CX-100"_s), 120);
  picture(first(u"BOM-1W2"_s), 60);
  const QString page = contexto().PathDocs + u"pesquisa_produtos.html"_s;
  open<frmBROWSE_PRODUTO>([&](frmBROWSE_PRODUTO& screen) {
    screen.Option2->click();
    support::click(screen.cmdPesquisa);
    EXPECT_FALSE(files::exists(page));
    screen.SSTab1->setCurrentIndex(1);
    ASSERT_TRUE(files::exists(page));
    const QString html = QString::fromLatin1(files::readAll(page));
    const QString rowStyle =
        u"<TR style='FONT-WEIGHT: bold; FONT-SIZE: 8pt; FONT-FAMILY: Tahoma; FONT-VARIANT: small'><TD "
        u"width=30%>"
        u"<P ALIGN=Center><IMG SRC='"_s;
    EXPECT_TRUE(html.startsWith(u"<TABLE BORDER CELLPADDING='2'>"_s + rowStyle + first(u"BOM-1W2"_s) +
                                u"'></TD><TD width=30%>BOM-1</TD><TD width=40%>Bombom</TD></TR>"_s +
                                rowStyle + contexto().ArqSemImagem +
                                u"'></TD><TD width=30%>CARD-A</TD><TD width=40%>Cartão impresso</TD></TR>"_s))
        << html.toStdString();
    EXPECT_TRUE(html.endsWith(u"</TR></TABLE>"_s));
    EXPECT_EQ(html, screen.MontaDetalheHTML());

    ASSERT_TRUE(screen.WebBrowser1->waitForLoad());
    EXPECT_TRUE(screen.WebBrowser1->pageText().contains(u"Cartão impresso"_s));
    EXPECT_TRUE(QTest::qWaitFor([&] { return showsRed(*screen.WebBrowser1); })) << "the pictures are there";
    screen.SSTab1->setCurrentIndex(0);
    EXPECT_FALSE(files::exists(page));
  });
  open<frmBROWSE_Prototipo>([&](frmBROWSE_Prototipo& screen) {
    screen.SSTab1->setCurrentIndex(1);
    EXPECT_EQ(files::readAll(contexto().PathDocs + u"pesquisa_prototipo.html"_s),
              QByteArray("<TABLE BORDER CELLPADDING='2'></TABLE>"));
    screen.SSTab1->setCurrentIndex(0);
    screen.Option1->click();
    support::click(screen.cmdPesquisa);
    EXPECT_TRUE(
        screen.MontaDetalheHTML().contains(u"<TD width=30%>202</TD><TD width=40%>Lata dourada</TD>"_s));
  });
}

}  // namespace
