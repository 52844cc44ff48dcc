#pragma once

#include "platform/forms/process.h"
#include "quote/frmPropCmrcTL.h"
#include "run/context.h"
#include "support/company.h"
#include "support/script.h"

/// The screens of the little company with its usual rows, for user 7 on 15/03/2024 at 10:30.
class ScreenCase : public support::Company {
 protected:
  ScreenCase() {
    support::fillBasics(databasePath());
    contexto().LinhaComando = QStringLiteral("7^0^PRD^");
    clock(QStringLiteral("15/03/2024 10:30"));
  }

  [[nodiscard]] static frmPropCmrcTL& quote() { return forms::form<frmPropCmrcTL>(); }

  /// Cells of a row, "a|b".
  [[nodiscard]] static QString row(const forms::GridModel& grid, int row) {
    QStringList texts;
    for (int column = 0; column < grid.cols(); ++column) texts << grid.text(row, column);
    return texts.join(u'|');
  }
  /// Data rows, each as above.
  [[nodiscard]] static QStringList rows(const forms::GridModel& grid) {
    QStringList all;
    for (int line = 1; line < grid.rows(); ++line) all << row(grid, line);
    return all;
  }
  /// One column of all data rows, "a|b".
  [[nodiscard]] static QString column(const forms::GridModel& grid, int column) {
    QStringList texts;
    for (int row = 1; row < grid.rows(); ++row) texts << grid.text(row, column);
    return texts.join(u'|');
  }

  support::Script script;
};
