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
    take(screen, 1, u"3"_s);
    const auto& grid = screen.Flex->grid();
    EXPECT_EQ(rows(grid), QStringList({u"101|CX-100|Caixa branca|2|UN|1|12,50|25,00|PRODUTO||1"_s,
                                       u"102|BOM-1|Bombom|3|UN|1|10,40|31,20|CONTEÚDO COMESTÍVEL||2"_s,
                                       u"107|SAL|Sal de banho|0,25|KG|1|18,00|4,50|OUTROS||7"_s}));
    EXPECT_EQ(screen.lblTotalUnitarioProduto->text(), u"60,70"_s);
    EXPECT_EQ(grid.cellBackColor(1, grids::material::Codigo), forms::toColor(kLaranja));
    EXPECT_EQ(grid.cellAlignment(1, grids::material::Codigo), Qt::AlignLeft | Qt::AlignTop);
    for (int line : {2, 3}) {
      EXPECT_FALSE(grid.cellBackColor(line, grids::material::Codigo).isValid());
      EXPECT_EQ(grid.cellAlignment(line, grids::material::Codigo), Qt::AlignRight | Qt::AlignTop);
    }
  });
}

TEST_F(ConfirmingItem, TheDialogTakesNumbersOnlyAndEnterLeadsToConfirm) {
  assemble([this](frmMontarProduto& screen) {
    screen.SSTab1->setCurrentIndex(1);
    support::click(screen.cmdPesquisar);
    inDialog([](frmConfirmaItem& dialog) {
      EXPECT_EQ(dialog.txtQuantidade->text(), u"1"_s);
      EXPECT_EQ(dialog.txtQuantidade->selectedText(), u"1"_s);
      EXPECT_EQ(dialog.txtObservacoes->maxLength(), 250);
      EXPECT_FALSE(forms::isLocked(dialog.txtObservacoes));
      EXPECT_EQ(forms::backColor(dialog.txtObservacoes), kCorEntrada);
      support::type(dialog.txtQuantidade, u"x1.5-"_s);
      EXPECT_EQ(dialog.txtQuantidade->text(), u"1,5"_s);
      support::key(dialog.txtQuantidade, Qt::Key_Return);
      ASSERT_TRUE(dialog.txtObservacoes->hasFocus());
      support::type(dialog.txtObservacoes, u" com fita "_s);
      support::focus(dialog.cmdConfirmar);
      support::key(dialog.cmdConfirmar, Qt::Key_Return);
      EXPECT_FALSE(dialog.cmdConfirmar->hasFocus()) << "moves on like a field";
      support::key(&dialog, Qt::Key_Escape);
      ASSERT_TRUE(dialog.isVisible());
      support::click(dialog.cmdConfirmar);
    });
    support::doubleClick(screen.Flex2, 1);
    EXPECT_EQ(rows(screen.Flex->grid()),
              QStringList(u"102|BOM-1|Bombom|1,5|UN|1|10,40|15,60|CONTEÚDO COMESTÍVEL|com fita|2"_s));
  });
}

TEST_F(ConfirmingItem, TheObservationOfTheProductLineIsLocked) {
  assemble([this](frmMontarProduto& screen) {
    support::click(screen.cmdPesquisar);
    inDialog([](frmConfirmaItem& dialog) {
      EXPECT_TRUE(forms::isLocked(dialog.txtObservacoes));
      support::click(dialog.cmdCancelar);
    });
    support::doubleClick(screen.Flex1, 1);
    EXPECT_EQ(screen.Flex->grid().rows(), 1);
  });
}

