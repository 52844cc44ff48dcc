#include "assembly_test.h"
#include "platform/forms/boxes.h"
#include "shared/theme.h"

using namespace Qt::StringLiterals;

// Lines of an assembly, from a double click on an article to the quote.
namespace {

using grades::material::Column;
using Lines = AssemblyTest;

TEST_F(Lines, AreSortedByClassMarkedAndAddedUp) {
  assemble([this](frmMontarProduto& screen) {
    take(screen, 6, u"0,25"_s);
    take(screen, 0, u"2"_s);
    take(screen, 1, u"x1.5-"_s,
         [](frmConfirmaItem& dialog) { support::type(dialog.txtObservacoes, u" com fita "_s); });
    const auto& grid = screen.Flex->grid();
    EXPECT_EQ(rows(grid),
              QStringList({u"101|CX-100|Caixa branca|2|UN|1|12,50|25,00|PRODUTO||1"_s,
                           u"102|BOM-1|Bombom|1,5|UN|1|10,40|15,60|CONTEÚDO COMESTÍVEL|com fita|2"_s,
                           u"107|SAL|Sal de banho|0,25|KG|1|18,00|4,50|OUTROS||7"_s}));
    EXPECT_EQ(screen.lblTotalUnitarioProduto->text(), u"45,10"_s);
    for (const int line : {1, 2, 3}) {
      const QModelIndex code = grid.index(line - 1, Column::Codigo);
      const bool product = line == 1;
      EXPECT_EQ(code.data(Qt::BackgroundRole).value<QColor>(), product ? forms::toColor(kLaranja) : QColor());
      EXPECT_EQ(code.data(Qt::TextAlignmentRole).value<Qt::Alignment>(),
                (product ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    }
  });
}

TEST_F(Lines, OfAShowRoomTakeTheFactorIfThereIsOne) {
  sql(u"INSERT INTO empr_cnfg (nome_para, valo_para) VALUES ('PERCENTUAL_SHOWROOM', 'x')"_s);
  quote().opShowRoom->setChecked(true);
  for (const auto& [factor, total] : {std::pair{u"'1,3333'"_s, u"50,01"_s},
                                      {u"'0'"_s, u"37,50"_s},
                                      {u"''"_s, u"37,50"_s},
                                      {u"null"_s, u"37,50"_s}}) {
    sql(u"UPDATE empr_cnfg SET valo_para = "_s + factor);
    assemble([&, expected = total](frmMontarProduto& screen) {
      take(screen, 0, u"3"_s);
      EXPECT_EQ(screen.lblTotalUnitarioProduto->text(), expected);
    });
  }
}

TEST_F(Lines, TakeAnObservationUpToItsLengthAndTheTitlesStay) {
  withLines([this](frmMontarProduto& screen) {
    const auto& grid = screen.Flex->grid();
    script.input(u"outra"_s).input(u" -4,5 "_s).input(u" laço azul "_s + QString(300, u'x'));
    support::doubleClick(screen.Flex, 2);
    EXPECT_EQ(script.lastInput().prompt, u"Observação Atual:\r\rInformar nova observação:"_s);
    EXPECT_EQ(grid.text(2, Column::Total), u"-46,80"_s);
    EXPECT_EQ(grid.text(2, Column::Observacao), (u"LAÇO AZUL "_s + QString(300, u'X')).left(250));
    script.input(u"A"_s).input(std::nullopt);
    support::doubleClick(screen.Flex, 2);
    EXPECT_EQ(script.lastInput().prompt, u"Quantidade Atual:-4,5\rInformar nova quantidade:"_s);
    script.input(u"e"_s);
    support::doubleClick(screen.Flex, 0);
    EXPECT_EQ(grid.rows(), 3);
    EXPECT_EQ(screen.lblTotalUnitarioProduto->text(), u"-21,80"_s);
  });
}

TEST_F(Lines, OfACompositeWhoseQuantityIsReadInPointNotation) {
  const auto& items = quote().Flex->grid();
  // A prototype sold by the kilogram that has the product's number gives the decimals; empty: refused.
  const QString prototype = u"INSERT INTO prot (idprot, idunid) VALUES (101, 2)"_s;
  for (const auto& [before, quantity, total] : {std::tuple{QString(), u"1,5"_s, u"112,40"_s},
                                                {QString(), u"2x"_s, u"112,40"_s},
                                                {QString(), QString(), QString()},
                                                {prototype, u"1,5"_s, u"84,30"_s}}) {
    if (!before.isEmpty()) sql(before);
    const int rows = items.rows();
    withLines([&, quantity = quantity, total = total](frmMontarProduto& screen) {
      support::type(screen.txtQuantidade, quantity);
      if (total.isEmpty()) script.box(u"Quantidade Inválida!"_s);
      support::click(screen.cmdConfirmar);
    });
    EXPECT_EQ(items.text(rows, grades::item::Quantidade), total.isEmpty() ? QString() : quantity);
    EXPECT_EQ(items.text(rows, grades::item::Total), total);
  }
}

TEST_F(Lines, BecomeOneItemWithItsMaterialsTiedToIt) {
  quote().Flex->grid().addItem(u"9\tPROT\t9\tantes"_s);
  withLines([this](frmMontarProduto& screen) {
    script.input(u"A"_s).input(u"2"_s).input(u"tampa lisa"_s);
    support::doubleClick(screen.Flex, 1);
    support::type(screen.txtQuantidade, u"10"_s);
    support::type(screen.txtObservacoes, u"não vai"_s);
    support::click(screen.cmdConfirmar);
  });
  EXPECT_EQ(rows(quote().Flex->grid()).last(),
            u"101|PROD|CX-100|Caixa branca|56,20|0,00|56,20|10|562,00||UN|TAMPA LISA"_s);
  EXPECT_EQ(rows(quote().FlexMonta),
            QStringList({u"101|CX-100|Caixa branca|2|UN|1|12,50|25,00|PRODUTO|TAMPA LISA|1|2"_s,
                         u"102|BOM-1|Bombom|3|UN|1|10,40|31,20|CONTEÚDO COMESTÍVEL||2|2"_s}));
}

}  // namespace
