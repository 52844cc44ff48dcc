#include "closing_case.h"

using namespace Qt::StringLiterals;
using support::click;
using support::type;

namespace {

/// A stored quote on the screen, its confirmation screen open on 200,00 with 10% off in three instalments.
class Confirming : public Closing {
 protected:
  Confirming() {
    sql(u"insert into prop_cmrc (idprop_cmrc, idclie) values (123, 5)"_s);
    sql(u"insert into prop_cmrc_parc values (123, 9, 9, '9', '20200101')"_s);
    quote().txtRowId->setText(u"123"_s);
  }

  void terms(frmConfirmaPropCmrcTL& form) {
    type(form.txtPercDesc, u"10"_s);
    choose(u"41"_s);
    click(form.cmdConfirmaCondPg);
    forms::setControlText(form.cboTransportadora, u" Rápido Sul "_s);
  }
};

}  // namespace

TEST_F(Confirming, WritesTermsAndInstalmentsInThreeTransactions) {
  closingOf(u"200"_s, [this](frmConfirmaPropCmrcTL& form) {
    terms(form);
    type(form.txtObservacaoPedido, u" Entregar à tarde\nno portão "_s);
    support::settle();
    (void)statements();
    form.mskDataBase->setBoxText(QString());
    script.box(u"Informar data base."_s);
    click(form.cmdConfirmar);
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(statements(), QStringList());
    form.mskDataBase->setBoxText(u"05/03/2024"_s);
    click(form.cmdConfirmar);
    EXPECT_FALSE(form.isVisible());
    const QString insert =
        u"INSERT INTO PROP_CMRC_PARC (IDPROP_CMRC, NUME_PARC, QTDE_DIAS, VALO_PARC, DATA_VENC) VALUES "_s;
    const QStringList expected{
        u"SELECT TRPT.IDTRPT FROM TRPT, PESS WHERE PESS.IDPESS = TRPT.IDPESS AND PESS.NOME_CONH='RÁPIDO SUL'"_s,
        u"BEGIN"_s,
        u"UPDATE PROP_CMRC SET idTRPT='5', IDCOND_PGTO = '41' , DATA_BASE='20240305' , VALO_DECT='20.00' , "
        "PERC_DECT='10.0000' , OBSE_PEDI_VEDS='Entregar à tarde\r\nno portão' WHERE (idPROP_CMRC=123)"_s,
        u"COMMIT"_s,
        u"BEGIN"_s,
        u"DELETE PROP_CMRC_PARC WHERE idPROP_CMRC = '123'"_s,
        u"COMMIT"_s,
        u"BEGIN"_s,
        insert + u"('123', '1', '30', '60.00', '20240404')"_s,
        insert + u"('123', '2', '60', '60.00', '20240504')"_s,
        insert + u"('123', '3', '90', '60.00', '20240603')"_s,
        u"COMMIT"_s};
    EXPECT_EQ(statements(), expected);
  });
  EXPECT_EQ(quote().lblDesconto->text(), u"20,00"_s);
  EXPECT_EQ(quote().lblPercDesconto->text(), u"10,0000"_s);
  // Hidden, not unloaded: the next closing finds it as it was left.
  EXPECT_EQ(instalments().size(), 3);
  EXPECT_TRUE(screen().cmdDesfazer->isEnabled());
}
