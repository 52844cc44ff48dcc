#pragma once

#include <QString>
#include <QStringList>
#include <vector>

// The sample company's rows as they stand in sample/rows: one section for each table, its name in brackets,
// then a line with the columns and a line for each row, fields separated by "|".
namespace sample {

struct Rows {
  QString name;
  QStringList columns;
  std::vector<QStringList> rows;

  /// Field of a row by column name; raises std::logic_error on an unknown column.
  [[nodiscard]] const QString& at(std::size_t row, QStringView column) const;
};

/// All tables of the database, in the order in which they are filled.
[[nodiscard]] std::vector<Rows> tables();

/// What is drawn for which code: code, motif, colour, accent (rrggbb), variant (what stands between the code
/// and the ending when there is no plain picture), views ("234": the further views there are).
[[nodiscard]] Rows pictures();

}  // namespace sample
