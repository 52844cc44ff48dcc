#include <QPointer>

#include "assembly/frmComposicaoProduto.h"
#include "assembly/frmConfirmaItem.h"
#include "assembly/frmMontarProduto.h"
#include "platform/forms/boxes.h"
#include "screens/screen_case.h"
#include "shared/theme.h"

using namespace Qt::StringLiterals;

namespace {

using grades::material::Column;

/// The assembly screen over the quote screen.
class Assembly : public ScreenCase {
 protected:
  Assembly() { quote().showForm(); }

  static frmMontarProduto& screen() { return forms::form<frmMontarProduto>(); }

  /// Shows the assembly screen, lets a user act on it; a screen still open is put away.
  void assemble(const std::function<void(frmMontarProduto&)>& act) {
    script.modal([&act](forms::Form& opened) {
      const QPointer<forms::Form> still(&opened);
      act(dynamic_cast<frmMontarProduto&>(opened));
      if (still != nullptr && still->isVisible()) still->unload();
    });
    forms::guarded([] { screen().showModal(); });
    support::settle();
  }
  static forms::FlexGrid* results(frmMontarProduto& screen) {
    return screen.SSTab1->currentWidget()->findChild<forms::FlexGrid*>();
  }
  /// Finds the articles of a tab (0 to 6) and takes the first; what a user does in its dialog besides.
  void take(frmMontarProduto& screen, int tab, const QString& quantity,
            const std::function<void(frmConfirmaItem&)>& act = {}) {
    screen.SSTab1->setCurrentIndex(tab);
    support::click(screen.cmdPesquisar);
    script.modal([&](forms::Form& opened) {
      auto& dialog = dynamic_cast<frmConfirmaItem&>(opened);
      support::type(dialog.txtQuantidade, quantity);
      if (act) act(dialog);
      support::click(dialog.cmdConfirmar);
    });
    support::doubleClick(results(screen), 1);
  }
};

TEST_F(Assembly, ItsLinesAreSortedByClassMarkedAndAddedUp) {
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

TEST_F(Assembly, AKitIsShownByTheViewer) {
  for (const auto& row : {u"101, 107, 0.25, null"_s, u"101, 102, 6, null"_s, u"101, 103, 1, '20240101'"_s})
    sql(u"INSERT INTO prod_kit0 (idprod, idprod_kit0, qtde_prod, data_desa) VALUES (%1)"_s.arg(row));
  const QStringList kit{u"102|BOM-1|Bombom|UN|6"_s, u"107|SAL|Sal de banho|KG|0,250"_s};
  for (const auto& [code, name, lines] :
       {std::tuple{QString(), QString(), QStringList()}, {u"CX-100"_s, u"Caixa branca"_s, kit}}) {
    contexto().CodProdutoComposicao = code;
    script.modal([&, expectedName = name, expected = lines](forms::Form& opened) {
      auto& viewer = dynamic_cast<frmComposicaoProduto&>(opened);
      EXPECT_EQ(viewer.lblDescProdDetalhe->text(), expectedName);
      EXPECT_EQ(rows(viewer.Flex->grid()), expected);
      viewer.close();
    });
    forms::form<frmComposicaoProduto>().showModal();
  }
}

}  // namespace
