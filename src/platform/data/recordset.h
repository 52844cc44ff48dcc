#pragma once

#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <span>

#include "platform/data/result_values.h"

namespace data {

/// The columns of a result.
struct Columns {
  QStringList names;   ///< in the order of the statement; of two with the same name the first counts
  QList<int> longest;  ///< of texts, one for each column; empty where the database gives none
};

/// A field as a list shows it: formatDate() where there is a form, else text(). Both are literals.
struct ShownField {
  QStringView field;
  QStringView form = {};
};

/// A result read whole when it was opened, then walked forward. Fields are found by name whatever the case.
/// A recordset made by default is closed; any use of a closed one but isOpen and close raises 3704.
/// Value type: a copy costs little, stands on the row where it was made, and shares nothing that changes.
class Recordset {
 public:
  Recordset() = default;
  /// The values of all rows one after the other.
  Recordset(std::shared_ptr<const Columns> columns, ResultValues values);

  [[nodiscard]] bool isOpen() const { return columns_ != nullptr; }
  void close();

  [[nodiscard]] bool eof() const;
  void moveNext();
  /// Number of rows.
  [[nodiscard]] qsizetype count() const;
  [[nodiscard]] const QStringList& columns() const;

  /// Longest text that a column takes by the database's own definition; 0 without a limit, where the database
  /// gives none, and for an unknown name. Known for results without rows ("… WHERE 1=0") alone.
  [[nodiscard]] int longest(QStringView field) const;

  /// A field of the current row as the program shows it: null is empty, a number has a comma and no trailing
  /// zeros, a date is "dd/mm/yyyy" with " hh:mm:ss" unless it is midnight, a text stands as it is.
  /// Raises 3265 on an unknown name, 3021 at the end.
  [[nodiscard]] QString text(QStringView field) const;
  [[nodiscard]] bool isNull(QStringView field) const;
  /// Raises 94 on null, 13 on a text that is no number.
  [[nodiscard]] double number(QStringView field) const;
  /// Invalid on null; raises 13 on what is no date.
  [[nodiscard]] QDateTime date(QStringView field) const;

  /// number() in a mask ("###0.00"), empty on null.
  [[nodiscard]] QString format(QStringView field, QStringView mask) const;
  /// date() in a form ("dd/mm/yyyy"), empty on null.
  [[nodiscard]] QString formatDate(QStringView field, QStringView form) const;

  /// The texts of all rows, by row from 0 and place in `fields`, made when they are asked for, which never
  /// raises: what can has been done here, before. Raises 3265 on an unknown name, 13 on what is no date.
  [[nodiscard]] std::function<QString(qsizetype row, int field)> shown(
      std::span<const ShownField> fields) const;

 private:
  /// Where the field of the current row stands among the values.
  [[nodiscard]] qsizetype place(QStringView field) const;

  std::shared_ptr<const Columns> columns_;      // none when closed
  std::shared_ptr<const ResultValues> values_;  // row after row
  std::size_t rows_ = 0;
  std::size_t row_ = 0;
};

}  // namespace data
