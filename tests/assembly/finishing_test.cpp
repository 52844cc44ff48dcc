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

const QString kAsk = u"Deseja [A]lterar ou [E]xcluir ?"_s;

TEST_F(Lines, AreChangedInQuantityAndObservation) {
  withLines([this](frmMontarProduto& screen) {
    script.input(u"alterar"_s).input(u" 4,5 "_s).input(u" laço azul "_s + QString(300, u'x'));
    support::doubleClick(screen.Flex, 2);
    const auto& grid = screen.Flex->grid();
    EXPECT_EQ(grid.text(2, Column::Quantidade), u"4,5"_s);
    EXPECT_EQ(grid.text(2, Column::Total), u"46,80"_s);
    EXPECT_EQ(screen.lblTotalUnitarioProduto->text(), u"71,80"_s);
    EXPECT_EQ(grid.text(2, Column::Observacao), (u"LAÇO AZUL "_s + QString(300, u'X')).left(250));
    EXPECT_TRUE(script.lastInput().prompt.endsWith(u"Observação Atual:\r\rInformar nova observação:"_s));

    script.input(u"X"_s).input(u"-2"_s).input(u"  "_s);
    support::doubleClick(screen.Flex, 2);
    EXPECT_EQ(grid.text(2, Column::Total), u"-20,80"_s);
    EXPECT_EQ(grid.text(2, Column::Observacao).size(), 250) << "changed but not blanked";
    EXPECT_EQ(screen.lblTotalUnitarioProduto->text(), u"4,20"_s);
  });
}

TEST_F(Lines, AskWithWhatIsThere) {
  withLines([this](frmMontarProduto& screen) {
    const auto asked = [&](const QString& prompt, const QString& initial) {
      EXPECT_EQ(script.lastInput().prompt, prompt);
      EXPECT_EQ(script.lastInput().initial, initial);
      EXPECT_EQ(script.lastInput().title, u"Zarim 1.2 - Montar Produto"_s);
    };
    for (const auto& nothing : {std::optional<QString>(), std::optional(u""_s), std::optional(u" E"_s)}) {
      script.input(nothing);
      support::doubleClick(screen.Flex, 2);
      asked(kAsk, u"A"_s);
    }
    script.input(u"A"_s).input(std::nullopt);
    support::doubleClick(screen.Flex, 2);
    asked(u"Quantidade Atual:3\rInformar nova quantidade:"_s, u"3"_s);
    EXPECT_EQ(screen.Flex->grid().text(2, Column::Quantidade), u"3"_s);
  });
}

TEST_F(Lines, RefuseWhatIsNoQuantity) {
  withLines([this](frmMontarProduto& screen) {
    const QString invalid = u"Valor inválido!"_s;
    const QString point = invalid + u"\nUsar vírgula no lugar de ponto!"_s;
    const QStringList before = rows(screen.Flex->grid());
    for (const auto& [typed, message] : {std::pair{u"dois"_s, invalid}, std::pair{u"0,0"_s, invalid},
                                         std::pair{u"1.5"_s, point}, std::pair{u"1.500,5"_s, point}}) {
      script.input(u"A"_s).input(typed).box(message);
      support::doubleClick(screen.Flex, 2);
      EXPECT_EQ(script.lastBox().title, screen.windowTitle());
      EXPECT_EQ(rows(screen.Flex->grid()), before);
    }
  });
}

TEST_F(Lines, AreRemoved) {
  withLines([this](frmMontarProduto& screen) {
    const auto remove = [&](int line) {
      script.input(u"e"_s);
      support::doubleClick(screen.Flex, line);
      return screen.Flex->grid().rows() - 1;
    };
    EXPECT_EQ(remove(0), 2) << "the title stays";
    EXPECT_EQ(remove(1), 1);
    EXPECT_EQ(screen.Flex->grid().text(1, Column::Codigo), u"BOM-1"_s);
    EXPECT_EQ(screen.lblTotalUnitarioProduto->text(), u"31,20"_s);
    EXPECT_EQ(remove(1), 0);
    EXPECT_EQ(screen.lblTotalUnitarioProduto->text(), u"0,00"_s);
    EXPECT_EQ(screen.Flex->grid().text(0, Column::Observacao), u"Observações"_s);
  });
}

