#include "quote_case.h"

using namespace Qt::StringLiterals;

namespace {

TEST_F(QuoteCase, ApprovalNamesALineByItsThirdFieldAndCancelClearsTheCurrentRow) {
  start();
  support::click(screen->cmdINCLUIR);
  addItem(u"1;PROD;A|B;;;;;;10,00;01/03/2024 08:00;;"_s + QString(50, u'o'));
  addItem(u"2;PROD;C2;;;;;;20,00"_s);
  addItem(u"3;PROD;C3;;;;;;30,00;02/03/2024 08:00"_s);
  const auto dates = [this] { return column(screen->Flex->grid(), grids::item::DtAprov); };
  const QString saveFirst = u"Para que haja efeito na aprovação o Orcamento deverá ser salvo!"_s;
  support::click(screen->cmdAbreAprova);
  EXPECT_EQ(screen->cboItemPropCmrc->itemText(1),
            u"A B"_s + QString(17, u' ') + u"|"_s + QString(38, u'o') + u"|1   |"_s);
  screen->cboItemPropCmrc->setCurrentIndex(2);
  screen->mskDataAprv->setBoxText(u"10/03/2024 09:00"_s);
  script.box(saveFirst);
  support::click(screen->cmdConfirmaAprova);
  EXPECT_EQ(dates(), u"01/03/2024 08:00;10/03/2024 09:00;02/03/2024 08:00");
  EXPECT_EQ(screen->lblTotaAprov->text(), u"0,00"_s);
  support::click(screen->cmdAbreAprova);
  screen->cboItemPropCmrc->setCurrentIndex(1);
  support::click(screen->cmdCancelaAprova);
  EXPECT_EQ(dates(), u"01/03/2024 08:00;10/03/2024 09:00;");
  screen->MontaGridItens();
  support::click(screen->cmdAbreAprova);
  support::click(screen->cmdCancelaAprova);
  EXPECT_EQ(screen->Flex->grid().text(0, grids::item::DtAprov), u"Dt.Aprov."_s);
  script.box(saveFirst);
  support::click(screen->cmdConfirmaAprova);
}

TEST_F(QuoteCase, PrototypesInMassComeWithTheQuantityOfTheQuoteInTheirUnit) {
  sql(u"INSERT INTO prot (idprot, valo_veds, idclie, data_inut) VALUES (203, '1', 5, '20240101')"_s);
  sql(u"INSERT INTO prot (idprot, desc_prot, valo_veds, idclie) VALUES (204, 'Sem unidade', '1.005', 5)"_s);
  start();
  support::click(screen->cmdINCLUIR);
  addItem(u"1;PROD;OLD"_s);
  support::click(screen->cmdIncluirMassa);
  screen->cboCliente->setText(u"Clara Festas Ltda"_s);
  screen->txtNumePess->setText(u"2,5"_s);
  screen->TabMassa->setCurrentIndex(1);
  script.box(
      u"Atenção!!!\nPara esta operação, os protótipos já existentes serão excluídos.\n"
      "Confirma? (S/N)"_s,
      forms::Answer::Yes);
  support::click(screen->cmdConfirmaMassaClie);
  EXPECT_EQ(script.lastBox().title, screen->windowTitle());
  EXPECT_EQ(column(screen->Flex->grid(), grids::item::Codigo), u"201;202;204");
  EXPECT_EQ(cells(screen->Flex->grid(), 2), u"202;PROT;202;Lata dourada;22,90;0,00;22,90;2,50;57,25;;;");
  EXPECT_EQ(cells(screen->Flex->grid(), 3), u"204;PROT;204;Sem unidade;1,01;0,00;1,01;3;2,51;;;");
}

}  // namespace
