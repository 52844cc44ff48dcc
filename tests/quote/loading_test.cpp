#include "closing/frmConfirmaPropCmrcTL.h"
#include "quote_case.h"

using namespace Qt::StringLiterals;

namespace {

class Loading : public QuoteCase {
 protected:
  /// Texts of controls, "name=text|name=text".
  static void expectShown(const forms::Form& form, const QString& fields) {
    for (const QString& field : fields.split(u'|')) {
      const auto* control = form.findChild<QObject*>(field.section(u'=', 0, 0));
      EXPECT_EQ(forms::controlText(control), field.section(u'=', 1)) << field.toStdString();
    }
  }
};

TEST_F(Loading, ShowsHeaderTermsItemsMaterialsAndHonorees) {
  store(3);
  sql(u"INSERT INTO pedi_veds (idpedi_veds, idprop_cmrc, nume_pedi) VALUES (1, 3, 77)"_s);
  start();
  load(3);
  expectShown(
      *screen,
      u"txtRowId=3|txtDesc=Bodas|cboCliente=Clara Festas Ltda|txtFoneExtra=3333|txtEmailExtra=c@x|"
      "cboClienteContato=Dora|txtFoneExtraContato=9999|txtEmailExtraContato=d@x|cboRespAtendimento=MARIA|"
      "txtNumePess=80|cboVendedor=BIA|cboLocalVenda=Loja Centro|cboTipoMktg=Indicação|"
      "cboTipoEven=Casamento|cboTipoServ=Lembrança|mskDtPropCmrc=01/03/2024|mskDataEven=20/04/2024|"
      "mskDtValidade=31/03/2024|mskDtEntrega=15/04/2024|txtObserva=Com fita|txtCondPagto=À vista|"
      "lblDesconto=1,50|lblPercDesconto=2,00|lblNumePedido=000077|lblTotaGeral=115,00|lblTotaAprov=57,75|"
      "lblTotaNaoAprov=57,25|lblTotalLiquido=56,25"_s);
  EXPECT_TRUE(screen->opShowRoom->isChecked());
  EXPECT_EQ(row(screen->Flex->grid(), 1),
            u"101|PROD|CX-100|Caixa branca|19,25|0,00|19,25|3|57,75|02/03/2024 14:05|UN|Azul");
  // A prototype's code is its id, its quantity has the unit's decimals, its unit stays empty.
  EXPECT_EQ(row(screen->Flex->grid(), 2), u"202|PROT|202|Lata dourada|22,90|0,00|22,90|2,50|57,25|||");
  EXPECT_EQ(row(screen->FlexMonta, 2), u"104|FITA|Fita de cetim|1,5|UN|1|12,50|18,75|FECHAMENTO|obs|4|1");
  EXPECT_EQ(column(screen->FlexHomg->grid(), grades::homenageado::Nome), u"Ana");
  expectShown(forms::form<frmConfirmaPropCmrcTL>(),
              u"txtObservacaoPedido=Cuidado|cboTransportadora=Rápido Sul|mskDataBase=10/03/2024|"
              "txtIdCondPg=41|lblParcelas=3|lblPrazos=030/060/090/"_s);
  EXPECT_FALSE(screen->cmdSALVAR->isEnabled());
}

TEST_F(Loading, NullColumnsAndAProductThatIsGoneLeaveFieldsEmptyAndTermsAtTheirDefault) {
  store(3);
  sql(u"DELETE FROM prod WHERE idprod = 101"_s);
  store(4,
        u"prop_cmrc_desc = null, show_excl = null, nome_clie = null, idvend = null, data_even = null, "
        "txt_cond_pgto = null, valo_dect = null, perc_dect = null, idtrpt = null, data_base = null, "
        "idcond_pgto = null, obse_pedi_veds = null"_s);
  start();
  load(3);
  EXPECT_EQ(row(screen->Flex->grid(), 1), u"101|PROD|||19,25|0,00|19,25|3|57,75|02/03/2024 14:05||Azul");
  EXPECT_EQ(screen->Flex->grid().rows(), 3);
  load(4);
  expectShown(*screen,
              u"txtDesc=|cboCliente=|cboVendedor=|mskDataEven=__/__/____|lblDesconto=0|lblPercDesconto=0|"
              "lblNumePedido=000000|txtCondPagto=5% de desconto para pagamento à vista ou\r\n"
              "50% de sinal e 50% na entrega\r\n"_s);
  EXPECT_TRUE(screen->opShowRoom->isChecked());
  expectShown(forms::form<frmConfirmaPropCmrcTL>(),
              u"cboTransportadora=|mskDataBase=15/03/2024|txtIdCondPg="_s);
}

}  // namespace
