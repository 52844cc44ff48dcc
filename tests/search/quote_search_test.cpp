#include "platform/forms/process.h"
#include "search/frmBROWSE_PropCmrc.h"
#include "search_test.h"

using namespace Qt::StringLiterals;

namespace {

class QuoteSearch : public SearchTest {
 protected:
  QuoteSearch() {
    contexto().TelaChamadora = u"frmPropCmrcTL"_s;
    const auto quote = [this](const QString& values) {
      sql(u"INSERT INTO prop_cmrc (idprop_cmrc, data_prop_cmrc, prop_cmrc_desc, nome_clie, data_fech, "
          u"nume_pess, "
          u"data_even, data_vali, data_desa) VALUES ("_s +
          values + u")"_s);
    };
    quote(u"8, '20240301 09:30', 'Batizado da Íris', 'Ana Lima', null, '40', '20240520', null, null"_s);
    quote(u"9, '20240310', 'Casamento', 'Bia Íris', '20240315', '', null, '20240401', null"_s);
    quote(u"10, '20240320', 'Bodas', 'Ana Souza', '20240402', '120', null, null, null"_s);
    quote(u"11, '20240330', 'Casamento antigo', 'Ana Lima', null, '', null, null, '20240501'"_s);
  }
};

struct FilterCase {
  const char16_t* option;
  QString text;
  QStringList clicked;  ///< check boxes to click before, from ticked, clear, clear
  QString ids;
};
void PrintTo(const FilterCase& one, std::ostream* out) {
  *out << QString::fromUtf16(one.option).toStdString() << " '" << one.text.toStdString() << "' "
       << one.clicked.join(u' ').toStdString();
}

class QuoteFilter : public QuoteSearch, public ::testing::WithParamInterface<FilterCase> {};

TEST_P(QuoteFilter, FindsTheQuotesOfItsBoxesAndText) {
  const FilterCase& one = GetParam();
  open<frmBROWSE_PropCmrc>([&](frmBROWSE_PropCmrc& screen) {
    screen.findChild<QRadioButton*>(QString::fromUtf16(one.option))->click();
    screen.txtCOD->setText(one.text);
    for (const auto& box : one.clicked) support::click(screen.findChild<QCheckBox*>(box));
    support::click(screen.cmdPesquisa);
    EXPECT_EQ(column(screen.Flex, frmBROWSE_PropCmrc::Id), one.ids);
    EXPECT_EQ(screen.Flex->grid().row(), 0);
  });
}

INSTANTIATE_TEST_SUITE_P(
    All, QuoteFilter,
    ::testing::Values(
        FilterCase{u"opDesc", u""_s, {}, u"8 9 10"_s}, FilterCase{u"opDesc", u"  "_s, {}, u"8 9 10"_s},
        FilterCase{u"opDesc", u"casa"_s, {}, u"9"_s},
        FilterCase{u"opDesc", u"casa"_s, {u"chkVisualiza"_s}, u"11"_s},
        FilterCase{u"opNumePropCmrc", u"10"_s, {}, u"10"_s},
        FilterCase{u"opNumePropCmrc", u"9"_s, {}, u"9 10"_s}, FilterCase{u"opCliente", u"íris"_s, {}, u"9"_s},
        FilterCase{u"opCliente", u"ANA"_s, {}, u"8 10"_s},
        FilterCase{u"opData", u"10/03/2024"_s, {}, u"9 10"_s},
        FilterCase{u"opDataFech", u"16/03/2024"_s, {}, u"10"_s},
        FilterCase{u"opData", u""_s, {u"chkSomenteFechados"_s}, u"9 10"_s},
        FilterCase{u"opDesc", u""_s, {u"chkSomenteNaoFechados"_s}, u"8"_s},
        FilterCase{u"opDesc", u""_s, {u"chkSomenteFechados"_s, u"chkSomenteNaoFechados"_s}, u"8"_s},
        FilterCase{u"opPROD", u"casa"_s, {}, u"8 9 10"_s},
        FilterCase{u"opPROT", u"casa"_s, {}, u"8 9 10"_s}));

TEST_F(QuoteSearch, SendsItsStatementInUpperCaseAndShowsDatesWithoutTime) {
  open<frmBROWSE_PropCmrc>([&](frmBROWSE_PropCmrc& screen) {
    EXPECT_EQ(screen.txtMaxReg->text(), u"100"_s);
    EXPECT_EQ(screen.Flex->grid().rows(), 1);
    screen.txtCOD->setText(u"01/03/2024"_s);
    screen.opData->setChecked(true);
    screen.chkSomenteNaoFechados->setChecked(true);
    (void)statements();
    support::click(screen.cmdPesquisa);
    EXPECT_EQ(
        statements(),
        QStringList(u"SELECT PROP_CMRC.IDPROP_CMRC, PROP_CMRC.DATA_PROP_CMRC, PROP_CMRC.PROP_CMRC_DESC, "
                    u"PROP_CMRC.NOME_CLIE, PROP_CMRC.FONE_CLIE, PROP_CMRC.EMAI_CLIE, PROP_CMRC.NUME_PESS, "
                    u"PROP_CMRC.DATA_EVEN, PROP_CMRC.DATA_VALI, PROP_CMRC.DATA_FECH FROM PROP_CMRC "
                    u"WHERE (PROP_CMRC.DATA_DESA IS NULL)  AND (PROP_CMRC.DATA_FECH IS NULL)  "
                    u"AND (PROP_CMRC.DATA_PROP_CMRC >= '20240301')  ORDER BY PROP_CMRC.IDPROP_CMRC"_s));
    EXPECT_EQ(row(screen.Flex, 1), u"8|01/03/2024|Batizado da Íris|Ana Lima||40|20/05/2024|"_s);
  });
}

TEST_F(QuoteSearch, ATextThatIsNoDateIsRefusedAndNothingIsSent) {
  open<frmBROWSE_PropCmrc>([&](frmBROWSE_PropCmrc& screen) {
    for (auto* option : {screen.opData, screen.opDataFech}) {
      option->click();
      support::type(screen.txtCOD, u"31/02/2024"_s);
      (void)statements();
      script.box(u"Data Inválida!"_s);
      support::click(screen.cmdPesquisa);
      EXPECT_EQ(script.lastBox().title.value_or(u"Zarim 1.2"_s), u"Zarim 1.2"_s);
      EXPECT_TRUE(screen.txtCOD->hasFocus());
      EXPECT_EQ(statements(), QStringList());
      EXPECT_EQ(screen.Flex->grid().rows(), 1);
    }
  });
}

TEST_F(QuoteSearch, OnlyClosedAndOnlyOpenExcludeEachOtherAndEachClickSearchesOnce) {
  open<frmBROWSE_PropCmrc>([&](frmBROWSE_PropCmrc& screen) {
    for (auto [clicked, other] : {std::pair{screen.chkSomenteFechados, screen.chkSomenteNaoFechados},
                                  std::pair{screen.chkSomenteNaoFechados, screen.chkSomenteFechados}}) {
      (void)statements();
      support::click(clicked);

      EXPECT_TRUE(clicked->isChecked());
      EXPECT_FALSE(other->isChecked());
      EXPECT_EQ(statements().size(), 1);
    }
    support::click(screen.chkSomenteNaoFechados);
    EXPECT_EQ(column(screen.Flex, 0), u"8 9 10"_s) << "neither: open and closed ones";
  });
}

TEST_F(QuoteSearch, EnterMovesOnFromTheTextToTheButtonAndOn) {
  open<frmBROWSE_PropCmrc>([&](frmBROWSE_PropCmrc& screen) {
    (void)statements();
    support::key(screen.txtCOD, Qt::Key_Return);
    EXPECT_TRUE(screen.cmdPesquisa->hasFocus());
    support::key(screen.cmdPesquisa, Qt::Key_Return);
    EXPECT_FALSE(screen.cmdPesquisa->hasFocus());
    EXPECT_EQ(statements(), QStringList());
    support::focus(screen.cmdPesquisa);
    support::key(screen.cmdPesquisa, Qt::Key_Space);
    EXPECT_EQ(statements().size(), 1);
  });
}

TEST_F(QuoteSearch, AQuoteMarkInTheTextBreaksTheStatement) {
  script.box(u"Erro em tempo de execução '-2147217900':\n\nnear \"ÁVILA\": syntax error"_s).expectEnd(1);
  const auto search = [](frmBROWSE_PropCmrc& screen) {
    screen.txtCOD->setText(u"d'Ávila"_s);
    support::click(screen.cmdPesquisa);
  };
  EXPECT_THROW(open<frmBROWSE_PropCmrc>(search), forms::Ended);
}

class QuoteCaller : public QuoteSearch, public ::testing::WithParamInterface<CallerCase> {};

TEST_P(QuoteCaller, TakesWhatItsRowsOfTheTableSay) {
  sql(u"INSERT INTO pess (idpess, nome_pess) VALUES (4, '15/03/2024')"_s);
  sql(u"INSERT INTO forn (idforn, idpess) VALUES (77, 4)"_s);
  contexto().TelaChamadora = GetParam().caller;
  const StandIn& caller = standIn(GetParam().caller, GetParam().controls);
  open<frmBROWSE_PropCmrc>([&](frmBROWSE_PropCmrc& screen) {
    const QPointer<frmBROWSE_PropCmrc> still(&screen);
    support::click(screen.cmdPesquisa);
    support::doubleClick(screen.Flex, 0);
    ASSERT_TRUE(screen.isVisible()) << "the title row chooses nothing";
    EXPECT_EQ(caller.written(), QString());
    support::doubleClick(screen.Flex, 2, frmBROWSE_PropCmrc::Cliente);
    EXPECT_TRUE(still == nullptr || !still->isVisible());
  });
  EXPECT_EQ(caller.written(), GetParam().written);
}

const QStringList kCommon{u"txtRowId"_s, u"txtCodigo"_s, u"txtCOD"_s, u"lblPropCmrc"_s, u"txtIDCOTA_COMP"_s};
INSTANTIATE_TEST_SUITE_P(
    All, QuoteCaller,
    ::testing::Values(CallerCase{u"frmPropCmrcTL"_s, kCommon, u"txtRowId=9 txtCodigo=9"_s},
                      CallerCase{u"frmPropCmrc"_s, kCommon, u"txtRowId=9 txtCodigo=9"_s},
                      CallerCase{u"frmPropCmrcTL"_s, {u"txtCodigo"_s}, u"txtCodigo=9"_s},
                      CallerCase{
                          u"frmCPagar"_s,
                          {u"txtRowId"_s, u"txtSerieDupl"_s, u"txtNumeDupl"_s, u"txtDesdDupl"_s,
                           u"txtIdFornecedor"_s},
                          u"txtRowId=9 txtSerieDupl=10/03/2024 txtNumeDupl=Casamento txtDesdDupl=Bia Íris "
                          u"txtIdFornecedor=77"_s},
                      CallerCase{u"frmCompras"_s, kCommon, u"txtIDCOTA_COMP=9"_s},
                      CallerCase{u"frmPedido"_s, kCommon, u"lblPropCmrc=9"_s},
                      CallerCase{u"frmProjetaCompra"_s, kCommon, u"txtCOD=9"_s},
                      CallerCase{u"frmOutra"_s, kCommon, QString()}));

TEST_F(QuoteSearch, ACallerThatIsNotThereGetsNothing) {
  contexto().TelaChamadora = u"frmCompras"_s;
  open<frmBROWSE_PropCmrc>([&](frmBROWSE_PropCmrc& screen) {
    support::click(screen.cmdPesquisa);
    support::doubleClick(screen.Flex, 1);
    EXPECT_EQ(forms::registry::find(u"frmCompras"_s), nullptr);
  });
}

TEST_F(QuoteSearch, EscClosesItAndNothingIsChosen) {
  const StandIn& caller = standIn(u"frmPropCmrcTL"_s, kCommon);
  open<frmBROWSE_PropCmrc>([&](frmBROWSE_PropCmrc& screen) {
    support::click(screen.cmdPesquisa);
    support::clickRow(screen.Flex, 2);
  });
  EXPECT_EQ(caller.written(), QString());
  EXPECT_EQ(forms::registry::find(u"frmBROWSE_PropCmrc"_s), nullptr);
}

TEST_F(QuoteSearch, AfterTheChoiceEnterPressesTheCallersSearchButton) {
  StandIn& caller = standIn(u"frmPropCmrcTL"_s, {u"txtCodigo"_s, u"cmdPesquisar_PropCmrc"_s});
  int searches = 0;
  auto* button = caller.findChild<QPushButton*>();
  QObject::connect(button, &QPushButton::clicked, button, [&] { ++searches; });
  caller.showForm();
  caller.findChild<QLineEdit*>()->setFocus();
  open<frmBROWSE_PropCmrc>([&](frmBROWSE_PropCmrc& screen) {
    support::click(screen.cmdPesquisa);
    support::clickRow(screen.Flex, 1);
    support::key(screen.Flex, Qt::Key_Return);
  });
  ASSERT_TRUE(button->hasFocus());
  support::key(button, Qt::Key_Return);
  EXPECT_EQ(searches, 1);
}

}  // namespace
