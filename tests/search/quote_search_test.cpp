#include "search/frmBROWSE_PropCmrc.h"
#include "search_test.h"

using namespace Qt::StringLiterals;

namespace {

class QuoteSearch : public SearchTest {
 protected:
  QuoteSearch() {
    for (const auto& values :
         {u"8, '20240301 09:30', 'Batizado da Íris', 'Ana Lima', null, '40', '20240520', null, null"_s,
          u"9, '20240310', 'Casamento', 'Bia Íris', '20240315', '', null, '20240401', null"_s,
          u"10, '20240320', 'Bodas', 'Ana Souza', '20240402', '120', null, null, null"_s,
          u"11, '20240330', 'Casamento antigo', 'Ana Lima', null, '', null, null, '20240501'"_s})
      sql(u"INSERT INTO prop_cmrc (idprop_cmrc, data_prop_cmrc, prop_cmrc_desc, nome_clie, data_fech, "
          u"nume_pess, data_even, data_vali, data_desa) VALUES (%1)"_s.arg(values));
  }
};

TEST_F(QuoteSearch, SendsItsStatementAndListsWhatItsBoxesAndTextSay) {
  open<frmBROWSE_PropCmrc>([&](frmBROWSE_PropCmrc& screen) {
    screen.opDataFech->click();
    screen.txtCOD->setText(u"31/02/2024"_s);
    script.box(u"Data Inválida!"_s);
    support::click(screen.cmdPesquisa);
    EXPECT_TRUE(screen.txtCOD->hasFocus());
    screen.txtCOD->setText(u"01/03/2024"_s);
    screen.opData->click();
    EXPECT_EQ(statements(), QStringList());
    support::click(screen.chkSomenteNaoFechados);
    EXPECT_EQ(
        statements(),
        QStringList(u"SELECT PROP_CMRC.IDPROP_CMRC, PROP_CMRC.DATA_PROP_CMRC, PROP_CMRC.PROP_CMRC_DESC, "
                    u"PROP_CMRC.NOME_CLIE, PROP_CMRC.FONE_CLIE, PROP_CMRC.EMAI_CLIE, PROP_CMRC.NUME_PESS, "
                    u"PROP_CMRC.DATA_EVEN, PROP_CMRC.DATA_VALI, PROP_CMRC.DATA_FECH FROM PROP_CMRC "
                    u"WHERE (PROP_CMRC.DATA_DESA IS NULL)  AND (PROP_CMRC.DATA_FECH IS NULL)  "
                    u"AND (PROP_CMRC.DATA_PROP_CMRC >= '20240301')  ORDER BY PROP_CMRC.IDPROP_CMRC"_s));
    EXPECT_EQ(row(screen.Flex, 1), u"8|01/03/2024|Batizado da Íris|Ana Lima||40|20/05/2024|"_s);

    support::click(screen.chkSomenteFechados);
    EXPECT_EQ(column(screen.Flex, 0), u"9 10"_s) << "no longer the open ones only";
    for (const auto& [option, text, ids] : {std::tuple{screen.opDataFech, u"16/03/2024"_s, u"10"_s},
                                            {screen.opPROD, u"casa"_s, u"9 10"_s},
                                            {screen.opDesc, u"  "_s, u"9 10"_s}}) {
      option->click();
      screen.txtCOD->setText(text);
      support::click(screen.cmdPesquisa);
      EXPECT_EQ(column(screen.Flex, 0), ids);
    }
  });
}

TEST_F(QuoteSearch, CallersTakeWhatTheirRowsOfTheTableSay) {
  sql(u"INSERT INTO pess (idpess, nome_pess) VALUES (4, '15/03/2024')"_s);
  sql(u"INSERT INTO forn (idforn, idpess) VALUES (77, 4)"_s);
  const QStringList controls{u"txtRowId"_s,    u"txtCodigo"_s,      u"txtCOD"_s,
                             u"lblPropCmrc"_s, u"txtIDCOTA_COMP"_s, u"txtSerieDupl"_s,
                             u"txtNumeDupl"_s, u"txtDesdDupl"_s,    u"txtIdFornecedor"_s};
  for (const auto& [callers, written] :
       {std::pair{u"frmPropCmrcTL,frmPropCmrc"_s, u"txtRowId=9 txtCodigo=9"_s},
        {u"frmCPagar"_s,
         u"txtRowId=9 txtSerieDupl=10/03/2024 txtNumeDupl=Casamento txtDesdDupl=Bia Íris "
         u"txtIdFornecedor=77"_s},
        {u"frmCompras"_s, u"txtIDCOTA_COMP=9"_s},
        {u"frmPedido"_s, u"lblPropCmrc=9"_s},
        {u"frmProjetaCompra"_s, u"txtCOD=9"_s},
        {u"frmOutra"_s, QString()}})
    EXPECT_EQ(chosenBy<frmBROWSE_PropCmrc>(callers, controls, 2), QStringList(written));
}

}  // namespace
