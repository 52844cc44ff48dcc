#include "assembly/frmMontarProduto.h"
#include "quote_case.h"

using namespace Qt::StringLiterals;
using grids::material::VinculoComFlex;

namespace {

/// Five lines in a quote that is being made; each has one material.
class Items : public QuoteCase {
 protected:
  void five() {
    start();
    support::click(screen->cmdINCLUIR);
    for (int i = 1; i <= 5; ++i) {
      const QString n = QString::number(i);
      addItem(u"10%1;PROD;C%1;D;1,00;0,00;12,50;2;%10,10;%2;UN;obs %1"_s.replace(u"%1"_s, n)
                  .arg(i % 2 == 0 ? u"14/03/2024 10:00"_s : QString()));
      addMaterial(u"10"_s + n, u"PRODUTO"_s, n);
    }
  }
  QString codes() const { return column(screen->Flex->grid(), grids::item::Codigo); }
};

TEST_F(Items, TotalsCountApprovedLinesOnlyInTheNet) {
  five();
  screen->lblDesconto->setText(u"10,05"_s);
  screen->CalculaTotais();
  EXPECT_EQ(screen->lblTotaGeral->text(), u"150,50"_s);
  EXPECT_EQ(screen->lblTotaAprov->text(), u"60,20"_s);
  EXPECT_EQ(screen->lblTotaNaoAprov->text(), u"90,30"_s);
  EXPECT_EQ(screen->lblTotalLiquido->text(), u"50,15"_s);
  screen->MontaGridItens();
  screen->lblDesconto->clear();
  screen->CalculaTotais();
  EXPECT_EQ(screen->lblTotaGeral->text() + screen->lblDesconto->text() + screen->lblTotalLiquido->text(),
            u"0,0000,00"_s);
}

TEST_F(Items, AChangedItemLeavesBeforeTheAssemblyOpensAndComesBackLast) {
  five();
  addMaterial(u"106"_s, u"ADEREÇO"_s, u"3"_s);
  script.input(u"A"_s).modal([this](forms::Form& form) {
    auto& assembly = static_cast<frmMontarProduto&>(form);
    EXPECT_EQ(codes(), u"C1;C2;C4;C5");
    EXPECT_EQ(column(screen->FlexMonta, VinculoComFlex), u"1;2;;3;4;");
    EXPECT_EQ(column(assembly.Flex->grid(), grids::material::Id), u"103;106");
    EXPECT_EQ(column(assembly.FlexSombra, grids::material::Id), u"103;106");
    EXPECT_EQ(assembly.Flex->grid().cols(), grids::material::kAssemblyColumns);
    EXPECT_EQ(forms::controlText(assembly.txtObservacoes), u"obs 3"_s);
    EXPECT_EQ(forms::controlText(assembly.txtQuantidade), u"2"_s);
    EXPECT_EQ(assembly.lblTotalUnitarioProduto->text(), u"12,50"_s);
    EXPECT_EQ(contexto().ModoItem, u"A"_s);
    EXPECT_EQ(screen->lblTotaGeral->text(), u"120,40"_s);
    support::click(assembly.cmdConfirmar);
  });
  support::doubleClick(screen->Flex, 3);
  EXPECT_EQ(codes(), u"C1;C2;C4;C5;C103");
  EXPECT_EQ(column(screen->FlexMonta, VinculoComFlex), u"1;2;;3;4;;5;5");
  EXPECT_EQ(screen->lblTotaGeral->text(), u"145,40"_s);
}

}  // namespace
