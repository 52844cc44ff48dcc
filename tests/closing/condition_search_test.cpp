#include "closing_case.h"
#include "search/frmBROWSE_CONDPG.h"

using namespace Qt::StringLiterals;
using support::click;
using support::type;

namespace {

class ConditionSearch : public Closing {
 protected:
  ConditionSearch() {
    sql(u"insert into cond_pgto (idcond_pgto, desc_cond_pgto, qtde_parc, data_desa) "
        "values (43, 'Antiga', 2, '20230115')"_s);
  }

  frmBROWSE_CONDPG& search() { return forms::form<frmBROWSE_CONDPG>(); }

  QStringList ids() {
    QStringList list;
    const forms::GridModel& grid = search().Flex->grid();
    for (int row = 1; row < grid.rows(); ++row) list << grid.text(row, 0);
    return list;
  }
};

}  // namespace

TEST_F(ConditionSearch, OpensFullAndWritesTheChosenIdBack) {
  closingOf(u"100"_s, [this](frmConfirmaPropCmrcTL& form) {
    script_.modal([this](forms::Form&) {
      EXPECT_EQ(search().windowTitle(), u"Zarim 1.2"_s);
      EXPECT_EQ(ids(), (QStringList{u"41"_s, u"42"_s}));
      EXPECT_EQ(search().Flex->grid().row(), 0);
      support::doubleClick(search().Flex, 0);
      EXPECT_TRUE(search().isVisible());
      support::doubleClick(search().Flex, 2);
    });
    click(form.cmdPesquisa_CondPg);
    EXPECT_EQ(forms::registry::find(u"frmBROWSE_CONDPG"_s), nullptr);
    EXPECT_EQ(form.txtIdCondPg->text(), u"42"_s);
    EXPECT_EQ(form.lblPrazos->text(), QString());
    click(form.cmdPesquisa_CondPg);
    EXPECT_EQ(form.lblParcelas->text(), u"1"_s);
    EXPECT_EQ(form.lblPrazos->text(), u"000/"_s);
  });
}

TEST_F(ConditionSearch, CallersOfOtherProgramsGetNothingHere) {
  for (const QString& caller : {u"frmPedido"_s, u"frmCompras"_s, u"frmCondPagto"_s, u"frmNFF"_s}) {
    screen().txtIdCondPg->clear();
    contexto().TelaChamadora = caller;
    script_.modal([this](forms::Form&) { support::doubleClick(search().Flex, 1); });
    search().showModal();
    EXPECT_EQ(screen().txtIdCondPg->text(), QString());
  }
}

TEST_F(ConditionSearch, OrderOfEachOptionAndDeactivatedOnes) {
  script_.modal([this](forms::Form& form) {
    click(search().chkVisualiza);
    EXPECT_EQ(ids(), (QStringList{u"41"_s, u"42"_s, u"43"_s}));
    EXPECT_EQ(search().Flex->grid().text(3, 3), u"15/01/2023"_s);
    click(search().Option2);
    click(search().cmdPesquisa);
    EXPECT_EQ(ids(), (QStringList{u"41"_s, u"42"_s, u"43"_s}));
    click(search().Option3);
    click(search().cmdPesquisa);
    EXPECT_EQ(ids(), (QStringList{u"42"_s, u"43"_s, u"41"_s}));
    click(search().Option1);
    type(search().txtCOD, u"43"_s);
    click(search().cmdPesquisa);
    EXPECT_EQ(ids(), QStringList{u"43"_s});
    click(search().chkVisualiza);
    EXPECT_TRUE(ids().isEmpty());
    EXPECT_EQ(contexto().sqlFuncoes,
              u"SELECT * FROM cond_pgto WHERE idcond_pgto =43 and data_desa is null"_s);
    form.close();
  });
  search().showModal();
}

TEST_F(ConditionSearch, TextSearchOnMissingColumnFails) {
  script_.modal([this](forms::Form&) {
    type(search().txtCOD, u"dias"_s);
    click(search().Option2);
    forms::setBoxAnswerer([](const forms::Box& box) {
      EXPECT_TRUE(box.text.startsWith(u"Erro em tempo de execução '-2147217900'"_s));
      return forms::Answer::Ok;
    });
    script_.expectEnd(1);
    click(search().cmdPesquisa);
    EXPECT_EQ(contexto().sqlFuncoes,
              u"SELECT * FROM cond_pgto WHERE desc_cond_pgto LIKE '%dias%' and data_desa is null ORDER BY "
              "razaosocial"_s);
  });
  forms::guarded([this] { search().showModal(); });
}
