#include "assembly/frmMontarProduto.h"
#include "quote_case.h"

using namespace Qt::StringLiterals;
using grids::material::VinculoComFlex;

// Lines of a quote that is being made: approved, looked up in the panel that users don't see, changed.
namespace {

class Items : public QuoteCase {
 protected:
  Items() {
    start();
    support::click(screen->cmdINCLUIR);
  }
  void look(QRadioButton* origin, const QString& code) {
    for (QWidget* hidden : std::initializer_list<QWidget*>{screen->Frame3, screen->opPROD, screen->opPROT})
      hidden->show();
    origin->setChecked(true);
    screen->txtCodProduto->setText(code);
    support::click(screen->cmdPesquisar_ProdProt);
  }
};

TEST_F(Items, AreApprovedByTheThirdFieldOfTheirEntry) {
  addItem(u"1;PROD;A|B;;;;;;10,00;;;"_s + QString(50, u'o'));
  addItem(u"2;PROD;C2;;;;;;20,00"_s);
  support::click(screen->cmdAbreAprova);
  EXPECT_EQ(screen->cboItemPropCmrc->itemText(1),
            u"A B"_s + QString(17, u' ') + u"|"_s + QString(38, u'o') + u"|1   |"_s);
  screen->cboItemPropCmrc->setCurrentIndex(1);
  script.box(u"Para que haja efeito na aprovação o Orcamento deverá ser salvo!"_s);
  support::click(screen->cmdConfirmaAprova);
  EXPECT_EQ(column(screen->Flex->grid(), grids::item::DtAprov), u"15/03/2024 10:30|"_s);
}

TEST_F(Items, AnHonoreeTakenOutByKeyComesBackIntoItsBox) {
  support::click(screen->cmdMultiHomenagem);
  support::type(screen->txtNomeHomg, u"ana"_s);
  support::click(screen->cmdIncluirHomg);
  for (const auto key : {Qt::Key_Down, Qt::Key_Return}) support::key(screen->FlexHomg, key);
  EXPECT_EQ(screen->txtNomeHomg->text(), u"ANA"_s);
  EXPECT_EQ(screen->FlexHomg->grid().rows(), 1);
}

TEST_F(Items, APromotionWithALastDayAndNoDiscountEndsTheProgram) {
  sql(u"UPDATE prod SET perc_dect = null, data_limi_prom = '20240320' WHERE idprod = 101"_s);
  script.box(u"Erro em tempo de execução '94':\n\nUso inválido de Null"_s).expectEnd(1);
  look(screen->opPROD, u"CX-100"_s);
}

TEST_F(Items, APrototypeKeepsTheDiscountAndTheUnitOfTheLastLookup) {
  sql(u"UPDATE prod SET perc_dect='40' WHERE idprod = 101"_s);
  sql(u"UPDATE prot SET idprod=0 WHERE idprot = 201"_s);
  look(screen->opPROD, u"CX-100"_s);
  look(screen->opPROT, u"201"_s);
  EXPECT_EQ(screen->txtDesconto->text() + u' ' + screen->lblVrLiqProt->text(), u"5,00 30,00"_s);
  screen->txtQuantidade->setText(u"2,5"_s);
  support::click(screen->cmdIncluir_ProdProt);
  EXPECT_EQ(row(screen->Flex->grid(), 1), u"201|PROT|201|Caixa lembrança|35,00|5,00|30,00|3|90,00||UN|"_s);
  EXPECT_EQ(screen->txtCodProduto->text() + screen->txtQuantidade->text(), u"0"_s);
  EXPECT_EQ(screen->lblTotaGeral->text(), u"0,00"_s);
}

TEST_F(Items, AChangedItemLeavesBeforeTheAssemblyOpensAndComesBackLast) {
  for (const auto& n : {u"1"_s, u"2"_s, u"3"_s}) {
    addItem(u"10%1;PROD;C%1;D;1,00;0,00;12,50;2;%10,10;;UN;obs %1"_s.replace(u"%1"_s, n));
    addMaterial(u"10"_s + n, u"PRODUTO"_s, n);
  }
  addMaterial(u"106"_s, u"ADEREÇO"_s, u"2"_s);
  script.input(u"A"_s).modal([this](forms::Form& form) {
    auto& assembly = static_cast<frmMontarProduto&>(form);
    EXPECT_EQ(column(screen->Flex->grid(), grids::item::Codigo), u"C1|C3"_s);
    EXPECT_EQ(column(screen->FlexMonta, VinculoComFlex), u"1||2|"_s);
    EXPECT_EQ(column(assembly.Flex->grid(), grids::material::Id), u"102|106"_s);
    EXPECT_EQ(column(assembly.FlexSombra, grids::material::Id), u"102|106"_s);
    EXPECT_EQ(assembly.Flex->grid().cols(), grids::material::kAssemblyColumns);
    EXPECT_EQ(forms::controlText(assembly.txtObservacoes), u"obs 2"_s);
    EXPECT_EQ(forms::controlText(assembly.txtQuantidade), u"2"_s);
    EXPECT_EQ(assembly.lblTotalUnitarioProduto->text(), u"12,50"_s);
    EXPECT_EQ(contexto().ModoItem, u"A"_s);
    EXPECT_EQ(screen->lblTotaGeral->text(), u"40,20"_s);
    support::click(assembly.cmdConfirmar);
  });
  support::doubleClick(screen->Flex, 2);
  EXPECT_EQ(column(screen->Flex->grid(), grids::item::Codigo), u"C1|C3|C102"_s);
  EXPECT_EQ(column(screen->FlexMonta, VinculoComFlex), u"1||2||3|3"_s);
  EXPECT_EQ(screen->lblTotaGeral->text(), u"65,20"_s);
}

}  // namespace
