#pragma once

#include <QPointer>

#include "assembly/frmConfirmaItem.h"
#include "assembly/frmMontarProduto.h"
#include "screens/screen_case.h"

/// The assembly screen over the quote screen.
class AssemblyTest : public ScreenCase {
 protected:
  AssemblyTest() { quote().showForm(); }

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
  /// The same, with two lines: 2 boxes at 12,50 and 3 chocolates at 10,40.
  void withLines(const std::function<void(frmMontarProduto&)>& act) {
    assemble([&](frmMontarProduto& screen) {
      take(screen, 0, QStringLiteral("2"));
      take(screen, 1, QStringLiteral("3"));
      act(screen);
    });
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