TEST_F(ConfirmingItem, ASecondProductAndARepeatedArticleAreRefusedAndTheDialogGoes) {
  sql(u"INSERT INTO prod (idprod, codi_prod, desc_prod, prod_mate_prim, valo_veds, idmoed) "
      u"VALUES (151, 'AZ', 'Caixa azul', 'P', 7, 1)"_s);
  sql(u"INSERT INTO prod (idprod, codi_prod, desc_prod, prod_mate_prim, tipo_mate_prima, valo_veds, idmoed) "
      u"VALUES (152, 'VELA', 'Vela aqui também', 'M', 'CARD', 7, 1)"_s);
  assemble([this](frmMontarProduto& screen) {
    take(screen, 0);
    take(screen, 2);
    const QStringList before = rows(screen.Flex->grid());
    script.box(
        u"Item: AZ\nCada montagem somente poderá comportar um produto!\n"
        u"Finalize esta montagem e solicite uma nova!"_s);
    take(screen, 0);
    EXPECT_EQ(script.lastBox().icon, forms::Icon::Information);
    EXPECT_EQ(script.lastBox().title.value_or(u"Zarim 1.2"_s), u"Zarim 1.2"_s);

    script.box(u"Item: VELA\nItem já foi inserido!\nO mesmo não poderá ser duplicado!"_s);
    screen.txtCOD->setText(u"também"_s);
    take(screen, 4);
    EXPECT_EQ(rows(screen.Flex->grid()), before);
  });
}

TEST_F(ConfirmingItem, AQuantityOfZeroIsRefusedAndTheDialogStays) {
  assemble([this](frmMontarProduto& screen) {
    support::click(screen.cmdPesquisar);
    inDialog([this](frmConfirmaItem& dialog) {
      support::type(dialog.txtQuantidade, u"0,00"_s);
      script.box(u"Valor inválido!"_s);
      support::click(dialog.cmdConfirmar);
      EXPECT_EQ(script.lastBox().title, dialog.windowTitle());
      ASSERT_TRUE(dialog.isVisible());
      support::click(dialog.cmdCancelar);
    });
    support::doubleClick(screen.Flex1, 1);
    EXPECT_EQ(screen.Flex->grid().rows(), 1);
  });
}

TEST_F(ConfirmingItem, AnEmptyQuantityEndsInTheRuntimesError) {
  script.box(u"Erro em tempo de execução '13':\n\nTipos incompatíveis"_s).expectEnd(1);
  assemble([this](frmMontarProduto& screen) { take(screen, 0, QString()); });
  EXPECT_TRUE(script.ended());
}

struct FactorCase {
  const char16_t* parameter;  ///< nullptr: there is none
  bool showRoom;
  QString value, total;
};
void PrintTo(const FactorCase& one, std::ostream* out) {
  *out << (one.parameter ? QString::fromUtf16(one.parameter).toStdString() : "none")
       << (one.showRoom ? " room" : "");
}

class ShowRoom : public AssemblyTest, public ::testing::WithParamInterface<FactorCase> {};

TEST_P(ShowRoom, MultipliesTheValueOfTheLine) {
  const FactorCase& one = GetParam();
  sql(u"UPDATE prod SET valo_veds = 10 WHERE idprod = 101"_s);
  if (one.parameter != nullptr)
    sql(u"INSERT INTO empr_cnfg (nome_para, valo_para) VALUES ('PERCENTUAL_SHOWROOM', '"_s +
        QString::fromUtf16(one.parameter) + u"')"_s);
  (one.showRoom ? quote().opShowRoom : quote().opPV)->setChecked(true);
  assemble([&](frmMontarProduto& screen) {
    take(screen, 0, u"3"_s);
    EXPECT_EQ(screen.Flex->grid().text(1, grids::material::ValorUnitario), one.value);
    EXPECT_EQ(screen.lblTotalUnitarioProduto->text(), one.total);
  });
}

INSTANTIATE_TEST_SUITE_P(All, ShowRoom,
                         ::testing::Values(FactorCase{u"1,25", true, u"12,50"_s, u"37,50"_s},
                                           FactorCase{u"1,25", false, u"10,00"_s, u"30,00"_s},
                                           FactorCase{u"1,3333", true, u"13,33"_s, u"39,99"_s},
                                           FactorCase{u"0", true, u"10,00"_s, u"30,00"_s},
                                           FactorCase{u"", true, u"10,00"_s, u"30,00"_s},
                                           FactorCase{nullptr, true, u"10,00"_s, u"30,00"_s}));

}  // namespace
