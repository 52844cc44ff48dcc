#include <QTest>

#include "hands/hands.h"
#include "quote_case.h"

using namespace Qt::StringLiterals;

namespace {

using Modes = QuoteCase;

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
