#pragma once

#include "closing/frmConfirmaPropCmrcTL.h"
#include "quote/grids.h"
#include "screens/screen_case.h"

/// The quote screen with an approved total, and the confirmation screen on top of it.
class Closing : public ScreenCase {
 protected:
  Closing() { clock(QStringLiteral("05/03/2024 10:30")); }

  static frmConfirmaPropCmrcTL& screen() { return forms::form<frmConfirmaPropCmrcTL>(); }

  /// Shows the screen for a quote with this approved total, lets a user act on it, and leaves it.
  void closingOf(const QString& approved, const std::function<void(frmConfirmaPropCmrcTL&)>& act) {
    quote().showForm();
    quote().lblTotaAprov->setText(approved);
    screen().RecalculaLiquido();
    script.modal([&](forms::Form& form) {
      act(screen());
      form.hide();
    });
    forms::guarded([] { screen().showModal(); });
  }

  /// Data rows of the instalments, "30 33,33 04/04/2024" each; they are numbered from 1.
  static QStringList instalments() {
    using namespace grades::parcela;
    QStringList rows;
    const forms::GridModel& grid = screen().Flex2->grid();
    for (int row = 1; row < grid.rows(); ++row) {
      EXPECT_EQ(grid.text(row, Parcela), QString::number(row));
      rows << grid.text(row, Dias) + u' ' + grid.text(row, Valor) + u' ' + grid.text(row, Vencimento);
    }
    return rows;
  }

  /// Chooses a condition by its id as a user does.
  static void choose(const QString& condition) {
    support::type(screen().txtIdCondPg, condition);
    support::click(screen().cmdPesquisa_CondPg);
  }
};
