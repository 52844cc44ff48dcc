#include "assembly/frmComposicaoProduto.h"
#include "assembly_test.h"

using namespace Qt::StringLiterals;

// Finding articles on the tabs of the assembly screen, and what a kit is made of.
namespace {

TEST_F(AssemblyTest, EachTabFindsItsClassAndKeepsWhatItFound) {
  sql(u"INSERT INTO prod (idprod, codi_prod, desc_prod, prod_mate_prim, tipo_mate_prima, data_desa) VALUES "
      u"(150, '150', 'Caixa antiga', 'P', 'PRODUTO', '20240101')"_s);
  sql(u"INSERT INTO prod (idprod, codi_prod, desc_prod, prod_mate_prim, valo_veds, idmoed) VALUES "
      u"(151, '0151', 'Caixa azul', 'P', 7.005, 1)"_s);
  const QString box = u"101|CX-100|Caixa branca|UN|1|12,50"_s;
  const struct {
    int tab;
    bool byCode;
    QString text;
    QStringList rows;
  } cases[] = {
      {6, false, {}, {u"107|SAL|Sal de banho|KG|1|18,00"_s}},
      {5, false, {}, {u"106|FLOR|Flor seca|UN|1|0,33"_s}},
      {4, true, u"r"_s, {u"105|CARD-A|Cartão impresso|UN|1|1,10"_s}},
      {3, false, u"é"_s, {}},
      {1, false, {}, {u"102|BOM-1|Bombom|UN|1|10,40"_s}},
      {2, false, u"aromá"_s, {u"103|VELA|Vela aromática|UN|1|3,40"_s}},
      {0, false, {}, {u"151|0151|Caixa azul|||7,01"_s, box}},
      {0, true, u"x-1"_s, {box}},
  };
  assemble([&](frmMontarProduto& screen) {
    EXPECT_EQ(screen.SSTab1->count(), static_cast<int>(kClassesDeMaterial.size()));
    for (const auto& [tab, byCode, text, found] : cases) {
      screen.SSTab1->setCurrentIndex(tab);
      screen.txtCOD->setText(text);
      (byCode ? screen.opCodigo : screen.opDesc)->click();
      support::click(screen.cmdPesquisar);
      EXPECT_EQ(rows(results(screen)->grid()), found);
      EXPECT_EQ(results(screen)->grid().row(), found.size() == 1 ? 1 : 0);
    }
    support::click(screen.cmdLimpar);
    EXPECT_EQ(screen.txtCOD->text(), QString());
    EXPECT_TRUE(screen.txtCOD->hasFocus());
    EXPECT_EQ(screen.Flex1->grid().rows(), 1);
    EXPECT_EQ(screen.Flex2->grid().rows(), 2);
  });
}

TEST_F(AssemblyTest, AKitIsShownByTheViewer) {
  for (const auto& row : {u"101, 107, 0.25, null"_s, u"101, 102, 6, null"_s, u"101, 103, 1, '20240101'"_s})
    sql(u"INSERT INTO prod_kit0 (idprod, idprod_kit0, qtde_prod, data_desa) VALUES (%1)"_s.arg(row));
  const QStringList kit{u"102|BOM-1|Bombom|UN|6"_s, u"107|SAL|Sal de banho|KG|0,250"_s};
  for (const auto& [code, name, lines] :
       {std::tuple{QString(), QString(), QStringList()}, {u"CX-100"_s, u"Caixa branca"_s, kit}}) {
    contexto().CodProdutoComposicao = code;
    script.modal([&, expectedName = name, expected = lines](forms::Form& opened) {
      auto& viewer = dynamic_cast<frmComposicaoProduto&>(opened);
      EXPECT_EQ(viewer.lblDescProdDetalhe->text(), expectedName);
      EXPECT_EQ(rows(viewer.Flex->grid()), expected);
      viewer.close();
    });
    forms::form<frmComposicaoProduto>().showModal();
  }
}

}  // namespace
