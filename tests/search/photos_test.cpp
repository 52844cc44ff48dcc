#include <QLabel>
#include <QToolButton>

#include "platform/files/contents.h"
#include "platform/files/paths.h"
#include "platform/web/web_pane.h"
#include "search/frmBROWSE_PRODUTO.h"
#include "search/frmImagem.h"
#include "search_test.h"

using namespace Qt::StringLiterals;

// Photos of the search screens: of the current row, its four views, in real size, and the page of pictures.
namespace {

class Photos : public SearchTest {
 protected:
  static QString first(const QString& name) { return contexto().PathImagens + name + contexto().ExtImagens; }
  static QString second(const QString& name) {
    return contexto().PathImagens2 + name + contexto().ExtImagens2;
  }
};

TEST_F(Photos, FollowTheClickedRowAndTheFourButtonsAndOpenInTheirRealSize) {
  picture(first(u"CX-100"_s), 640);
  picture(second(u"CX-100"_s), 200);
  picture(second(u"CX-100_3"_s), 203);
  picture(second(u"BOM-1"_s), 300);
  files::write(first(u"CARD-A"_s), "damaged");
  open<frmBROWSE_PRODUTO>([&](frmBROWSE_PRODUTO& screen) {
    screen.Option1->click();
    support::click(screen.cmdPesquisa);
    EXPECT_TRUE(screen.Image1->foto().isNull());
    support::key(screen.cmdPesquisa, Qt::Key_Down);
    EXPECT_EQ(screen.Image1->foto().width(), 640);
    EXPECT_TRUE(pesquisa::lembrancas().pesquisa.BrowseOpcao.isEmpty()) << "keys look, they don't choose";
    for (const auto& [row, width] : {std::pair{2, 300}, {3, 10}, {5, 10}, {1, 640}}) {
      support::clickRow(screen.Flex, row);
      EXPECT_EQ(screen.Image1->foto().width(), width);
    }
    const std::array buttons{screen.cmdImagem1_1, screen.cmdImagem1_2, screen.cmdImagem1_3,
                             screen.cmdImagem1_4};
    for (const auto& [button, width] : {std::pair{2U, 203}, {1U, 10}, {3U, 10}, {0U, 640}}) {
      support::click(buttons[button]);
      EXPECT_EQ(screen.Image1->foto().width(), width);
      for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(buttons[i]->isChecked(), i == button);
    }
    script.modal([&](forms::Form& opened) {
      auto& image = dynamic_cast<frmImagem&>(opened);
      EXPECT_EQ(image.Picture1->width(), 640);
      picture(first(u"CX-100"_s), 320);
      support::click(image.Picture1);
      EXPECT_EQ(image.picNormal().width(), 320);
      image.close();
    });
    QTest::mouseDClick(screen.Image1, Qt::LeftButton);
  });
}

TEST_F(Photos, APageOfPicturesIsWrittenOnEnteringTheTabAndRemovedOnLeavingIt) {
  picture(first(u"BOM-1W2"_s), 60);
  sql(u"UPDATE prod SET desc_prod = 'Cartão <i>&reg' WHERE idprod = 105"_s);
  const QString page = contexto().PathDocs + u"pesquisa_produtos.html"_s;
  open<frmBROWSE_PRODUTO>([&](frmBROWSE_PRODUTO& screen) {
    screen.Option2->click();
    screen.txtCOD->setText(u"-"_s);
    screen.opBrowseMateriaPrima->click();
    support::click(screen.cmdPesquisa);
    screen.SSTab1->setCurrentIndex(1);
    const QString row =
        u"<TR style='FONT-WEIGHT: bold; FONT-SIZE: 8pt; FONT-FAMILY: Tahoma; FONT-VARIANT: small'>"
        u"<TD width=30%><P ALIGN=Center><IMG SRC='%1'></TD><TD width=30%>%2</TD><TD width=40%>%3</TD></TR>"_s;
    EXPECT_EQ(QString::fromLatin1(files::readAll(page)),
              u"<TABLE BORDER CELLPADDING='2'>"_s + row.arg(first(u"BOM-1W2"_s), u"BOM-1"_s, u"Bombom"_s) +
                  row.arg(contexto().ArqSemImagem, u"CARD-A"_s, u"Cartão &lt;i&gt;&amp;reg"_s) +
                  u"</TABLE>"_s);
    screen.SSTab1->setCurrentIndex(0);
    EXPECT_FALSE(files::exists(page));
  });
}

TEST_F(Photos, AreShownSomeHundredAtATime) {
  for (int i = 2000; i < 2250; ++i)
    sql(u"INSERT INTO prod (idprod, codi_prod, desc_prod, prod_mate_prim) VALUES (%1, 'NN-%1', 'MUITOS', 'P')"_s
            .arg(i));
  open<frmBROWSE_PRODUTO>([&](frmBROWSE_PRODUTO& screen) {
    const auto* leaves = screen.folhas->findChild<QLabel*>();
    const auto search = [&](const QString& text) {
      screen.SSTab1->setCurrentIndex(0);
      screen.Option3->click();
      screen.txtCOD->setText(text);
      support::click(screen.cmdPesquisa);
      screen.SSTab1->setCurrentIndex(1);
      return screen.WebBrowser1->pageText();
    };
    QString shown = search(u"MUITOS"_s);
    EXPECT_EQ(leaves->text(), u"Figuras 1 a 200 de 250"_s);
    EXPECT_TRUE(shown.contains(u"NN-2199"_s));
    EXPECT_FALSE(shown.contains(u"NN-2200"_s));
    support::click(screen.folhas->findChild<QToolButton*>(u"cmdProximasFotos"_s));
    shown = screen.WebBrowser1->pageText();
    EXPECT_EQ(leaves->text(), u"Figuras 201 a 250 de 250"_s);
    EXPECT_TRUE(shown.contains(u"NN-2249"_s));
    EXPECT_FALSE(shown.contains(u"NN-2199"_s));
    EXPECT_TRUE(files::readAll(contexto().PathDocs + u"pesquisa_produtos.html"_s).contains("NN-2000"));
    EXPECT_TRUE(search(u"Bombom"_s).contains(u"BOM-1"_s));
    EXPECT_TRUE(screen.folhas->isHidden());
  });
}

}  // namespace
