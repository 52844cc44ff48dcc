#include "assembly_test.h"
#include "shared/screen_kit.h"

using namespace Qt::StringLiterals;

// From a double click on an article to a line of the assembly.
namespace {

using ConfirmingItem = AssemblyTest;

TEST_F(ConfirmingItem, LinesAreSortedByClassMarkedAndAddedUp) {
  assemble([this](frmMontarProduto& screen) {
    take(screen, 6, u"0,25"_s);
    take(screen, 0, u"2"_s);
    screen.SSTab1->setCurrentIndex(1);
    support::click(screen.cmdPesquisar);
    inDialog([](frmConfirmaItem& dialog) {
      support::type(dialog.txtQuantidade, u"x1.5-"_s);
      support::type(dialog.txtObservacoes, u" com fita "_s);
      support::key(&dialog, Qt::Key_Escape);
      ASSERT_TRUE(dialog.isVisible());
      support::click(dialog.cmdConfirmar);
    });
    support::doubleClick(screen.Flex2, 1);

    const auto& grid = screen.Flex->grid();
    EXPECT_EQ(rows(grid),
              QStringList({u"101|CX-100|Caixa branca|2|UN|1|12,50|25,00|PRODUTO||1"_s,
                           u"102|BOM-1|Bombom|1,5|UN|1|10,40|15,60|CONTEÚDO COMESTÍVEL|com fita|2"_s,
                           u"107|SAL|Sal de banho|0,25|KG|1|18,00|4,50|OUTROS||7"_s}));
    EXPECT_EQ(screen.lblTotalUnitarioProduto->text(), u"45,10"_s);
    EXPECT_EQ(grid.cellBackColor(1, grids::material::Codigo), forms::toColor(kLaranja));
    EXPECT_EQ(grid.cellAlignment(1, grids::material::Codigo), Qt::AlignLeft | Qt::AlignTop);
    for (int line : {2, 3}) {
      EXPECT_FALSE(grid.cellBackColor(line, grids::material::Codigo).isValid());
      EXPECT_EQ(grid.cellAlignment(line, grids::material::Codigo), Qt::AlignRight | Qt::AlignTop);
    }
  });
}

TEST_F(ConfirmingItem, AShowRoomMultipliesTheValueOfTheLine) {
  const struct {
    QString factor;
    bool showRoom;
    QString value, total;
  } cases[] = {{{}, true, u"10,00"_s, u"30,00"_s},         {u"1,25"_s, true, u"12,50"_s, u"37,50"_s},
               {u"1,25"_s, false, u"10,00"_s, u"30,00"_s}, {u"1,3333"_s, true, u"13,33"_s, u"39,99"_s},
               {u"0"_s, true, u"10,00"_s, u"30,00"_s},     {u""_s, true, u"10,00"_s, u"30,00"_s}};
  sql(u"UPDATE prod SET valo_veds = 10 WHERE idprod = 101"_s);
  for (const auto& [factor, showRoom, value, total] : cases) {
    sql(u"DELETE FROM empr_cnfg"_s);
    if (!factor.isNull())
      sql(u"INSERT INTO empr_cnfg (nome_para, valo_para) VALUES ('PERCENTUAL_SHOWROOM', '%1')"_s.arg(factor));
    (showRoom ? quote().opShowRoom : quote().opPV)->setChecked(true);
    assemble([&, value = value, total = total](frmMontarProduto& screen) {
      take(screen, 0, u"3"_s);
      EXPECT_EQ(screen.Flex->grid().text(1, grids::material::ValorUnitario), value);
      EXPECT_EQ(screen.lblTotalUnitarioProduto->text(), total);
    });
  }
}

}  // namespace
