#include "search/frmBROWSE_PRODUTO.h"
#include "search/frmBROWSE_Prototipo.h"
#include "search_test.h"

using namespace Qt::StringLiterals;

// What the product and the prototype search ask the database, and what they show of it.
namespace {

class CatalogueSearch : public SearchTest {
 protected:
  CatalogueSearch() {
    support::fillBasics(databasePath());
    sql(u"INSERT INTO cole (idcole, desc_cole) VALUES (16, 'Verão')"_s);
    sql(u"INSERT INTO prod (idprod, codi_prod, desc_prod, prod_mate_prim, idcole, data_desa) "
        u"VALUES (108, 'VELA-V', 'Vela velha', 'M', 16, '20240110')"_s);
    sql(u"INSERT INTO prot (idprot, desc_prot, idprod) VALUES (203, 'Caixa branca', 101)"_s);
    sql(u"INSERT INTO prot (idprot, desc_prot, idprod) VALUES (204, 'Baú', 0)"_s);
    sql(u"INSERT INTO prot (idprot, desc_prot, data_desa) VALUES (205, 'Caixa velha', '20240110 10:00')"_s);
  }
};

/// Options and boxes to click (a name with "!" is a box to untick), what is typed, what goes out.
struct StatementCase {
  QStringList clicked;
  QString text;
  QString statement;
  QString keys;  ///< first column of what is found; empty: the notice that nothing is
  QString collection = {};
};
void PrintTo(const StatementCase& one, std::ostream* out) { *out << one.statement.toStdString(); }

template <class T>
void setUp(T& screen, const StatementCase& one) {
  for (const QString& name : one.clicked) screen.template findChild<QAbstractButton*>(name)->click();
  screen.txtCOD->setText(one.text);
}

const QString kNothing = u"Nenhum Registro Localizado com esses parâmetros..."_s;

class ProductStatement : public CatalogueSearch, public ::testing::WithParamInterface<StatementCase> {};

TEST_P(ProductStatement, GoesOutAsTold) {
  const StatementCase& one = GetParam();
  open<frmBROWSE_PRODUTO>([&](frmBROWSE_PRODUTO& screen) {
    setUp(screen, one);
    screen.cboCole->setText(one.collection);
    (void)statements();
    if (one.keys.isEmpty()) script.box(kNothing);
    support::click(screen.cmdPesquisa);
    EXPECT_EQ(statements().last(), one.statement);
    EXPECT_EQ(column(screen.Flex, frmBROWSE_PRODUTO::Id), one.keys);
  });
}

INSTANTIATE_TEST_SUITE_P(
    All, ProductStatement,
    ::testing::Values(
        StatementCase{{},
                      u""_s,
                      u"SELECT * FROM PROD WHERE  PROD.DATA_DESA IS NULL  ORDER BY DESC_PROD"_s,
                      u"102 101 105 104 106 107 103"_s},
        StatementCase{{u"opExata"_s},
                      u" "_s,
                      u"SELECT * FROM PROD WHERE  PROD.DATA_DESA IS NULL  ORDER BY DESC_PROD"_s,
                      u"102 101 105 104 106 107 103"_s},
        StatementCase{
            {},
            u"de"_s,
            u"SELECT * FROM PROD WHERE  PROD.DATA_DESA IS NULL  AND PROD.DESC_PROD LIKE '%DE%'  ORDER BY "
            u"DESC_PROD"_s,
            u"104 107"_s},
        StatementCase{{u"Option2"_s, u"opInicialCom"_s, u"opBrowseProduto"_s},
                      u"c"_s,
                      u"SELECT * FROM PROD WHERE  PROD.DATA_DESA IS NULL  AND PROD.CODI_PROD LIKE 'C%' AND "
                      u"PROD_MATE_PRIM = 'P'  ORDER BY CODI_PROD"_s,
                      u"101"_s},
        StatementCase{
            {u"opExata"_s, u"opBrowseMateriaPrima"_s, u"chkVisualiza"_s},
            u"vela velha"_s,
            u"SELECT * FROM PROD WHERE  (NOT PROD.DATA_DESA IS NULL)  AND PROD.DESC_PROD = 'VELA VELHA' "
            u"AND PROD_MATE_PRIM = 'M' AND IDCOLE = 16  ORDER BY DESC_PROD"_s,
            u"108"_s,
            u"Verão"_s},
        StatementCase{{u"Option1"_s},
                      u"não conta"_s,
                      u"SELECT * FROM PROD WHERE DATA_DESA IS NULL ORDER BY IDPROD"_s,
                      u"101 102 103 104 105 106 107"_s},
        StatementCase{
            {u"Option1"_s, u"chkVisualiza"_s, u"opBrowseProduto"_s},
            u""_s,
            u"SELECT * FROM PROD WHERE (NOT DATA_DESA IS NULL) AND PROD_MATE_PRIM = 'P' AND IDCOLE = 15 "
            u"ORDER BY IDPROD"_s,
            QString(),
            u"Primavera"_s}));

class PrototypeStatement : public CatalogueSearch, public ::testing::WithParamInterface<StatementCase> {};

TEST_P(PrototypeStatement, GoesOutAsTold) {
  const StatementCase& one = GetParam();
  open<frmBROWSE_Prototipo>([&](frmBROWSE_Prototipo& screen) {
    setUp(screen, one);
    (void)statements();
    if (one.keys.isEmpty()) script.box(kNothing);
    support::click(screen.cmdPesquisa);
    EXPECT_EQ(statements().value(0), one.statement);
    EXPECT_EQ(column(screen.Flex, frmBROWSE_Prototipo::Id), one.keys);
    EXPECT_TRUE(!one.keys.isEmpty() || screen.txtCOD->hasFocus());
  });
}

INSTANTIATE_TEST_SUITE_P(
    All, PrototypeStatement,
    ::testing::Values(
        StatementCase{
            {},
            u"caixa"_s,
            u"SELECT * FROM PROT WHERE  PROT.DATA_DESA IS NULL  AND PROT.DESC_PROT LIKE '%CAIXA%'  ORDER BY "
            u"DESC_PROT"_s,
            u"203 201"_s},
        StatementCase{
            {u"opCampoInteiro"_s, u"chkSomenteSemProd"_s},
            u""_s,
            u"SELECT * FROM PROT WHERE  PROT.DATA_DESA IS NULL  AND (IDPROD = 0 OR IDPROD IS NULL)  ORDER "
            u"BY DESC_PROT"_s,
            u"204 201 202"_s},
        StatementCase{
            {u"opCampoInteiro"_s},
            u"caixa"_s,
            u"SELECT * FROM PROT WHERE  PROT.DATA_DESA IS NULL  AND PROT.DESC_PROT = 'CAIXA'  ORDER BY "
            u"DESC_PROT"_s,
            QString()},
        StatementCase{{u"Option1"_s, u"chkVisualiza"_s},
                      u"não conta"_s,
                      u"SELECT * FROM PROT WHERE (NOT DATA_DESA IS NULL) ORDER BY IDPROT"_s,
                      u"205"_s},
        StatementCase{
            {u"Option1"_s, u"chkSomenteSemProd"_s},
            u""_s,
            u"SELECT * FROM PROT WHERE DATA_DESA IS NULL  AND (IDPROD = 0 OR IDPROD IS NULL) ORDER BY "
            u"IDPROT"_s,
            u"201 202 204"_s}));

TEST_F(CatalogueSearch, RowsShowStockCodeOfTheProductAndDayOfDeactivation) {
  open<frmBROWSE_PRODUTO>([&](frmBROWSE_PRODUTO& screen) {
    screen.Option2->click();
    support::type(screen.txtCOD, u"cx-1"_s);
    support::key(screen.txtCOD, Qt::Key_Return);
    EXPECT_EQ(screen.txtCOD->text(), u"CX-1"_s);
    support::key(screen.cmdPesquisa, Qt::Key_Return);
    EXPECT_EQ(row(screen.Flex, 1), u"101|CX-100|Caixa branca|40|"_s);
    screen.chkVisualiza->click();
    screen.Option1->click();
    support::click(screen.cmdPesquisa);
    EXPECT_EQ(row(screen.Flex, 1), u"108|VELA-V|Vela velha||10/01/2024"_s);

    support::click(screen.cmdLimpar);
    EXPECT_EQ(screen.Flex->grid().rows(), 1);
    EXPECT_EQ(screen.txtCOD->text(), QString());
    EXPECT_TRUE(screen.txtCOD->hasFocus());
  });
  open<frmBROWSE_Prototipo>([&](frmBROWSE_Prototipo& screen) {
    support::click(screen.cmdPesquisa);
    EXPECT_EQ(row(screen.Flex, 1), u"204|Baú||"_s) << "product 0 is none";
    EXPECT_EQ(row(screen.Flex, 2), u"203|Caixa branca|CX-100|"_s);
  });
}

TEST_F(CatalogueSearch, EachSearchComesBackOnlyAfterAClickOnARow) {
  open<frmBROWSE_PRODUTO>([&](frmBROWSE_PRODUTO& screen) {
    setUp(screen, {{u"Option2"_s, u"opBrowseMateriaPrima"_s, u"chkVisualiza"_s}, u"VELA"_s, {}, {}});
    support::click(screen.cmdPesquisa);
  });
  open<frmBROWSE_PRODUTO>([&](frmBROWSE_PRODUTO& screen) {
    EXPECT_EQ(screen.Flex->grid().rows(), 1) << "nobody clicked on a row";
    EXPECT_TRUE(screen.Option3->isChecked() && screen.opBrowseTodos->isChecked() &&
                screen.chkVisualiza->isChecked());
    setUp(screen, {{u"Option2"_s, u"opBrowseMateriaPrima"_s, u"chkVisualiza"_s}, u"VELA"_s, {}, {}});
    screen.cboCole->setText(u"Verão"_s);
    support::click(screen.cmdPesquisa);
    support::clickRow(screen.Flex, 0);
    support::clickRow(screen.Flex, 1);
  });
  open<frmBROWSE_Prototipo>([&](frmBROWSE_Prototipo& screen) {
    EXPECT_EQ(screen.Flex->grid().rows(), 1) << "the other search remembers its own";
    EXPECT_EQ(screen.txtCOD->text(), QString());
  });
  open<frmBROWSE_PRODUTO>([&](frmBROWSE_PRODUTO& screen) {
    EXPECT_TRUE(screen.Option2->isChecked() && screen.opBrowseMateriaPrima->isChecked());
    EXPECT_FALSE(screen.chkVisualiza->isChecked());
    EXPECT_EQ(screen.txtCOD->text(), u"VELA"_s);
    EXPECT_EQ(screen.cboCole->text(), u"Verão"_s);
    EXPECT_EQ(column(screen.Flex, 0), u"108"_s);
  });
}

TEST_F(CatalogueSearch, TheChosenPlaceOfTheListComesBack) {
  for (int i = 0; i < 200; ++i)
    sql(u"INSERT INTO prot (idprot, desc_prot) VALUES (%1, 'Z%1')"_s.arg(1000 + i));
  open<frmBROWSE_Prototipo>([&](frmBROWSE_Prototipo& screen) {
    screen.txtCOD->setText(u"Z"_s);
    support::click(screen.cmdPesquisa);
    screen.Flex->grid().setTopRow(120);
    support::clickRow(screen.Flex, 122);
    support::doubleClick(screen.Flex, 122);
  });
  open<frmBROWSE_Prototipo>([&](frmBROWSE_Prototipo& screen) {
    EXPECT_EQ(screen.Flex->grid().topRow(), 120);
    EXPECT_EQ(screen.Flex->rowAt(5), 119) << "the row in sight, not only the number";
  });
}

class ProductCaller : public CatalogueSearch, public ::testing::WithParamInterface<CallerCase> {};

TEST_P(ProductCaller, TakesWhatItsRowsOfTheTableSay) {
  const QStringList who = GetParam().caller.split(u' ');
  contexto().TelaChamadora = who.first();
  pesquisa::lembrancas().TipoBrowseProduto = who.value(1);
  sql(u"UPDATE prod SET codi_prod = ' CX-100 ' WHERE idprod = 101"_s);
  const StandIn& caller = standIn(
      who.first(), {u"txtRowId"_s, u"txtCodigo"_s, u"txtCodProduto"_s, u"txtidProdProt"_s, u"lblCodProt"_s});
  open<frmBROWSE_PRODUTO>([&](frmBROWSE_PRODUTO& screen) {
    const QPointer<frmBROWSE_PRODUTO> still(&screen);
    screen.Option1->click();
    support::click(screen.cmdPesquisa);
    support::doubleClick(screen.Flex, 0);
    ASSERT_TRUE(screen.isVisible()) << "the title row chooses nothing";
    support::doubleClick(screen.Flex, 1);
    EXPECT_TRUE(still == nullptr || !still->isVisible());
  });
  EXPECT_EQ(caller.written(), GetParam().written);
}

const QString kCode = u"txtCodProduto=CX-100"_s;
INSTANTIATE_TEST_SUITE_P(
    All, ProductCaller,
    ::testing::Values(CallerCase{u"frmProduto"_s, {}, u"txtRowId=101 txtCodigo=CX-100"_s},
                      CallerCase{u"frmProduto KIT"_s, {}, kCode},
                      CallerCase{u"frmMateriaPrima"_s, {}, u"txtRowId=101 txtCodigo=CX-100"_s},
                      CallerCase{u"frmMateriaPrima KIT"_s, {}, kCode},
                      CallerCase{u"frmPropCmrc"_s, {}, kCode + u" txtidProdProt=101"_s},
                      CallerCase{u"frmPontoVenda"_s, {}, kCode + u" txtidProdProt=101"_s},
                      CallerCase{u"frmPedido KIT"_s, {}, kCode}, CallerCase{u"frmMoveEstoque"_s, {}, kCode},
                      CallerCase{u"frmTransfEstoque"_s, {}, kCode}, CallerCase{u"frmCompras"_s, {}, kCode},
                      CallerCase{u"frmCotaCompra"_s, {}, kCode}, CallerCase{u"frmPesqProdPed"_s, {}, kCode},
                      CallerCase{u"frmCheckNulo"_s, {}, kCode}, CallerCase{u"frmCaixa"_s, {}, kCode},
                      CallerCase{u"frmEtiqProduto"_s, {}, u"txtCodigo=CX-100"_s},
                      CallerCase{u"frmNFEntrada"_s, {}, u"txtCodigo=CX-100"_s},
                      CallerCase{u"frmPropCmrcTL"_s, {}, QString()}));

class PrototypeCaller : public CatalogueSearch, public ::testing::WithParamInterface<CallerCase> {};

TEST_P(PrototypeCaller, TakesWhatItsRowsOfTheTableSay) {
  contexto().TelaChamadora = GetParam().caller;
  const StandIn& caller =
      standIn(GetParam().caller, {u"txtRowId"_s, u"txtCodigo"_s, u"txtCodProduto"_s, u"lblCodProt"_s});
  open<frmBROWSE_Prototipo>([&](frmBROWSE_Prototipo& screen) {
    screen.Option1->click();
    support::click(screen.cmdPesquisa);
    support::doubleClick(screen.Flex, 1);
  });
  EXPECT_EQ(caller.written(), GetParam().written);
  EXPECT_EQ(forms::registry::find(u"frmBROWSE_Prototipo"_s), nullptr);
}

INSTANTIATE_TEST_SUITE_P(All, PrototypeCaller,
                         ::testing::Values(CallerCase{u"frmPrototipo"_s, {}, u"txtRowId=201 txtCodigo=201"_s},
                                           CallerCase{u"frmPropCmrc"_s, {}, u"txtCodProduto=201"_s},
                                           CallerCase{u"frmProduto"_s, {}, u"lblCodProt=201"_s},
                                           CallerCase{u"frmPontoVenda"_s, {}, u"txtCodProduto=201"_s},
                                           CallerCase{u"frmEtiqProduto"_s, {}, u"txtCodigo=201"_s},
                                           CallerCase{u"frmPropCmrcTL"_s, {}, QString()}));

TEST_F(CatalogueSearch, APrototypeThatBecameAProductIsNotHandedToTheOldQuoteScreen) {
  contexto().TelaChamadora = u"frmPropCmrc"_s;
  const StandIn& caller = standIn(u"frmPropCmrc"_s, {u"txtCodProduto"_s});
  open<frmBROWSE_Prototipo>([&](frmBROWSE_Prototipo& screen) {
    screen.txtCOD->setText(u"branca"_s);
    support::click(screen.cmdPesquisa);
    script.box(
        u"Este Protótipo Não Poderá Ser Usado, pois já se tornou um Produto\n"
        u"Escolha a Opção Inserção de Produto e Não de Protótipo\nCódigo do Produto:\nCX-100"_s);
    support::doubleClick(screen.Flex, 1);
  });
  EXPECT_EQ(caller.written(), QString());
  EXPECT_EQ(forms::registry::find(u"frmBROWSE_Prototipo"_s), nullptr);
}

}  // namespace
