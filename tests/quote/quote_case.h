#pragma once

#include "platform/forms/process.h"
#include "quote/frmPropCmrcTL.h"
#include "run/context.h"
#include "support/company.h"
#include "support/script.h"

/// The quote screen of the little company, started by user 7 on 15/03/2024 at 10:30.
class QuoteCase : public support::Company {
 protected:
  QuoteCase();

  /// Starts the program's screen; the statements of the start are forgotten.
  frmPropCmrcTL& start();
  /// A stored quote: header fields as "column='value', …" on top of a header with every field.
  void store(int id, const QString& changes = {});
  void load(int id);
  /// A new quote with every field and one assembled line with two materials, a prototype and an honoree.
  void fillNew();

  /// Texts of controls, "name=text|name=text".
  static void expectShown(const forms::Form& form, const QString& fields);
  /// Cells separated by ";", as those below.
  void addItem(QString cells);
  void addMaterial(const QString& id, const QString& type, const QString& link);
  [[nodiscard]] static QString cells(const forms::GridModel& grid, int row);
  /// One column of all data rows.
  [[nodiscard]] static QString column(const forms::GridModel& grid, int column);
  /// Statements since the last call, without the reads; those of identities stay.
  QStringList writes();

  support::Script script;
  frmPropCmrcTL* screen = nullptr;
};
