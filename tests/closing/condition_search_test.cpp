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

TEST_F(ConditionSearch, StatementOfEachOption) {
  const struct {
    QRadioButton* frmBROWSE_CONDPG::*option;
    QString text;
    QString active, all;
  } cases[] = {
      {&frmBROWSE_CONDPG::Option1, {}, u" where data_desa is null"_s, u""_s},
      {&frmBROWSE_CONDPG::Option2,
       {},
       u" where data_desa is null ORDER BY desc_cond_pgto"_s,
       u" ORDER BY desc_cond_pgto"_s},
      {&frmBROWSE_CONDPG::Option3,
       {},
       u" where data_desa is null ORDER BY qtde_parc"_s,
       u" ORDER BY qtde_parc"_s},
      {&frmBROWSE_CONDPG::Option1, u"43"_s, u" WHERE idcond_pgto =43 and data_desa is null"_s,
       u" WHERE idcond_pgto =43"_s},
  };
  script_.modal([&, this](forms::Form& form) {
    for (const auto& [option, text, active, all] : cases) {
      type(search().txtCOD, text);
      click(search().*option);
      for (const QString& rest : {active, all}) {
        search().chkVisualiza->setChecked(rest == active);
        forgetStatements();
        click(search().cmdPesquisa);
        EXPECT_EQ(statements(), QStringList{(u"SELECT * FROM cond_pgto"_s + rest).toUpper()});
        EXPECT_EQ(contexto().sqlFuncoes, u"SELECT * FROM cond_pgto"_s + rest);
      }
    }
    EXPECT_EQ(ids(), QStringList{u"43"_s});
    EXPECT_EQ(search().Flex->grid().text(1, 3), u"15/01/2023"_s);
    type(search().txtCOD, {});
    click(search().chkVisualiza);
    EXPECT_EQ(ids(), (QStringList{u"41"_s, u"42"_s}));
    click(search().chkVisualiza);
    EXPECT_EQ(ids().size(), 3);
    form.close();
  });
  search().showModal();
}

TEST_F(ConditionSearch, TextSearchesOnMissingColumnsFail) {
  const struct {
    QRadioButton* frmBROWSE_CONDPG::*option;
    QString text;
    QString statement;
  } cases[] = {
      {&frmBROWSE_CONDPG::Option2, u"dias"_s,
       u"SELECT * FROM cond_pgto WHERE desc_cond_pgto LIKE '%dias%' and data_desa is null ORDER BY razaosocial"_s},
      {&frmBROWSE_CONDPG::Option3, u"3"_s,
       u"SELECT * FROM cond_pgto WHERE qtde_parc = 3 and data_desa is null ORDER BY nomefantasia"_s},
      {&frmBROWSE_CONDPG::Option1, u"abc"_s,
       u"SELECT * FROM cond_pgto WHERE idcond_pgto =abc and data_desa is null"_s},
  };
  for (const auto& [option, text, statement] : cases) {
    forms::registry::clear();
    connect();
    script_.modal([&, this](forms::Form&) {
      type(search().txtCOD, text);
      click(search().*option);
      forms::setBoxAnswerer([](const forms::Box& box) {
        EXPECT_TRUE(box.text.startsWith(u"Erro em tempo de execução '-2147217900'"_s));
        return forms::Answer::Ok;
      });
      script_.expectEnd(1);
      click(search().cmdPesquisa);
      EXPECT_EQ(contexto().sqlFuncoes, statement);
    });
    forms::guarded([this] { search().showModal(); });
  }
}
