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
    const auto& grid = screen.Flex->grid();
    screen.opData->click();
    screen.txtCOD->setText(u"01/03/2024"_s);
    (void)statements();
    support::click(screen.chkSomenteNaoFechados);
    EXPECT_EQ(
        statements(),
        QStringList(u"SELECT PROP_CMRC.IDPROP_CMRC, PROP_CMRC.DATA_PROP_CMRC, PROP_CMRC.PROP_CMRC_DESC, "
                    u"PROP_CMRC.NOME_CLIE, PROP_CMRC.FONE_CLIE, PROP_CMRC.EMAI_CLIE, PROP_CMRC.NUME_PESS, "
                    u"PROP_CMRC.DATA_EVEN, PROP_CMRC.DATA_VALI, PROP_CMRC.DATA_FECH FROM PROP_CMRC "
                    u"WHERE (PROP_CMRC.DATA_DESA IS NULL)  AND (PROP_CMRC.DATA_FECH IS NULL)  "
                    u"AND (PROP_CMRC.DATA_PROP_CMRC >= '20240301')  ORDER BY PROP_CMRC.IDPROP_CMRC"_s));
    EXPECT_EQ(row(grid, 1), u"8|01/03/2024 09:30:00|Batizado da Íris|Ana Lima||40|20/05/2024|"_s);

    support::click(screen.chkSomenteFechados);
    EXPECT_EQ(column(grid, 0), u"9|10"_s) << "no longer the open ones only";
    for (const auto& [option, text, ids] : {std::tuple{screen.opDataFech, u"16/03/2024"_s, u"10"_s},
                                            {screen.opPROD, u"casa"_s, u"9|10"_s},
                                            {screen.opDesc, u"  "_s, u"9|10"_s}}) {
      option->click();
      screen.txtCOD->setText(text);
      support::click(screen.cmdPesquisa);
      EXPECT_EQ(column(grid, 0), ids);
    }
  });
}

TEST_F(QuoteSearch, APayableTakesTheSupplierThatTheClosingDateNames) {
  sql(u"UPDATE pess SET nome_pess = '15/03/2024' WHERE idpess = 4"_s);
  const QStringList boxes{u"txtRowId"_s, u"txtSerieDupl"_s, u"txtNumeDupl"_s, u"txtDesdDupl"_s,
                          u"txtIdFornecedor"_s};
  EXPECT_EQ(
      chosenBy<frmBROWSE_PropCmrc>(u"frmCPagar"_s, boxes, 2),
      u"txtRowId=9 txtSerieDupl=10/03/2024 txtNumeDupl=Casamento txtDesdDupl=Bia Íris txtIdFornecedor=5"_s);
}

}  // namespace
