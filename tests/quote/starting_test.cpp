#include "quote_case.h"

#include "platform/files/paths.h"

using namespace Qt::StringLiterals;

namespace {

struct Start {
  const char16_t* line;
  bool marker;
  int user;
  const char16_t* environment;
  const char16_t* title;
  bool red;
};

class Starting : public QuoteCase, public ::testing::WithParamInterface<Start> {};

TEST_P(Starting, TakesUserAndEnvironmentFromTheCommandLine) {
  const QString line = u"(embutido)^"_s + databasePath() + u"^sa^x^MS-SQL^^False^\r\n"_s;
  configure(u"server.ini"_s, line + line + line);
  sql(u"INSERT INTO usen (idusen, usen) VALUES (1, 'ADMIN')"_s);
  if (GetParam().marker) configure(u"TREVANO.txt"_s, {});
  contexto().LinhaComando = QString::fromUtf16(GetParam().line);

  const auto& form = start();

  EXPECT_EQ(contexto().IdUsuarioAtual, GetParam().user);
  EXPECT_EQ(contexto().Ambiente, QString::fromUtf16(GetParam().environment));
  EXPECT_EQ(form.windowTitle(), QString::fromUtf16(GetParam().title));
  EXPECT_EQ(forms::foreColor(form.lblTituloJanela) == 255, GetParam().red);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, Starting,
    ::testing::Values(
        Start{u"7^0^PRD^", false, 7, u"PRD", u"Zarim 1.2 (PRD) - Orçamento de Vendas (/MARIA)", false},
        Start{u"7^0^DEV^", true, 1, u"PRD", u"Zarim 1.2 (PRD) - Orçamento de Vendas (/ADMIN)", false},
        Start{u"99^0^HIST", false, 99, u"HIST", u"Zarim 1.2 (HIST) - Orçamento de Vendas (/)", true},
        Start{u"abc^0^DEV^", false, 0, u"DEV", u"Zarim 1.2 (DEV) - Orçamento de Vendas (/)", true},
        Start{u"^^^", false, 0, u"", u"Zarim 1.2 () - Orçamento de Vendas (/)", true}));

TEST_F(QuoteCase, RefusesAnEmptyCommandLineBeforeAnythingIsOpened) {
  contexto().LinhaComando.clear();
  script.box(u"Chamada Ilegal para esta rotina!"_s).expectEnd(0);
  forms::guarded([] { forms::form<frmPropCmrcTL>(); });
  EXPECT_EQ(script.lastBox().title, QString());
  EXPECT_EQ(script.lastBox().icon, forms::Icon::Information);
  EXPECT_EQ(statements(), QStringList());
}

TEST_F(QuoteCase, StartsIdleAtTheTopOfTheScreenWithItsListsFilled) {
  auto& form = start();
  EXPECT_EQ(form.y(), 0);
  EXPECT_EQ(form.x(), (forms::screenSize().width() - form.width()) / 2);
  EXPECT_EQ(form.cboVendedor->itemText(0), u"BIA"_s);
  EXPECT_EQ(form.cboTipoMktg->itemText(0), u"Indicação"_s);
  EXPECT_EQ(form.cboLocalVenda->itemText(0), u"Loja Centro"_s);
  EXPECT_EQ(form.cboVendedor->text(), QString());
  EXPECT_EQ(form.lblNrPessoas->text(), u"Qtde Solicitada:"_s);
  EXPECT_TRUE(form.opPV->isChecked());
  EXPECT_TRUE(form.opPROD->isHidden() && form.opPROT->isHidden() && form.Frame3->isHidden());
  EXPECT_EQ(contexto().TelaChamadora, u"frmPropCmrcTL"_s);
  EXPECT_EQ(form.lblDesconto->text(), u"0"_s);
  EXPECT_EQ(form.lblTotaGeral->text(), u"0,00"_s);
  for (const QWidget* frame : {form.frameAprova, form.frameMassa, form.frameCondPgto, form.frameHomenageados})
    EXPECT_TRUE(frame->isHidden()) << frame->objectName().toStdString();
}

}  // namespace
