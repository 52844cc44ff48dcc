#include "assembly/frmMontarProduto.h"
#include "quote_case.h"

using namespace Qt::StringLiterals;
using grids::material::Ordem;
using grids::material::VinculoComFlex;

namespace {

/// Five lines in a quote that is being made; each has one material, whose class order is the number given.
class Items : public QuoteCase {
 protected:
  void five() {
    start();
    support::click(screen->cmdINCLUIR);
    for (int i = 1; i <= 5; ++i) {
      const QString n = QString::number(i);
      addItem({u"10"_s + n, u"PROD"_s, u"C"_s + n, u"D"_s, u"1,00"_s, u"0,00"_s, u"12,50"_s, u"2"_s,
               n + u"0,10"_s, i % 2 == 0 ? u"14/03/2024 10:00"_s : QString(), u"UN"_s, u"obs "_s + n});
      addMaterial(u"10"_s + n, u"PRODUTO"_s, n);
      screen->FlexMonta.setText(i, Ordem, n);
    }
  }
  QStringList codes() const { return column(screen->Flex->grid(), grids::item::Codigo); }
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

TEST_F(Items, RemovalRenumbersTheClassOrderAndLeavesTheLinks) {
  five();
  script.input(u"e"_s).box(u"O produto C3 foi Excluído com sucesso!"_s);
  support::doubleClick(screen->Flex, 3, grids::item::Descricao);
  EXPECT_EQ(script.lastInput().prompt, u"Deseja [E]xclui ou [A]lterar? [E] ou [A]"_s);
  EXPECT_EQ(script.lastInput().initial, u"A"_s);
  EXPECT_EQ(codes(), (QStringList{u"C1"_s, u"C2"_s, u"C4"_s, u"C5"_s}));
  EXPECT_EQ(column(screen->FlexMonta, Ordem), (QStringList{u"1"_s, u"2"_s, {}, u"3"_s, u"4"_s}));
  EXPECT_EQ(column(screen->FlexMonta, VinculoComFlex), (QStringList{u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s}));
  EXPECT_EQ(screen->lblTotaGeral->text(), u"120,40"_s);
}

TEST_F(Items, RemovingTheOnlyLineOrTheTitleIsToldToo) {
  start();
  support::click(screen->cmdINCLUIR);
  addItem({u"1"_s, u"PROD"_s, u"C1"_s});
  addMaterial(u"1"_s, u"PRODUTO"_s, u"1"_s);
  script.input(u"E"_s).box(u"O produto Código foi Excluído com sucesso!"_s);
  support::doubleClick(screen->Flex, 0, grids::item::Codigo);
  EXPECT_EQ(codes(), QStringList{u"C1"_s});
  script.input(u"E"_s).box(u"O produto C1 foi Excluído com sucesso!"_s);
  support::doubleClick(screen->Flex, 1, grids::item::Codigo);
  EXPECT_EQ(codes(), QStringList());
  EXPECT_EQ(screen->FlexMonta.rows(), 2);
}

TEST_F(Items, OtherAnswersAndTheIdleScreenDoNothing) {
  five();
  script.input(u"X"_s).input(std::nullopt);
  support::doubleClick(screen->Flex, 2);
  support::doubleClick(screen->Flex, 2);
  contexto().ModoOrcamento = u" "_s;
  support::doubleClick(screen->Flex, 2);
  EXPECT_EQ(codes().size(), 5);
}

TEST_F(Items, AChangedItemLeavesBeforeTheAssemblyOpensAndComesBackLast) {
  five();
  addMaterial(u"106"_s, u"ADEREÇO"_s, u"3"_s);
  script.input(u"A"_s).modal([this](forms::Form& form) {
    auto& assembly = static_cast<frmMontarProduto&>(form);
    EXPECT_EQ(codes(), (QStringList{u"C1"_s, u"C2"_s, u"C4"_s, u"C5"_s}));
    EXPECT_EQ(column(screen->FlexMonta, VinculoComFlex),
              (QStringList{u"1"_s, u"2"_s, {}, u"3"_s, u"4"_s, {}}));
    EXPECT_EQ(column(assembly.Flex->grid(), grids::material::Id), (QStringList{u"103"_s, u"106"_s}));
    EXPECT_EQ(column(assembly.FlexSombra, grids::material::Id), (QStringList{u"103"_s, u"106"_s}));
    EXPECT_EQ(assembly.Flex->grid().cols(), grids::material::kAssemblyColumns);
    EXPECT_EQ(forms::controlText(assembly.txtObservacoes), u"obs 3"_s);
    EXPECT_EQ(forms::controlText(assembly.txtQuantidade), u"2"_s);
    EXPECT_EQ(assembly.lblTotalUnitarioProduto->text(), u"12,50"_s);
    EXPECT_EQ(contexto().ModoItem, u"A"_s);
    EXPECT_EQ(screen->lblTotaGeral->text(), u"120,40"_s);
    support::click(assembly.cmdConfirmar);
  });
  support::doubleClick(screen->Flex, 3);
  EXPECT_EQ(codes(), (QStringList{u"C1"_s, u"C2"_s, u"C4"_s, u"C5"_s, u"C103"_s}));
  EXPECT_EQ(column(screen->FlexMonta, VinculoComFlex),
            (QStringList{u"1"_s, u"2"_s, {}, u"3"_s, u"4"_s, {}, u"5"_s, u"5"_s}));
  EXPECT_EQ(screen->lblTotaGeral->text(), u"145,40"_s);
}

TEST_F(Items, ANewItemOpensAnEmptyAssembly) {
  start();
  support::click(screen->cmdINCLUIR);
  script.modal([](forms::Form& form) {
    EXPECT_EQ(static_cast<frmMontarProduto&>(form).Flex->grid().rows(), 1);
    EXPECT_EQ(contexto().ModoItem, u"I"_s);
    form.unload();
  });
  support::click(screen->cmdIncluirItem);
}

}  // namespace
