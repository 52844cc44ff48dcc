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

INSTANTIATE_TEST_SUITE_P(Lines, Starting,
                         ::testing::Values(Start{u"7^0^DEV^", true, 1, u"PRD",
                                                 u"Zarim 1.2 (PRD) - Orçamento de Vendas (/ADMIN)", false},
                                           Start{u"abc^0^DEV^", false, 0, u"DEV",
                                                 u"Zarim 1.2 (DEV) - Orçamento de Vendas (/)", true},
                                           Start{u"^^^", false, 0, u"",
                                                 u"Zarim 1.2 () - Orçamento de Vendas (/)", true}));

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
