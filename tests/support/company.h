#pragma once

#include <gtest/gtest.h>
#include <QString>
#include <QTemporaryDir>

#include "platform/data/connection.h"

namespace support {

/// Another program's connection to an embedded file.
[[nodiscard]] data::Connection connectionTo(const QString& databasePath);

/// A little company in a temporary folder: configuration files under ZARIM_DRIVE_C, an embedded database with
/// the whole schema and no row but those a test names, folders for pictures and documents. A test class
/// derives from it. The context is fresh and connected; forms, boxes, clock and end are put back when the
/// test is over.
class Company : public ::testing::Test {
 protected:
  Company();
  ~Company() override;

  /// Runs a statement on the embedded file on a connection of its own, as another program would.
  void sql(const QString& statement);
  /// First column of the first row as text; empty when there is no row.
  [[nodiscard]] QString ask(const QString& statement);
  /// Writes a file of the configuration folder, in UTF-8.
  void configure(const QString& name, const QString& content);
  /// Connects the context as the start sequence does.
  void connect();
  /// Folder that stands for drive C, without a final slash.
  [[nodiscard]] QString drive() const;
  [[nodiscard]] QString databasePath() const;
  /// Sets the clock, "dd/mm/yyyy hh:mm".
  void clock(const QString& when);
  /// Statements that ran on the context's connection since the last call.
  [[nodiscard]] QStringList statements();

 private:
  QTemporaryDir folder_;
  QStringList statements_;
};

/// Rows that most tests want: a company row, user 7 "MARIA", units, one customer with a contact, one
/// salesperson, one of each list, one product of each material class, two prototypes. What each row is called
/// stands in basic_rows.cpp.
void fillBasics(const QString& databasePath);

}  // namespace support
