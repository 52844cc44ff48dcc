#include "closing_case.h"
#include "search/frmBROWSE_CONDPG.h"

using namespace Qt::StringLiterals;
using support::click;
using support::type;

namespace {

class ConditionSearch : public Closing {
 protected:
  frmBROWSE_CONDPG& search() { return forms::form<frmBROWSE_CONDPG>(); }
};

}  // namespace

TEST_F(ConditionSearch, WritesTheChosenIdToTheConfirmationScreenOnly) {
  for (const QString& caller : {u"frmPedido"_s, u"frmCondPagto"_s, u"frmPropCmrcTL"_s}) {
    screen().txtIdCondPg->clear();
    contexto().TelaChamadora = caller;
    script_.modal([this](forms::Form&) { support::doubleClick(search().Flex, 2); });
    search().showModal();
    EXPECT_EQ(screen().txtIdCondPg->text(), caller == u"frmPropCmrcTL"_s ? u"42"_s : QString());
  }
}

TEST_F(ConditionSearch, ByIdFindsAndByNumberOfInstalmentsSortsOnAColumnThatIsMissing) {
  sql(u"insert into cond_pgto (idcond_pgto, data_desa) values (43, '20230115')"_s);
  script_.modal([this](forms::Form&) {
    EXPECT_EQ(search().Flex->grid().rows(), 3);
    type(search().txtCOD, u"43"_s);
    click(search().chkVisualiza);
    EXPECT_EQ(search().Flex->grid().text(1, 3), u"15/01/2023"_s);
    click(search().chkVisualiza);
    EXPECT_EQ(search().Flex->grid().rows(), 1);
    EXPECT_EQ(contexto().sqlFuncoes,
              u"SELECT * FROM cond_pgto WHERE idcond_pgto =43 and data_desa is null"_s);
    click(search().Option3);
    script_.box(u"Erro em tempo de execução '-2147217900':\n\nno such column: NOMEFANTASIA"_s).expectEnd(1);
    click(search().cmdPesquisa);
    EXPECT_EQ(contexto().sqlFuncoes,
              u"SELECT * FROM cond_pgto WHERE qtde_parc = 43 and data_desa is null ORDER BY nomefantasia"_s);
  });
  forms::guarded([this] { search().showModal(); });
}
