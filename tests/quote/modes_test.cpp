#include <QImage>
#include <QTest>

#include "hands/hands.h"
#include "platform/files/paths.h"
#include "quote_case.h"

using namespace Qt::StringLiterals;

namespace {

using Modes = QuoteCase;

/// Commands that a stored quote allows.
QStringList allowed(const situacao::Situacao& state) {
  using enum situacao::Comando;
  QStringList names;
  for (const auto& [command, name] : {std::pair{Alterar, u"Alterar"_s},
                                      {Desativar, u"Desativar"_s},
                                      {Reativar, u"Reativar"_s},
                                      {Fechar, u"Fechar"_s},
                                      {Reabrir, u"Reabrir"_s}})
    if (!situacao::recusa(command, state)) names << name;
  return names;
}

TEST(Situation, SaysWhichCommandsGo) {
  EXPECT_EQ(allowed({}), (QStringList{u"Alterar"_s, u"Desativar"_s, u"Fechar"_s}));
  EXPECT_EQ(allowed({.desativado = true}), QStringList{u"Reativar"_s});
  EXPECT_EQ(allowed({.fechado = true}), QStringList{u"Reabrir"_s});
  // Nothing but the ERP's own programs gets such a quote out of it.
  EXPECT_EQ(allowed({.desativado = true, .fechado = true}), QStringList());
  // What a quote is both is refused for the first.
  EXPECT_TRUE(situacao::recusa(situacao::Comando::Fechar, {true, true})->texto.contains(u"Desativado!"));
}

TEST_F(Modes, FieldsTrimAndLimitWhatIsTypedAndTheRemarkUnfolds) {
  start();
  support::type(screen->txtCodigo, u" 12 "_s);
  support::focus(screen->cmdINCLUIR);
  EXPECT_EQ(screen->txtCodigo->text(), u"12"_s);
  support::click(screen->cmdINCLUIR);
  forms::setControlText(screen->txtObserva, QString(300, u'x'));
  EXPECT_EQ(screen->txtObserva->toPlainText().size(), 200);
  support::click(screen->cmdExpandirObservacao);
  EXPECT_EQ(screen->txtObserva->height(), forms::pixels(1315));
}

TEST_F(Modes, ADateThatIsNoneIsMarkedByWhateverPutsItThereAndTheMarkLeavesNothing) {
  start();
  const QImage locked = screen->mskDataEven->grab().toImage();
  support::click(screen->cmdINCLUIR);
  screen->mskDataEven->setBoxText(u"31/02/2026"_s);
  EXPECT_EQ(hands::colourOf(screen->mskDataEven, forms::kBackColor), 0xC8C8FF);
  EXPECT_NE(screen->mskDataEven->toolTip(), QString());
  script.box(
      u"Existe operação não concluída!!!\n<Sim> Sair sem Concluir\n<Não> Retornar para a Operação Atual\n"
      "<Cancela> Retornar e Abortar a Operação Atual"_s,
      forms::Answer::Cancel);
  support::click(screen->cmdSAIR);
  EXPECT_EQ(screen->mskDataEven->toolTip(), QString());
  EXPECT_EQ(screen->mskDataEven->grab().toImage(), locked);
}

TEST_F(Modes, KeysOnALineAskWhatADoubleClickAsks) {
  start();
  support::click(screen->cmdINCLUIR);
  screen->Flex->grid().addItem(u"9\tPROT\t9\tantes"_s);
  for (const auto& [key, suggested] : {std::pair{Qt::Key_F2, u"A"_s}, {Qt::Key_Delete, u"E"_s}}) {
    script.input(std::nullopt);
    support::focus(screen->Flex);
    support::key(screen->Flex, key);
    EXPECT_EQ(script.lastInput().initial, suggested);
  }
}

TEST_F(Modes, OnAMachineOfTheMakersTheFirstUserStartsAndTheGroundShowsTheResolution) {
  const QString line = u"(embutido)^"_s + databasePath() + u"^sa^x^MS-SQL^^False^\r\n"_s;
  configure(u"server.ini"_s, line + line + line);
  configure(u"TREVANO.txt"_s, {});
  sql(u"INSERT INTO usen (idusen, usen) VALUES (1, 'ADMIN')"_s);
  contexto().LinhaComando = u"7^0^DEV^"_s;
  start();
  EXPECT_EQ(screen->windowTitle(), u"Zarim 1.2 (PRD) - Orçamento de Vendas (/ADMIN)"_s);
  EXPECT_NE(hands::colourOf(screen->lblTituloJanela, forms::kForeColor), 255);
  script.box(u"768 x 1024"_s);
  QTest::mouseDClick(screen->area->viewport(), Qt::LeftButton, {}, QPoint(2, 2));
}

}  // namespace
