#pragma once

#include <QStringList>
#include <optional>

#include "quote/frmPropCmrcTL.h"
#include "sqlserver/tds_server.h"
#include "support/company.h"

namespace faults {

/// A company with one stored quote (number 1: two assembled items of two materials each, one honoree) and
/// the quote screen on it. Boxes and the end of the process are noted, not scripted: what matters is what
/// stays in the database.
class FaultCase : public support::Company {
 protected:
  FaultCase();
  ~FaultCase() override;

  /// Starts the program again on the database as it was at first.
  frmPropCmrcTL& start();
  /// Starts it again on the database as it is.
  frmPropCmrcTL& again();
  /// The same, with the database on a server.
  frmPropCmrcTL& startOn(sqlserver::TdsServer& server);

  /// A new quote with two assembled items and an honoree, ready to be saved.
  static void enterQuote(frmPropCmrcTL& screen);
  /// The stored quote, loaded and ready to be saved again with another description.
  static void alterQuote(frmPropCmrcTL& screen);

  /// All rows of the quote's tables.
  [[nodiscard]] static QStringList rowsOf(const QString& databasePath);

  QStringList boxes;
  std::optional<int> ended;

 private:
  void leave();
  static frmPropCmrcTL& shown();

  QString first_ = drive() + QStringLiteral("/first.db");
};

}  // namespace faults
