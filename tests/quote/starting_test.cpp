#include "quote_case.h"

#include "platform/files/paths.h"

using namespace Qt::StringLiterals;

namespace {

/// Command line, whether the machine is one of the makers', title, whether its label is red.
using Start = std::tuple<QString, bool, QString, bool>;
class Starting : public QuoteCase, public ::testing::WithParamInterface<Start> {};

TEST_P(Starting, TakesUserAndEnvironmentFromTheCommandLine) {
  const auto& [commandLine, marker, title, red] = GetParam();
  const QString line = u"(embutido)^"_s + databasePath() + u"^sa^x^MS-SQL^^False^\r\n"_s;
  configure(u"server.ini"_s, line + line + line);
  sql(u"INSERT INTO usen (idusen, usen) VALUES (1, 'ADMIN')"_s);
  if (marker) configure(u"TREVANO.txt"_s, {});
  contexto().LinhaComando = commandLine;
  const auto& form = start();
  EXPECT_EQ(form.windowTitle(), u"Zarim 1.2 "_s + title);
  EXPECT_EQ(forms::foreColor(form.lblTituloJanela) == 255, red);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, Starting,
    ::testing::Values(Start{u"7^0^DEV^"_s, true, u"(PRD) - Orçamento de Vendas (/ADMIN)"_s, false},
                      Start{u"abc^0^DEV^"_s, false, u"(DEV) - Orçamento de Vendas (/)"_s, true},
                      Start{u"^^^"_s, false, u"() - Orçamento de Vendas (/)"_s, true}));

TEST_F(QuoteCase, RefusesAnEmptyCommandLineBeforeAnythingIsOpened) {
  contexto().LinhaComando.clear();
  script.box(u"Chamada Ilegal para esta rotina!"_s).expectEnd(0);
  forms::guarded([] { forms::form<frmPropCmrcTL>(); });
  EXPECT_EQ(script.lastBox().title, QString());
  EXPECT_EQ(statements(), QStringList());
}

TEST_F(QuoteCase, StartsIdleAtTheTopOfTheScreenWithItsListsFilled) {
  auto& form = start();
  EXPECT_EQ(form.y(), 0);
  for (const auto* list : {form.cboVendedor, form.cboTipoMktg, form.cboLocalVenda})
    EXPECT_EQ(list->count(), 1) << list->objectName().toStdString();
  expectShown(form, u"cboVendedor=|lblNrPessoas=Qtde Solicitada:|lblDesconto=0|lblTotaGeral=0,00"_s);
  EXPECT_TRUE(form.opPV->isChecked());
  EXPECT_TRUE(form.opPROD->isHidden() && form.opPROT->isHidden() && form.Frame3->isHidden());
}

}  // namespace
