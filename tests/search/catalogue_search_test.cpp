#include "search/frmBROWSE_PRODUTO.h"
#include "search/frmBROWSE_Prototipo.h"
#include "search_test.h"

using namespace Qt::StringLiterals;

// What the product and the prototype search hand on.
namespace {

class CatalogueSearch : public SearchTest {
 protected:
  CatalogueSearch() {
    sql(u"INSERT INTO prot (idprot, desc_prot, idprod) VALUES (203, 'Caixa branca', 101)"_s);
    sql(u"INSERT INTO prot (idprot, desc_prot, idprod) VALUES (204, 'Baú', 0)"_s);
  }
};

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
