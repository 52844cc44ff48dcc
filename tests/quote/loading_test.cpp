#include "closing/frmConfirmaPropCmrcTL.h"
#include "quote_case.h"

using namespace Qt::StringLiterals;

namespace {

using Loading = QuoteCase;

TEST_F(Loading, ShowsHeaderTermsItemsMaterialsAndHonorees) {
  store(3);
  sql(u"INSERT INTO pedi_veds (idpedi_veds, idprop_cmrc, nume_pedi) VALUES (1, 3, 77)"_s);
  start();
  load(3);
  const std::pair<const QObject*, QString> header[] = {{screen->txtRowId, u"3"_s},
                                                       {screen->txtDesc, u"Bodas"_s},
                                                       {screen->cboCliente, u"Clara Festas Ltda"_s},
                                                       {screen->txtFoneExtra, u"3333"_s},
                                                       {screen->txtEmailExtra, u"c@x"_s},
                                                       {screen->cboClienteContato, u"Dora"_s},
                                                       {screen->txtFoneExtraContato, u"9999"_s},
                                                       {screen->txtEmailExtraContato, u"d@x"_s},
                                                       {screen->cboRespAtendimento, u"MARIA"_s},
                                                       {screen->txtNumePess, u"80"_s},
                                                       {screen->cboVendedor, u"BIA"_s},
                                                       {screen->cboLocalVenda, u"Loja Centro"_s},
                                                       {screen->cboTipoMktg, u"Indicação"_s},
                                                       {screen->cboTipoEven, u"Casamento"_s},
                                                       {screen->cboTipoServ, u"Lembrança"_s},
                                                       {screen->mskDtPropCmrc, u"01/03/2024"_s},
                                                       {screen->mskDataEven, u"20/04/2024"_s},
                                                       {screen->mskDtValidade, u"31/03/2024"_s},
                                                       {screen->mskDtEntrega, u"15/04/2024"_s},
                                                       {screen->txtObserva, u"Com fita"_s},
                                                       {screen->txtCondPagto, u"À vista"_s},
                                                       {screen->lblDesconto, u"1,50"_s},
                                                       {screen->lblPercDesconto, u"2,00"_s},
                                                       {screen->lblNumePedido, u"000077"_s},
                                                       {screen->lblTotaGeral, u"115,00"_s},
                                                       {screen->lblTotaAprov, u"57,75"_s},
                                                       {screen->lblTotaNaoAprov, u"57,25"_s},
                                                       {screen->lblTotalLiquido, u"56,25"_s}};
  for (const auto& [control, text] : header)
    EXPECT_EQ(forms::controlText(control), text) << control->objectName().toStdString();
  EXPECT_TRUE(screen->opShowRoom->isChecked());
  EXPECT_EQ(cells(screen->Flex->grid(), 1),
            (QStringList{u"101"_s, u"PROD"_s, u"CX-100"_s, u"Caixa branca"_s, u"19,25"_s, u"0,00"_s,
                         u"19,25"_s, u"3"_s, u"57,75"_s, u"02/03/2024 14:05"_s, u"UN"_s, u"Azul"_s}));
  // A prototype's code is its id, its quantity has the unit's decimals, its unit stays empty.
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
  EXPECT_EQ(cells(screen->FlexMonta, 2),
            (QStringList{u"104"_s, u"FITA"_s, u"Fita de cetim"_s, u"1,5"_s, u"UN"_s, u"1"_s, u"12,50"_s,
                         u"18,75"_s, u"FECHAMENTO"_s, u"obs"_s, u"4"_s, u"1"_s}));
  EXPECT_EQ(column(screen->FlexHomg->grid(), grids::honoree::Nome), QStringList{u"Ana"_s});
  auto& terms = forms::form<frmConfirmaPropCmrcTL>();
  EXPECT_EQ(forms::controlText(terms.txtObservacaoPedido), u"Cuidado"_s);
  EXPECT_EQ(terms.cboTransportadora->text(), u"Rápido Sul"_s);
  EXPECT_EQ(terms.mskDataBase->boxText(), u"10/03/2024"_s);
  EXPECT_EQ(forms::controlText(terms.txtIdCondPg), u"41"_s);
  EXPECT_EQ(forms::controlText(terms.lblPrazos), u"030/060/090/"_s);
  EXPECT_FALSE(screen->cmdSALVAR->isEnabled());
}

TEST_F(Loading, NullColumnsLeaveFieldsEmptyAndTermsAtTheirDefault) {
  store(3);
  store(4,
        u"prop_cmrc_desc = null, show_excl = null, nome_clie = null, idvend = null, data_even = null, "
        "txt_cond_pgto = null, valo_dect = null, perc_dect = null, idtrpt = null, data_base = null, "
        "idcond_pgto = null, obse_pedi_veds = null"_s);
  start();
  load(3);
  load(4);
  EXPECT_EQ(screen->txtDesc->text() + screen->cboCliente->text() + screen->cboVendedor->text(), QString());
  EXPECT_EQ(screen->mskDataEven->boxText(), u"__/__/____"_s);
  EXPECT_TRUE(forms::controlText(screen->txtCondPagto).startsWith(u"5% de desconto"_s));
  EXPECT_EQ(screen->lblDesconto->text() + screen->lblPercDesconto->text(), u"00"_s);
  EXPECT_TRUE(screen->opShowRoom->isChecked());
  EXPECT_EQ(screen->lblNumePedido->text(), u"000000"_s);
  auto& terms = forms::form<frmConfirmaPropCmrcTL>();
  EXPECT_EQ(terms.cboTransportadora->text(), QString());
  EXPECT_EQ(terms.mskDataBase->boxText(), u"15/03/2024"_s);
  EXPECT_EQ(forms::controlText(terms.txtIdCondPg), u"41"_s);
}

TEST_F(Loading, ANumberWithoutAQuoteChangesNothing) {
  store(3);
  start();
  load(3);
  script.box(u"Orçamento não localizado!"_s);
  load(999);
  EXPECT_EQ(screen->txtDesc->text(), u"Bodas"_s);
  EXPECT_EQ(screen->focusWidget(), screen->txtCodigo);
}

TEST_F(Loading, AnItemWhoseProductIsGoneShowsEmptyCells) {
  store(3);
  sql(u"DELETE FROM prod WHERE idprod = 101"_s);
  start();
  load(3);
  EXPECT_EQ(screen->Flex->grid().text(1, grids::item::Codigo), QString());
  EXPECT_EQ(screen->Flex->grid().text(1, grids::item::Quantidade), u"3"_s);
  EXPECT_EQ(screen->Flex->grid().rows(), 3);
}

}  // namespace
