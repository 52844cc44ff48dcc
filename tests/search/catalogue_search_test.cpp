#include "search/frmBROWSE_PRODUTO.h"
#include "search/frmBROWSE_Prototipo.h"
#include "search_test.h"

using namespace Qt::StringLiterals;

// What the product and the prototype search ask the database, show of it and hand on.
namespace {

class CatalogueSearch : public SearchTest {
 protected:
  CatalogueSearch() {
    sql(u"INSERT INTO cole (idcole, desc_cole) VALUES (16, 'Verão')"_s);
    sql(u"INSERT INTO prod (idprod, codi_prod, desc_prod, prod_mate_prim, idcole, data_desa) "
        u"VALUES (108, 'VELA-V', 'Vela velha', 'M', 16, '20240110')"_s);
    sql(u"INSERT INTO prot (idprot, desc_prot, idprod) VALUES (203, 'Caixa branca', 101)"_s);
    sql(u"INSERT INTO prot (idprot, desc_prot, idprod) VALUES (204, 'Baú', 0)"_s);
    sql(u"INSERT INTO prot (idprot, desc_prot, data_desa) VALUES (205, 'Caixa velha', '20240110 10:00')"_s);
  }
};

TEST_F(CatalogueSearch, TheLastOneComesBackAfterAClickOnARow) {
  const auto search = [](frmBROWSE_PRODUTO& screen) {
    for (auto* option : {screen.Option2, screen.opBrowseMateriaPrima}) option->click();
    screen.chkVisualiza->click();
    support::type(screen.txtCOD, u"vel"_s);
    screen.cboCole->setText(u"Verão"_s);
    support::click(screen.cmdPesquisa);
    EXPECT_EQ(row(screen.Flex->grid(), 1), u"108|VELA-V|Vela velha||10/01/2024"_s);
  };
  open<frmBROWSE_PRODUTO>(search);
  open<frmBROWSE_PRODUTO>([&](frmBROWSE_PRODUTO& screen) {
    EXPECT_EQ(screen.Flex->grid().rows(), 1) << "nobody clicked on a row";
    search(screen);
    support::clickRow(screen.Flex, 1);
  });
  open<frmBROWSE_Prototipo>([&](frmBROWSE_Prototipo& screen) {
    EXPECT_EQ(screen.Flex->grid().rows(), 1) << "both share one memory, but the other's search is not run";
    support::click(screen.cmdPesquisa);
    EXPECT_EQ(row(screen.Flex->grid(), 1), u"205|Caixa velha||10/01/2024"_s);
    EXPECT_EQ(screen.Flex->grid().row(), 1) << "a single result is the current row";
    screen.chkVisualiza->click();
    screen.txtCOD->clear();
    support::click(screen.cmdPesquisa);
    EXPECT_EQ(row(screen.Flex->grid(), 1), u"204|Baú||"_s) << "product 0 is none";
    EXPECT_EQ(row(screen.Flex->grid(), 2), u"203|Caixa branca|CX-100|"_s);
  });
  open<frmBROWSE_PRODUTO>([&](frmBROWSE_PRODUTO& screen) {
    EXPECT_TRUE(screen.Option2->isChecked());
    EXPECT_TRUE(screen.opBrowseMateriaPrima->isChecked());
    EXPECT_FALSE(screen.chkVisualiza->isChecked());
    EXPECT_EQ(screen.txtCOD->text(), u"VEL"_s);
    EXPECT_EQ(screen.cboCole->text(), u"Verão"_s);
    EXPECT_EQ(column(screen.Flex->grid(), 0), u"108"_s);
  });
}

TEST_F(CatalogueSearch, TheChosenPlaceOfTheListComesBack) {
  for (int i = 0; i < 200; ++i)
    sql(u"INSERT INTO prot (idprot, desc_prot) VALUES (%1, 'Z%1')"_s.arg(1000 + i));
  open<frmBROWSE_Prototipo>([&](frmBROWSE_Prototipo& screen) {
    screen.txtCOD->setText(u"Z"_s);
    support::click(screen.cmdPesquisa);
    screen.Flex->setTopRow(120);
    support::doubleClick(screen.Flex, 122);
  });
  open<frmBROWSE_Prototipo>([&](frmBROWSE_Prototipo& screen) {
    EXPECT_EQ(screen.Flex->topRow(), 120);
    EXPECT_EQ(screen.Flex->rowAt(5), 119) << "the row in sight, not only the number";
  });
}

TEST_F(CatalogueSearch, CallersTakeWhatTheirRowsOfTheTableSay) {
  const QStringList boxes{u"txtRowId"_s, u"txtCodigo"_s, u"txtCodProduto"_s, u"txtidProdProt"_s};
  sql(u"UPDATE prod SET codi_prod = ' CX-100 ' WHERE idprod = 101"_s);
  const auto product = [&](const QString& caller) { return chosenBy<frmBROWSE_PRODUTO>(caller, boxes, 2); };
  EXPECT_EQ(product(u"frmPontoVenda"_s), u"txtCodProduto=CX-100 txtidProdProt=101"_s);
  EXPECT_EQ(product(u"frmPropCmrcTL"_s), QString());
  // The catalogue's own screens look for the product itself, or for a component of its kit.
  EXPECT_EQ(product(u"frmProduto"_s), u"txtRowId=101 txtCodigo=CX-100"_s);
  pesquisa::lembrancas().TipoBrowseProduto = u"KIT"_s;
  EXPECT_EQ(product(u"frmProduto"_s), u"txtCodProduto=CX-100"_s);
  EXPECT_EQ(chosenBy<frmBROWSE_Prototipo>(u"frmPropCmrc"_s, boxes, 3), u"txtCodProduto=201"_s);
  EXPECT_EQ(chosenBy<frmBROWSE_Prototipo>(u"frmPrototipo"_s, boxes, 3), u"txtRowId=201 txtCodigo=201"_s);
  script.box(
      u"Este Protótipo Não Poderá Ser Usado, pois já se tornou um Produto\n"
      u"Escolha a Opção Inserção de Produto e Não de Protótipo\nCódigo do Produto:\n CX-100 "_s);
  EXPECT_EQ(chosenBy<frmBROWSE_Prototipo>(u"frmPropCmrc"_s, boxes, 2), QString());
}

}  // namespace