TEST_F(Lines, WithoutAProductAreNotConfirmed) {
  assemble([this](frmMontarProduto& screen) {
    take(screen, 1);
    script.box(u"Não é possível finalizar, pois falta item do tipo PRODUTO"_s);
    support::click(screen.cmdConfirmar);
    EXPECT_EQ(script.lastBox().title, screen.windowTitle());
    EXPECT_EQ(script.lastBox().icon, forms::Icon::Information);
    EXPECT_TRUE(screen.isVisible());
  });
}

struct QuantityCase {
  QString quantity;
  QString total;           ///< of the item; empty: refused
  bool prototype = false;  ///< a prototype sold by the kilogram has the product's number
};
void PrintTo(const QuantityCase& one, std::ostream* out) { *out << one.quantity.toStdString(); }

class Quantity : public Lines, public ::testing::WithParamInterface<QuantityCase> {};

TEST_P(Quantity, OfTheCompositeIsReadInPointNotation) {
  const QuantityCase& one = GetParam();
  if (one.prototype) sql(u"INSERT INTO prot (idprot, idunid) VALUES (101, 2)"_s);
  withLines([&](frmMontarProduto& screen) {
    support::type(screen.txtQuantidade, one.quantity);
    if (one.total.isEmpty()) script.box(u"Quantidade Inválida!"_s);
    const QPointer<frmMontarProduto> still(&screen);
    support::click(screen.cmdConfirmar);
    ASSERT_EQ(still != nullptr && still->isVisible(), one.total.isEmpty());
    EXPECT_TRUE(!one.total.isEmpty() || screen.txtQuantidade->hasFocus());
  });
  const auto& items = quote().Flex->grid();
  ASSERT_EQ(items.rows(), one.total.isEmpty() ? 1 : 2);
  EXPECT_EQ(items.text(1, grids::item::Total), one.total);
  EXPECT_EQ(items.text(1, grids::item::Quantidade), one.total.isEmpty() ? QString() : one.quantity);
}

INSTANTIATE_TEST_SUITE_P(All, Quantity,
                         ::testing::Values(QuantityCase{u"10"_s, u"562,00"_s}, QuantityCase{u"0,5"_s, u""_s},
                                           QuantityCase{u"1,5"_s, u"112,40"_s},
                                           QuantityCase{u"1,4"_s, u"56,20"_s},
                                           QuantityCase{u"1,5"_s, u"84,30"_s, true},
                                           QuantityCase{u"0"_s, u""_s}, QuantityCase{u"-3"_s, u""_s},
                                           QuantityCase{u"dez"_s, u""_s}, QuantityCase{u""_s, u""_s},
                                           QuantityCase{u"2x"_s, u"112,40"_s}));

TEST_F(Lines, BecomeOneItemWithItsMaterialsTiedToIt) {
  quote().Flex->grid().addItem(u"9\tPROT\t9\tantes"_s);
  withLines([this](frmMontarProduto& screen) {
    script.input(u"A"_s).input(u"2"_s).input(u"tampa lisa"_s);
    support::doubleClick(screen.Flex, 1);
    support::type(screen.txtQuantidade, u"10"_s);
    support::type(screen.txtObservacoes, u"não vai"_s);
    (void)statements();
    support::click(screen.cmdConfirmar);
    EXPECT_EQ(statements().size(), 3) << "what the decimals of the quantity take, no write";
  });
  EXPECT_EQ(rows(quote().Flex->grid()).last(),
            u"101|PROD|CX-100|Caixa branca|56,20|0,00|56,20|10|562,00||UN|TAMPA LISA"_s);
  EXPECT_EQ(rows(quote().FlexMonta),
            QStringList({u"101|CX-100|Caixa branca|2|UN|1|12,50|25,00|PRODUTO|TAMPA LISA|1|2"_s,
                         u"102|BOM-1|Bombom|3|UN|1|10,40|31,20|CONTEÚDO COMESTÍVEL||2|2"_s}));
  assemble([](frmMontarProduto& screen) {
    EXPECT_EQ(screen.Flex->grid().rows(), 1);
    EXPECT_EQ(screen.Flex1->grid().rows(), 1);
    EXPECT_EQ(screen.txtQuantidade->text(), u"1"_s);
    EXPECT_EQ(screen.lblTotalUnitarioProduto->text(), u"0,00"_s);
  });
}

