#include "assembly_test.h"

using namespace Qt::StringLiterals;

// Changing the lines of an assembly and leaving it.
namespace {

using grids::material::Column;

class Lines : public AssemblyTest {
 protected:
  /// Two lines: 2 boxes at 12,50 and 3 chocolates at 10,40.
  void withLines(const std::function<void(frmMontarProduto&)>& act) {
    assemble([&](frmMontarProduto& screen) {
      take(screen, 0, u"2"_s);
      take(screen, 1, u"3"_s);
      act(screen);
    });
  }
};

TEST_F(Lines, AreChangedAndRemoved) {
  withLines([this](frmMontarProduto& screen) {
    const auto& grid = screen.Flex->grid();
    script.input(u" E"_s);
    support::doubleClick(screen.Flex, 2);
    script.input(u"A"_s).input(std::nullopt);
    support::doubleClick(screen.Flex, 2);
    EXPECT_EQ(script.lastInput().prompt, u"Quantidade Atual:3\rInformar nova quantidade:"_s);
    EXPECT_EQ(script.lastInput().initial, u"3"_s);
    EXPECT_EQ(grid.text(2, Column::Total), u"31,20"_s);

    script.input(u"outra"_s).input(u" -4,5 "_s).input(u" laço azul "_s + QString(300, u'x'));
    support::doubleClick(screen.Flex, 2);
    EXPECT_EQ(script.lastInput().prompt, u"Observação Atual:\r\rInformar nova observação:"_s);
    EXPECT_EQ(grid.text(2, Column::Quantidade), u"-4,5"_s);
    EXPECT_EQ(grid.text(2, Column::Total), u"-46,80"_s);
    EXPECT_EQ(grid.text(2, Column::Observacao), (u"LAÇO AZUL "_s + QString(300, u'X')).left(250));
    EXPECT_EQ(screen.lblTotalUnitarioProduto->text(), u"-21,80"_s);

    for (const auto& [line, left, total] :
         {std::tuple{0, 3, u"-21,80"_s}, {1, 2, u"-46,80"_s}, {1, 1, u"0,00"_s}}) {
      script.input(u"e"_s);
      support::doubleClick(screen.Flex, line);
      EXPECT_EQ(grid.rows(), left);
      EXPECT_EQ(screen.lblTotalUnitarioProduto->text(), total);
    }
    EXPECT_EQ(grid.text(0, Column::Observacao), u"Observações"_s);
  });
}

TEST_F(Lines, QuantityOfTheCompositeIsReadInPointNotation) {
  const struct {
    QString quantity;
    QString total;  ///< of the item; empty: refused
  } cases[] = {
      {u"10"_s, u"562,00"_s}, {u"1,5"_s, u"112,40"_s}, {u"2x"_s, u"112,40"_s}, {u"0,5"_s, {}}, {{}, {}},
      {u"1,5"_s, u"84,30"_s}};
  const auto& items = quote().Flex->grid();
  for (const auto& one : cases) {
    const int before = items.rows();
    // A prototype sold by the kilogram that has the product's number gives the decimals.
    if (&one == std::end(cases) - 1) sql(u"INSERT INTO prot (idprot, idunid) VALUES (101, 2)"_s);
    withLines([&](frmMontarProduto& screen) {
      support::type(screen.txtQuantidade, one.quantity);
      if (one.total.isEmpty()) script.box(u"Quantidade Inválida!"_s);
      support::click(screen.cmdConfirmar);
    });
    ASSERT_EQ(items.rows(), before + (one.total.isEmpty() ? 0 : 1)) << one.quantity.toStdString();
    if (one.total.isEmpty()) continue;
    EXPECT_EQ(items.text(before, grids::item::Quantidade), one.quantity);
    EXPECT_EQ(items.text(before, grids::item::Total), one.total);
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

/// An item goes back to the assembly as the quote screen hands it over, is changed and given up: its
/// materials come back under what the screen says now.
TEST_F(Lines, OfAnItemThatIsGivenUpComeBackUnderTheNewPrice) {
  const QStringList lines{u"101\tCX-100\tCaixa branca\t2\tUN\t1\t12,50\t25,00\tPRODUTO\tTAMPA\t1\t"_s,
                          u"102\tBOM-1\tBombom\t3\tUN\t1\t10,40\t31,20\tCONTEÚDO COMESTÍVEL\tMEIO\t2\t"_s};
  // The current line gives unit and observation: the product, a material, the titles.
  const QStringList ends{u"UN|do item"_s, u"UN|MEIO"_s, u"Unid.Medida|Observações"_s};
  for (int item = 1; item <= 3; ++item) {
    for (const QString& line : lines) {
      screen().Flex->grid().addItem(line);
      screen().FlexSombra.addItem(line);
    }
    screen().txtObservacoes->setText(u" do item "_s);
    assemble([&](frmMontarProduto& screen) {
      script.input(u"A"_s).input(u"4"_s).input(u""_s);
      support::doubleClick(screen.Flex, 1);
      support::type(screen.txtQuantidade, u"1,5"_s);
      support::clickRow(screen.Flex, item % 3);
      script.box(u"Tem certeza que deseja cancelar a operação? (S/N)"_s, forms::Answer::Yes);
      support::click(screen.cmdCancelar);
    });
    EXPECT_EQ(rows(quote().Flex->grid()).last(),
              u"101|PROD|CX-100|Caixa branca|81,20|0,00|81,20|1,5|121,80||"_s + ends[item - 1]);
    QStringList materials = lines;
    for (QString& line : materials) line = line.replace(u'\t', u'|') + QString::number(item);
    EXPECT_EQ(rows(quote().FlexMonta).last(2), materials);
  }
}

}  // namespace
