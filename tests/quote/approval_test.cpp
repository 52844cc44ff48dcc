#include "quote_case.h"

using namespace Qt::StringLiterals;
using grids::item::DtAprov;

namespace {

class Approval : public QuoteCase {
 protected:
  void open() {
    start();
    support::click(screen->cmdINCLUIR);
    addItem({u"1"_s,
             u"PROD"_s,
             u"A|B"_s,
             {},
             {},
             {},
             {},
             {},
             u"10,00"_s,
             u"01/03/2024 08:00"_s,
             {},
             QString(50, u'o')});
    addItem({u"2"_s, u"PROD"_s, u"C2"_s, {}, {}, {}, {}, {}, u"20,00"_s});
    addItem({u"3"_s, u"PROD"_s, u"C3"_s, {}, {}, {}, {}, {}, u"30,00"_s, u"02/03/2024 08:00"_s});
    support::click(screen->cmdAbreAprova);
  }
  QStringList dates() const { return column(screen->Flex->grid(), DtAprov); }
  const QString saveFirst = u"Para que haja efeito na aprovação o Orcamento deverá ser salvo!"_s;
};

TEST_F(Approval, OpensWithAllLinesAndTheFocusOnTheDate) {
  open();
  EXPECT_TRUE(screen->frameAprova->isVisible());
  EXPECT_EQ(screen->focusWidget(), screen->mskDataAprv);
  EXPECT_EQ(screen->mskDataAprv->boxText(), u"15/03/2024 10:30"_s);
  EXPECT_EQ(screen->cboItemPropCmrc->count(), 4);
  EXPECT_EQ(screen->cboItemPropCmrc->text(), u"TODOS"_s);
  EXPECT_EQ(screen->cboItemPropCmrc->itemText(1),
            u"A B"_s + QString(17, u' ') + u"|"_s + QString(38, u'o') + u"|1   |"_s);
  EXPECT_EQ(screen->Flex->grid().row(), 3);
  support::key(screen->mskDataAprv, Qt::Key_Escape);
  EXPECT_TRUE(screen->frameAprova->isHidden());
}

TEST_F(Approval, ConfirmsOneLineOrAllAndLeavesTheTotals) {
  open();
  screen->cboItemPropCmrc->setCurrentIndex(2);
  screen->mskDataAprv->setBoxText(u"10/03/2024 09:00"_s);
  script.box(saveFirst);
  support::click(screen->cmdConfirmaAprova);
  EXPECT_EQ(dates(), (QStringList{u"01/03/2024 08:00"_s, u"10/03/2024 09:00"_s, u"02/03/2024 08:00"_s}));
  EXPECT_TRUE(screen->frameAprova->isHidden());
  EXPECT_EQ(screen->lblTotaAprov->text(), u"0,00"_s);
  support::click(screen->cmdAbreAprova);
  script.box(saveFirst);
  support::click(screen->cmdConfirmaAprova);
  EXPECT_EQ(dates(), QStringList(3, u"15/03/2024 10:30"_s));
}

TEST_F(Approval, CancelClearsTheCurrentRowWhateverIsChosen) {
  open();
  screen->cboItemPropCmrc->setCurrentIndex(1);
  support::click(screen->cmdCancelaAprova);
  EXPECT_EQ(dates(), (QStringList{u"01/03/2024 08:00"_s, {}, {}}));
  EXPECT_TRUE(screen->frameAprova->isHidden());
  screen->MontaGridItens();
  support::click(screen->cmdAbreAprova);
  support::click(screen->cmdCancelaAprova);
  EXPECT_EQ(screen->Flex->grid().text(0, DtAprov), u"Dt.Aprov."_s);
  script.box(saveFirst);
  support::click(screen->cmdConfirmaAprova);
}

class Mass : public QuoteCase {
 protected:
  void open() {
    start();
    support::click(screen->cmdINCLUIR);
    addItem({u"1"_s, u"PROD"_s, u"OLD"_s});
    support::click(screen->cmdIncluirMassa);
    EXPECT_EQ(screen->focusWidget(), screen->cboCole);
  }
  void client(const QString& people) {
    screen->cboCliente->setText(u"Clara Festas Ltda"_s);
    screen->txtNumePess->setText(people);
    screen->TabMassa->setCurrentIndex(1);
  }
  QStringList codes() const { return column(screen->Flex->grid(), grids::item::Codigo); }
  const QString question =
      u"Atenção!!!\nPara esta operação, os protótipos já existentes serão excluídos.\n"
      "Confirma? (S/N)"_s;
  const QString zero =
      u"A quantidade zerada, para o processamento será assumido a quantidade 1 para cada um dos "
      "protótipos"_s;
};

TEST_F(Mass, ByCustomerReplacesTheLinesWithItsLivePrototypes) {
  sql(u"INSERT INTO prot (idprot, desc_prot, valo_veds, idclie, data_inut) VALUES (203, 'Fora', '1', 5, '20240101')"_s);
  sql(u"INSERT INTO prot (idprot, desc_prot, valo_veds, idclie) VALUES (204, 'Sem unidade', '1.005', 5)"_s);
  open();
  client(u"2,5"_s);
  script.box(question, forms::Answer::Yes);
  support::click(screen->cmdConfirmaMassaClie);
  EXPECT_EQ(script.lastBox().title, screen->windowTitle());
  EXPECT_EQ(codes(), (QStringList{u"201"_s, u"202"_s, u"204"_s}));
  EXPECT_EQ(cells(screen->Flex->grid(), 2), (QStringList{u"202"_s,
                                                         u"PROT"_s,
                                                         u"202"_s,
                                                         u"Lata dourada"_s,
                                                         u"22,90"_s,
                                                         u"0,00"_s,
                                                         u"22,90"_s,
                                                         u"2,50"_s,
                                                         u"57,25"_s,
                                                         {},
                                                         {},
                                                         {}}));
  EXPECT_EQ(screen->Flex->grid().text(3, grids::item::Quantidade), u"3"_s);
  EXPECT_EQ(screen->Flex->grid().text(3, grids::item::Total), u"2,51"_s);
  EXPECT_TRUE(screen->frameMassa->isHidden());
}

TEST_F(QuoteCase, HonoreesAreAddedTakenBackAndMended) {
  start();
  support::click(screen->cmdINCLUIR);
  support::click(screen->cmdMultiHomenagem);
  EXPECT_EQ(screen->focusWidget(), screen->txtNomeHomg);
  const auto names = [this] { return column(screen->FlexHomg->grid(), grids::honoree::Nome); };
  for (const auto& name : {u"  ana lúcia "_s, u"   "_s, u"Rui"_s}) {
    support::type(screen->txtNomeHomg, name);
    support::click(screen->cmdIncluirHomg);
    EXPECT_EQ(screen->focusWidget(), screen->txtNomeHomg);
  }
  EXPECT_EQ(names(), (QStringList{u"ANA LÚCIA"_s, u"RUI"_s}));
  support::doubleClick(screen->FlexHomg, 0, grids::honoree::Nome);
  EXPECT_EQ(names().size(), 2);
  support::doubleClick(screen->FlexHomg, 1, grids::honoree::Nome);
  EXPECT_EQ(screen->txtNomeHomg->text(), u"ANA LÚCIA"_s);
  EXPECT_EQ(names(), QStringList{u"RUI"_s});
  contexto().ModoOrcamento = u" "_s;
  support::doubleClick(screen->FlexHomg, 1, grids::honoree::Nome);
  EXPECT_EQ(names(), QStringList{u"RUI"_s});
  contexto().ModoOrcamento = u"A"_s;
  support::doubleClick(screen->FlexHomg, 1, grids::honoree::Nome);
  EXPECT_EQ(screen->FlexHomg->grid().rows(), 1);
}

}  // namespace
