#pragma once

#include <QPointer>

#include "assembly/frmConfirmaItem.h"
#include "assembly/frmMontarProduto.h"
#include "platform/forms/process.h"
#include "quote/frmPropCmrcTL.h"
#include "run/context.h"
#include "support/company.h"
#include "support/script.h"

/// The assembly screen over the quote screen.
class AssemblyTest : public support::Company {
 protected:
  AssemblyTest() {
    support::fillBasics(databasePath());
    contexto().LinhaComando = QStringLiteral("7^0^PRD^");
    quote().showForm();
  }
  ~AssemblyTest() override { forms::registry::clear(); }

  static frmPropCmrcTL& quote() { return forms::form<frmPropCmrcTL>(); }
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
  /// What a user does in the dialog that the next chosen article opens.
  void inDialog(const std::function<void(frmConfirmaItem&)>& act) {
    script.modal([act](forms::Form& opened) { act(dynamic_cast<frmConfirmaItem&>(opened)); });
  }
  static forms::FlexGrid* results(frmMontarProduto& screen) {
    return screen.SSTab1->currentWidget()->findChild<forms::FlexGrid*>();
  }
  /// Finds the articles of a tab (0 to 6) and takes the first.
  void take(frmMontarProduto& screen, int tab, const QString& quantity = QStringLiteral("1")) {
    screen.SSTab1->setCurrentIndex(tab);
    support::click(screen.cmdPesquisar);
    inDialog([&quantity](frmConfirmaItem& dialog) {
      support::type(dialog.txtQuantidade, quantity);
      support::click(dialog.cmdConfirmar);
    });
    support::doubleClick(results(screen), 1);
  }
  static QStringList rows(const forms::GridModel& grid) {
    QStringList all;
    for (int row = 1; row < grid.rows(); ++row) {
      all << grid.text(row, 0);
      for (int column = 1; column < grid.cols(); ++column) all.last() += u'|' + grid.text(row, column);
    }
    return all;
  }

  support::Script script;
};