const QString kSure = u"Tem certeza que deseja cancelar a operação? (S/N)"_s;

TEST_F(Lines, OfANewItemAreDroppedByACancelThatIsConfirmed) {
  withLines([this](frmMontarProduto& screen) {
    script.box(kSure, forms::Answer::No);
    support::click(screen.cmdCancelar);
    EXPECT_EQ(script.lastBox().title, screen.windowTitle());
    ASSERT_TRUE(screen.isVisible());
    EXPECT_EQ(screen.Flex->grid().rows(), 3);
    script.box(kSure, forms::Answer::Yes);
    support::click(screen.cmdCancelar);
  });
  EXPECT_EQ(quote().Flex->grid().rows(), 1);
  EXPECT_EQ(quote().FlexMonta.rows(), 1);
}

class Altering : public Lines {
 protected:
  /// The item goes back to the assembly as the quote screen hands it over: two lines, 10 pieces.
  void altering(const std::function<void(frmMontarProduto&)>& act) {
    const QStringList lines{u"101\tCX-100\tCaixa branca\t2\tUN\t1\t12,50\t25,00\tPRODUTO\tTAMPA\t1\t"_s,
                            u"102\tBOM-1\tBombom\t3\tUN\t1\t10,40\t31,20\tCONTEÚDO COMESTÍVEL\tMEIO\t2\t"_s};
    for (const QString& line : lines) {
      screen().Flex->grid().addItem(line);
      screen().FlexSombra.addItem(line);
      screen().MarcaLinha(screen().Flex->grid().rows() - 1);
    }
    screen().txtObservacoes->setText(u" do item "_s);
    screen().txtQuantidade->setText(u"10"_s);
    screen().lblTotalUnitarioProduto->setText(u"56,20"_s);
    assemble(act);
  }
};

TEST_F(Altering, CancelledBringsTheMaterialsBackUnderWhatTheScreenSaysNow) {
  for (int current : {1, 2}) {
    altering([&](frmMontarProduto& screen) {
      script.input(u"A"_s).input(u"4"_s).input(u""_s);
      support::doubleClick(screen.Flex, 1);
      support::type(screen.txtQuantidade, u"1,5"_s);
      support::clickRow(screen.Flex, current);
      script.box(kSure, forms::Answer::Yes);
      support::click(screen.cmdCancelar);
    });
    const QString observation = current == 1 ? u"do item"_s : u"MEIO"_s;
    EXPECT_EQ(rows(quote().Flex->grid()).last(),
              u"101|PROD|CX-100|Caixa branca|81,20|0,00|81,20|1,5|121,80||UN|"_s + observation);
    EXPECT_EQ(
        rows(quote().FlexMonta).last(2),
        QStringList({u"101|CX-100|Caixa branca|2|UN|1|12,50|25,00|PRODUTO|TAMPA|1|%1"_s.arg(current),
                     u"102|BOM-1|Bombom|3|UN|1|10,40|31,20|CONTEÚDO COMESTÍVEL|MEIO|2|%1"_s.arg(current)}));
  }
}

TEST_F(Altering, CancelledWithTheTitleCurrentTakesTheTitleForTheUnit) {
  altering([&](frmMontarProduto& screen) {
    script.input(u"E"_s).box(kSure, forms::Answer::Yes);
    support::doubleClick(screen.Flex, 0);
    support::click(screen.cmdCancelar);
  });
  EXPECT_EQ(rows(quote().Flex->grid()).last(),
            u"101|PROD|CX-100|Caixa branca|56,20|0,00|56,20|10|562,00||Unid.Medida|Observações"_s);
}

TEST_F(Altering, CancelledWithoutAQuantityEndsInTheRuntimesError) {
  script.box(kSure, forms::Answer::Yes);
  script.box(u"Erro em tempo de execução '13':\n\nTipos incompatíveis"_s).expectEnd(1);
  const auto act = [](frmMontarProduto& screen) {
    screen.txtQuantidade->clear();
    support::click(screen.cmdCancelar);
  };
  altering(act);
  EXPECT_TRUE(script.ended());
  EXPECT_EQ(quote().Flex->grid().rows(), 1);
}

}  // namespace
