#include "documents/document_values.h"
#include "quote_case.h"

using namespace Qt::StringLiterals;

namespace {

const QString kMaterial =
    u"INSERT INTO PROP_CMRC_DETA_MONTA (IDPROP_CMRC, IDPROP_CMRC_DETA, IDPROD, QTDE, UNID_MEDI, "
    "QTDE_UNID_MEDI, VALO_UNIT, VALO_TOTA, TIPO_MATE_PRIMA, OBSE_PROP_CMRC_DETA_MONTA, ORDEM_MATE_PRIMA, "
    "DATA_INCL, USER_INCL) VALUES (%1, '1.5', 'UN', '1', '12.50', '18.75', %2, '20240315', '7')"_s;
const QString kItemId = u"SELECT @@IDENTITY AS 'MAXPROPCMRCDETA'"_s;

class Saving : public QuoteCase {
 protected:
  /// A new quote with every field and one assembled line with two materials, a prototype and an honoree.
  void fillNew() {
    support::click(screen->cmdINCLUIR);
    const QString fields =
        u"cboVendedor=BIA|cboCliente=Clara Festas Ltda|cboClienteContato=Dora|cboLocalVenda=Loja Centro|"
        "cboTipoMktg=Indicação|cboTipoEven=Casamento|cboTipoServ=Lembrança|cboRespAtendimento=MARIA|"
        "mskDataEven=20/04/2024|mskDtValidade=31/03/2024|mskDtEntrega=15/04/2024|txtDesc= Bodas de prata |"
        "txtFoneExtra=(19) 3333,1|txtEmailExtra=c@x|txtFoneExtraContato=9999|txtEmailExtraContato=d@x|"
        "txtNumePess=80|txtObserva=Fita azul\nLaço|txtCondPagto=À vista"_s;
    for (const QString& field : fields.split(u'|'))
      forms::setControlText(forms::findControl(u"frmPropCmrcTL"_s, field.section(u'=', 0, 0)),
                            field.section(u'=', 1));
    addItem(u"101;PROD;CX-100;Caixa branca;19,25;0,00;19,25;3;57,75;;UN; Azul "_s);
    addItem(u"202;PROT;202;Lata dourada;22,90;0,00;22,90;2,50;57,25;14/03/2024 16:20"_s);
    addMaterial(u"101"_s, u"PRODUTO"_s, u"1"_s);
    addMaterial(u"106"_s, u"ADEREÇO"_s, u"1"_s);
    screen->FlexHomg->grid().addItem(u"\tana lúcia\t"_s);
  }
  void expectWrites(const QStringList& expected) {
    const QStringList ran = writes();
    ASSERT_EQ(ran.size(), expected.size()) << ran.join(u'\n').toStdString();
    for (qsizetype i = 0; i < ran.size(); ++i) EXPECT_EQ(ran[i], expected[i]) << "statement " << i;
  }
};

TEST_F(Saving, ANewQuoteGoesOutInUpperCaseInOneTransaction) {
  start();
  fillNew();
  writes();
  script.box(u"Registro Gravado com sucesso!\nOrçamento nr.1"_s);
  support::click(screen->cmdSALVAR);
  expectWrites(
      {u"BEGIN"_s,
       u"INSERT INTO PROP_CMRC (IDVEND, IDCLIE, IDCLIE_CONT, IDLOCA_VEDS, IDTIPO_MKTG, IDTIPO_EVEN, "
       "IDTIPO_SERV, SHOW_EXCL, DATA_PROP_CMRC, DATA_EVEN, DATA_VALI, DATA_ENTG, PROP_CMRC_DESC, "
       "NOME_CLIE, FONE_CLIE, EMAI_CLIE, NOME_CLIE_CONT, FONE_CLIE_CONT, EMAI_CLIE_CONT, "
       "IDRESV_PROP_CMRC, NUME_PESS, OBSE_PROP_CMRC, TXT_COND_PGTO, DATA_INCL, USER_INCL) VALUES ('5', "
       "'5', '22', '11', '12', '13', '14', 'E', '20240315 00:00', '20240420 00:00', '20240331 00:00', "
       "'20240415 00:00', 'BODAS DE PRATA', 'CLARA FESTAS LTDA', '(19) 3333,1', 'C@X', 'DORA', '9999', "
       "'D@X', '7', '80', 'FITA AZUL\r\nLAÇO', 'À VISTA', '20240315 10:30', '7')"_s,
       u"SELECT @@IDENTITY AS 'MAXPROPCMRC'"_s,
       u"INSERT INTO PROP_CMRC_DETA (IDPROP_CMRC, IDMOED, IDPRODPROT, PROD_PROT, QTDE, VALO_UNIT, "
       "VALO_DECT, VALO_LIQU, VALO_TOTA, OBSE_PROP_CMRC_DETA, DATA_INCL, USER_INCL) VALUES ('1', '0', "
       "'101', 'PROD', '3', '19.25', '0.00', '19.25', '57.75', 'AZUL', '20240315', '7')"_s,
       kItemId,
       u"INSERT INTO PROP_CMRC_DETA (IDPROP_CMRC, IDMOED, IDPRODPROT, PROD_PROT, QTDE, VALO_UNIT, "
       "VALO_DECT, VALO_LIQU, VALO_TOTA, DATA_APROV, OBSE_PROP_CMRC_DETA, DATA_INCL, USER_INCL) VALUES "
       "('1', '0', '202', 'PROT', '2.50', '22.90', '0.00', '22.90', '57.25', '20240314 16:20', '', "
       "'20240315', '7')"_s,
       kItemId, kMaterial.arg(u"'1', '1', '101'"_s, u"'PRODUTO', 'OBS', '1'"_s),
       kMaterial.arg(u"'1', '1', '106'"_s, u"'ADEREÇO', 'OBS', '6'"_s),
       u"UPDATE PROT SET PROP_CMRC_APRV = '1', DATA_APRV = '20240314 16:20' WHERE IDPROT = 202"_s,
       u"INSERT INTO PROP_CMRC_HOMG (IDPROP_CMRC, NOME_HOMG, DATA_INCL, USER_INCL) VALUES ('1', 'ANA "
       "LÚCIA', '20240315', '7')"_s,
       u"COMMIT"_s});
  EXPECT_EQ(screen->txtCodigo->text(), u"1"_s);
  EXPECT_EQ(screen->focusWidget(), screen->txtCodigo);
  EXPECT_EQ(documento().IdDocumento, 1);
  EXPECT_EQ(screen->Flex->grid().rows(), 1);
  EXPECT_EQ(contexto().ModoOrcamento, u" "_s);
  EXPECT_EQ(contexto().ModoItem, QString());
  support::click(screen->cmdPesquisar_PropCmrc);
  EXPECT_EQ(screen->txtDesc->text(), u"BODAS DE PRATA"_s);
  EXPECT_EQ(column(screen->FlexMonta, grades::material::VinculoComFlex), u"1|1");
}

TEST_F(Saving, WhatAnAlterationDidNotTouchGoesBackAsItWasLoaded) {
  const QString phone(60, u'3');
  store(3,
        u"nume_pess='150 a 200', idvend=99, idclie=77, nome_clie='Casa Antiga', fone_clie='%1'"_s.arg(phone));
  start();
  const auto alter = [this](QWidget* field, const QString& text) {
    load(3);
    support::click(screen->cmdALTERAR);
    forms::setControlText(field, text);
    script.box(u"Registro Gravado com sucesso!\nOrçamento nr.3"_s);
    support::click(screen->cmdSALVAR);
    return ask(
        u"SELECT nume_pess || '|' || idvend || '|' || idclie || '|' || nome_clie || '|' || idclie_cont || "
        "'|' || fone_clie FROM prop_cmrc"_s);
  };
  EXPECT_EQ(alter(screen->txtDesc, u"Outra"_s), u"150 A 200|99|77|CASA ANTIGA|22|"_s + phone);
  sql(u"UPDATE prop_cmrc SET nume_pess='1234567890'"_s);
  EXPECT_EQ(alter(screen->cboVendedor, u"BIA"_s), u"1234567890|5|77|CASA ANTIGA|22|"_s + phone);
  EXPECT_EQ(alter(screen->txtNumePess, u"12"_s), u"12|5|77|CASA ANTIGA|22|"_s + phone);
  // A contact is one of its customer's.
  EXPECT_EQ(alter(screen->cboCliente, u"Ninguém"_s), u"12|5|0|NINGUÉM|0|"_s + phone);
  // One who is registered by now is found.
  sql(u"UPDATE prop_cmrc SET nome_clie='CLARA FESTAS LTDA'"_s);
  EXPECT_EQ(alter(screen->txtDesc, u"Mais uma"_s), u"12|5|5|CLARA FESTAS LTDA|22|"_s + phone);
}

TEST_F(Saving, AnAlteredQuoteRewritesItsRowsAndKeepsTheCaseOfRemarks) {
  store(3);
  start();
  load(3);
  support::click(screen->cmdALTERAR);
  for (QObject* field : std::initializer_list<QObject*>{screen->txtDesc, screen->txtEmailExtra,
                                                        screen->txtNumePess, screen->txtObserva})
    forms::setControlText(field, {});
  screen->mskDataEven->setBoxText({});
  writes();
  script.box(u"Registro Gravado com sucesso!\nOrçamento nr.3"_s);
  support::click(screen->cmdSALVAR);
  expectWrites(
      {u"BEGIN"_s,
       u"UPDATE PROP_CMRC SET IDVEND='5', IDLOCA_VEDS='11', IDCLIE='5', IDCLIE_CONT='22', "
       "IDTIPO_MKTG='12', IDTIPO_EVEN='13', IDTIPO_SERV='14', SHOW_EXCL='S', PROP_CMRC_DESC=NULL, "
       "DATA_PROP_CMRC='20240301 00:00', DATA_EVEN=NULL, DATA_VALI='20240331 00:00', DATA_ENTG='20240415 "
       "00:00', NOME_CLIE='CLARA FESTAS LTDA', FONE_CLIE='3333', EMAI_CLIE=NULL, NOME_CLIE_CONT='DORA', "
       "FONE_CLIE_CONT='9999', EMAI_CLIE_CONT='D@X', IDRESV_PROP_CMRC='7', NUME_PESS='', "
       "TXT_COND_PGTO='À VISTA', OBSE_PROP_CMRC=NULL WHERE (IDPROP_CMRC=3)"_s,
       u"DELETE FROM PROP_CMRC_DETA WHERE (idPROP_CMRC=3)"_s,
       u"DELETE FROM PROP_CMRC_DETA_MONTA WHERE (idPROP_CMRC=3)"_s,
       u"DELETE FROM PROP_CMRC_HOMG WHERE (idPROP_CMRC=3)"_s,
       u"insert into prop_cmrc_deta (idprop_cmrc, idmoed, idprodprot, PROD_PROT, qtde, valo_unit, "
       "valo_dect, valo_liqu, valo_tota, data_aprov, OBSE_PROP_CMRC_DETA, data_incl, user_incl) values "
       "('3', '0', '101', 'PROD', '3', '19.25', '0.00', '19.25', '57.75', '20240302 14:05', 'Azul', "
       "'20240315', '7')"_s,
       kItemId,
       u"insert into prop_cmrc_deta (idprop_cmrc, idmoed, idprodprot, PROD_PROT, qtde, valo_unit, "
       "valo_dect, valo_liqu, valo_tota, OBSE_PROP_CMRC_DETA, data_incl, user_incl) values ('3', '0', "
       "'202', 'PROT', '2.50', '22.90', '0.00', '22.90', '57.25', '', '20240315', '7')"_s,
       kItemId, kMaterial.arg(u"'3', '33', '101'"_s, u"'PRODUTO', 'OBS', '1'"_s),
       kMaterial.arg(u"'3', '33', '104'"_s, u"'FECHAMENTO', 'OBS', '4'"_s),
       u"insert into PROP_CMRC_HOMG (idprop_cmrc, nome_homg, data_incl, user_incl) values ('3', 'Ana', "
       "'20240315', '7')"_s,
       u"COMMIT"_s});
  EXPECT_EQ(screen->txtCodigo->text(), u"3"_s);
  EXPECT_EQ(ask(u"SELECT user_incl FROM prop_cmrc WHERE idprop_cmrc = 3"_s), u"8"_s);
}

TEST_F(Saving, EmptyOptionalFieldsAreLeftOutAndMaterialsWithoutALineAreNotWritten) {
  start();
  support::click(screen->cmdINCLUIR);
  screen->cboRespAtendimento->setText(u"MARIA"_s);
  screen->mskDtPropCmrc->setBoxText({});
  forms::setControlText(screen->txtCondPagto, {});
  addItem(u"101;PROD;CX-100;;1;0;1;1;1;ontem"_s);
  for (const auto& link : {u"2"_s, u"0"_s, QString(), u"1,5"_s}) addMaterial(u"104"_s, u"Fita"_s, link);
  addMaterial(u"105"_s, u"Fita"_s, u"1"_s);
  writes();
  script.box(u"Registro Gravado com sucesso!\nOrçamento nr.1"_s);
  support::click(screen->cmdSALVAR);
  const QStringList ran = writes();
  EXPECT_EQ(ran.value(1),
            u"INSERT INTO PROP_CMRC (IDVEND, IDCLIE, IDCLIE_CONT, IDLOCA_VEDS, IDTIPO_MKTG, IDTIPO_EVEN, "
            "IDTIPO_SERV, SHOW_EXCL, NOME_CLIE, FONE_CLIE, NOME_CLIE_CONT, FONE_CLIE_CONT, IDRESV_PROP_CMRC, "
            "NUME_PESS, DATA_INCL, USER_INCL) VALUES ('', '', '', '', '', '', '', 'E', '', '', '', '', '7', "
            "'', '20240315 10:30', '7')"_s);
  EXPECT_FALSE(ran.value(3).contains(u"DATA_APROV"_s));
  EXPECT_EQ(ask(u"SELECT group_concat(idprod || '/' || ordem_mate_prima) FROM prop_cmrc_deta_monta"_s),
            u"105/8"_s);
}

}  // namespace
