#include "search/frmBROWSE_PropCmrc.h"
#include "search_test.h"

using namespace Qt::StringLiterals;

namespace {

using QuoteSearch = SearchTest;

TEST_F(QuoteSearch, APayableTakesTheSupplierThatTheClosingDateNames) {
  for (const auto& values : {u"8, '20240301', 'Batizado', 'Ana Lima', null"_s,
                             u"9, '20240310', 'Casamento', 'Bia Íris', '20240315'"_s})
    sql(u"INSERT INTO prop_cmrc (idprop_cmrc, data_prop_cmrc, prop_cmrc_desc, nome_clie, data_fech) VALUES (%1)"_s
            .arg(values));
  sql(u"UPDATE pess SET nome_pess = '15/03/2024' WHERE idpess = 4"_s);
  const QStringList boxes{u"txtRowId"_s, u"txtSerieDupl"_s, u"txtNumeDupl"_s, u"txtDesdDupl"_s,
                          u"txtIdFornecedor"_s};
  EXPECT_EQ(
      chosenBy<frmBROWSE_PropCmrc>(u"frmCPagar"_s, boxes, 2),
      u"txtRowId=9 txtSerieDupl=10/03/2024 txtNumeDupl=Casamento txtDesdDupl=Bia Íris txtIdFornecedor=5"_s);
}

}  // namespace
