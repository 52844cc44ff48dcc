#include <QTabBar>

#include "assembly/frmComposicaoProduto.h"
#include "assembly_test.h"
#include "shared/screen_kit.h"

using namespace Qt::StringLiterals;

// Opening the assembly screen and finding articles on its tabs.
namespace {

using MaterialTabs = AssemblyTest;

TEST_F(MaterialTabs, OpenEmptyReadyToSearchAndCloseOnlyByTheirButtons) {
  assemble([](frmMontarProduto& screen) {
    EXPECT_EQ(screen.windowTitle(), u"Zarim 1.2 - Montar Produto"_s);
    EXPECT_EQ(screen.txtQuantidade->text(), u"1"_s);
    EXPECT_TRUE(screen.opDesc->isChecked());
    EXPECT_EQ(forms::backColor(screen.txtCOD), kCorEntrada);
    EXPECT_TRUE(screen.txtCOD->hasFocus());
    support::key(&screen, Qt::Key_Escape);
    screen.close();
    support::settle();
    EXPECT_TRUE(screen.isVisible());
  });
}

TEST_F(MaterialTabs, EnterLeadsFromTheTextToTheSearchAndOn) {
  assemble([](frmMontarProduto& screen) {
    support::type(screen.txtCOD, u"vela"_s);
    screen.SSTab1->setCurrentIndex(2);
    support::focus(screen.txtCOD);
    support::key(screen.txtCOD, Qt::Key_Return);
    EXPECT_EQ(screen.txtCOD->text(), u"VELA"_s);
    ASSERT_TRUE(screen.cmdPesquisar->hasFocus());
    support::key(screen.cmdPesquisar, Qt::Key_Return);
    EXPECT_EQ(screen.Flex3->grid().rows(), 2);

    support::focus(screen.txtQuantidade);
    EXPECT_EQ(screen.txtQuantidade->selectedText(), u"1"_s);
    for (QWidget* control : std::initializer_list<QWidget*>{screen.txtQuantidade, screen.txtObservacoes,
                                                            screen.cmdPesquisa, screen.cmdConfirmar}) {
      support::focus(control);
      support::key(control, Qt::Key_Return);
      EXPECT_FALSE(control->hasFocus()) << control->objectName().toStdString();
    }
  });
}

struct TabCase {
  int tab;
  QString text;
  bool byCode;
  QString statement;
  QStringList rows;
};
void PrintTo(const TabCase& one, std::ostream* out) {
  *out << one.tab << " '" << one.text.toStdString() << '\'';
}

class TabSearch : public AssemblyTest, public ::testing::WithParamInterface<TabCase> {};

TEST_P(TabSearch, SendsItsStatementAndFillsItsOwnGrid) {
  const TabCase& one = GetParam();
  sql(u"INSERT INTO prod (idprod, codi_prod, desc_prod, prod_mate_prim, tipo_mate_prima, data_desa) VALUES "
      u"(150, '150', 'Caixa antiga', 'P', 'PRODUTO', '20240101')"_s);
  sql(u"INSERT INTO prod (idprod, codi_prod, desc_prod, prod_mate_prim, valo_veds, idmoed) VALUES "
      u"(151, '0151', 'Caixa azul', 'P', 7.005, 1)"_s);
  assemble([&](frmMontarProduto& screen) {
    screen.SSTab1->setCurrentIndex(one.tab);
    screen.txtCOD->setText(one.text);
    (one.byCode ? screen.opCodigo : screen.opDesc)->click();
    (void)statements();
    support::click(screen.cmdPesquisar);
    EXPECT_EQ(statements().value(0), one.statement);
    EXPECT_EQ(rows(found(screen)->grid()), one.rows);
    EXPECT_EQ(found(screen)->grid().row(), 0);
  });
}

const QString kLivre = u"SELECT * FROM PROD WHERE DATA_DESA IS NULL AND PROD_MATE_PRIM = "_s;
QString materialStatement(const QString& type, const QString& like) {
  return kLivre + u"'M' AND TIPO_MATE_PRIMA = '"_s + type + u"' AND PROD.DATA_DESA IS NULL AND PROD."_s +
         like + u"' ORDER BY CODI_PROD"_s;
}

INSTANTIATE_TEST_SUITE_P(
    All, TabSearch,
    ::testing::Values(
        TabCase{0,
                u""_s,
                false,
                kLivre + u"'P' AND PROD.DATA_DESA IS NULL AND PROD.DESC_PROD LIKE '%%' ORDER BY CODI_PROD"_s,
                {u"151|0151|Caixa azul|||7,01"_s, u"101|CX-100|Caixa branca|UN|1|12,50"_s}},
        TabCase{
            0,
            u"x-1"_s,
            true,
            kLivre + u"'P' AND PROD.DATA_DESA IS NULL AND PROD.CODI_PROD LIKE '%X-1%' ORDER BY CODI_PROD"_s,
            {u"101|CX-100|Caixa branca|UN|1|12,50"_s}},
        TabCase{1,
                u"bom"_s,
                false,
                materialStatement(u"CONTEÚDO COMESTÍVEL"_s, u"DESC_PROD LIKE '%BOM%"_s),
                {u"102|BOM-1|Bombom|UN|1|10,40"_s}},
        TabCase{2,
                u" "_s,
                false,
                materialStatement(u"CONTEÚDO NÃO COMESTÍVEL"_s, u"DESC_PROD LIKE '% %"_s),
                {u"103|VELA|Vela aromática|UN|1|3,40"_s}},
        TabCase{3, u"é"_s, false, materialStatement(u"FECHAMENTO"_s, u"DESC_PROD LIKE '%É%"_s), {}},
        TabCase{4,
                u""_s,
                true,
                materialStatement(u"CARD"_s, u"CODI_PROD LIKE '%%"_s),
                {u"105|CARD-A|Cartão impresso|UN|1|1,10"_s}},
        TabCase{5,
                u""_s,
                false,
                materialStatement(u"ADEREÇO"_s, u"DESC_PROD LIKE '%%"_s),
                {u"106|FLOR|Flor seca|UN|1|0,33"_s}},
        TabCase{6,
                u""_s,
                false,
                materialStatement(u"OUTROS"_s, u"DESC_PROD LIKE '%%"_s),
                {u"107|SAL|Sal de banho|KG|1|18,00"_s}}));

TEST_F(MaterialTabs, EachKeepsWhatItFoundUntilItIsSearchedAgainOrCleared) {
  assemble([](frmMontarProduto& screen) {
    support::click(screen.cmdPesquisar);
    screen.SSTab1->setCurrentIndex(1);
    support::click(screen.cmdPesquisar);
    support::type(screen.txtCOD, u"nada disso"_s);
    support::click(screen.cmdPesquisar);
    EXPECT_EQ(screen.Flex2->grid().rows(), 1) << "nothing found, nothing told";
    EXPECT_EQ(screen.Flex1->grid().rows(), 2);
    support::click(screen.cmdLimpar);
    EXPECT_EQ(screen.Flex1->grid().rows(), 2);
    EXPECT_EQ(screen.txtCOD->text(), QString());
    EXPECT_TRUE(screen.txtCOD->hasFocus());
    screen.SSTab1->setCurrentIndex(0);
    support::click(screen.cmdLimpar);
    EXPECT_EQ(screen.Flex1->grid().rows(), 1);
  });
}

TEST_F(MaterialTabs, TheTitleRowIsHandedOverLikeAnyOther) {
  assemble([this](frmMontarProduto& screen) {
    screen.SSTab1->setCurrentIndex(6);
    inDialog([](frmConfirmaItem& dialog) {
      EXPECT_EQ(dialog.lblId->text(), u"ID"_s);
      EXPECT_EQ(dialog.lblCod->text(), u"Código"_s);
      EXPECT_EQ(dialog.lblQtUnidadeMedida->text(), u"Qt.Unid.Medida"_s);
      EXPECT_EQ(dialog.lblValor->text(), u"Valor"_s);
      EXPECT_EQ(dialog.lblTipo->text(), u"OUTROS"_s);
      EXPECT_EQ(dialog.lblOrdem->text(), u"7"_s);
      support::click(dialog.cmdCancelar);
    });
    support::doubleClick(screen.Flex7, 0);
    EXPECT_EQ(screen.Flex->grid().rows(), 1);
  });
}

class Kit : public AssemblyTest {
 protected:
  Kit() {
    sql(u"INSERT INTO prod_kit0 (idprod, idprod_kit0, qtde_prod) VALUES (101, 107, 0.25)"_s);
    sql(u"INSERT INTO prod_kit0 (idprod, idprod_kit0, qtde_prod) VALUES (101, 102, 6)"_s);
    sql(u"INSERT INTO prod_kit0 (idprod, idprod_kit0, qtde_prod, data_desa) VALUES (101, 103, 1, '20240101')"_s);
  }
  const QStringList kit_{u"102|BOM-1|Bombom|UN|6"_s, u"107|SAL|Sal de banho|KG|0,250"_s};
};

TEST_F(Kit, OfTheProductSetByAnotherProgramIsShownByTheViewer) {
  const auto view = [this](const QString& code, const QString& description, const QStringList& lines) {
    contexto().CodProdutoComposicao = code;
    script.modal([&](forms::Form& opened) {
      auto& viewer = dynamic_cast<frmComposicaoProduto&>(opened);
      EXPECT_EQ(viewer.windowTitle(), u"Zarim 1.2 - Visualiza Composição do Produto"_s);
      EXPECT_EQ(viewer.lblCodigoProdDetalhe->text(), code);
      EXPECT_EQ(viewer.lblDescProdDetalhe->text(), description);
      EXPECT_EQ(rows(viewer.Flex->grid()), lines);
      support::key(&viewer, Qt::Key_Escape);
    });
    forms::form<frmComposicaoProduto>().showModal();
    support::settle();
  };
  view(u"CX-100"_s, u"Caixa branca"_s, kit_);
  view(u"VELA"_s, u"Vela aromática"_s, {});
  view(QString(), QString(), {});
}

TEST_F(Kit, ButtonEmptiesTheAssemblyAndLoadsWhatIsSet) {
  assemble([this](frmMontarProduto& screen) {
    take(screen, 0);
    support::click(screen.cmdPesquisa);
    EXPECT_EQ(screen.Flex->grid().rows(), 1);
    contexto().CodProdutoComposicao = u"CX-100"_s;
    support::click(screen.cmdPesquisa);
    EXPECT_EQ(rows(screen.Flex->grid()), QStringList({kit_[0] + u"||||||"_s, kit_[1] + u"||||||"_s}));
    EXPECT_EQ(screen.Flex->grid().row(), 0);
  });
}

}  // namespace
