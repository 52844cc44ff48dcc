#pragma once

#include <QDateTime>
#include <QString>
#include <string>
#include <string_view>
#include <vector>

namespace data {

/// The values of a result, as the database gave them, one after the other: most of a long result is never
/// looked at, so a text is made of a value only when it is asked for. Numbered from 0.
class ResultValues {
 public:
  enum class Kind : quint8 { Null, Integer, Number, Date, Text };

  void addNull() { cells_.push_back(Cell{}); }
  void addInteger(qint64 value) { cells_.push_back(Cell{.integer = value, .form = Form::Integer}); }
  void addNumber(double value) { cells_.push_back(Cell{.number = value, .form = Form::Number}); }
  void addText(std::string_view utf8) { addBytes(utf8, Form::Utf8); }
  /// As it is: half a character, which a server may have cut off, has no UTF-8.
  void addText(QStringView text);
  void addDate(QDate date, QTime time) {
    cells_.push_back(
        Cell{.integer = date.toJulianDay() * kDay + time.msecsSinceStartOfDay(), .form = Form::Date});
  }

  [[nodiscard]] qsizetype size() const { return static_cast<qsizetype>(cells_.size()); }
  [[nodiscard]] Kind kind(qsizetype at) const;
  // Each for its own kind only.
  [[nodiscard]] qint64 integer(qsizetype at) const { return cell(at).integer; }
  [[nodiscard]] double number(qsizetype at) const { return cell(at).number; }
  [[nodiscard]] QDate date(qsizetype at) const { return QDate::fromJulianDay(integer(at) / kDay); }
  [[nodiscard]] QTime time(qsizetype at) const {
    return QTime::fromMSecsSinceStartOfDay(static_cast<int>(integer(at) % kDay));
  }
  [[nodiscard]] QString text(qsizetype at) const;

 private:
  static constexpr qint64 kDay = 86'400'000;  // milliseconds
  /// How a value is held: in its cell, or as a stretch of the bytes.
  enum class Form : quint8 { Null, Integer, Number, Date, Utf8, Utf16 };
  struct Cell {
    union {
      qint64 integer = 0;  // of a date: milliseconds since the first Julian day
      double number;
      qsizetype place;
    };
    int length = 0;
    Form form = Form::Null;
  };
  void addBytes(std::string_view bytes, Form form);
  [[nodiscard]] const Cell& cell(qsizetype at) const { return cells_[static_cast<std::size_t>(at)]; }
  [[nodiscard]] std::string_view bytes(const Cell& cell) const {
    return {bytes_.data() + cell.place, static_cast<std::size_t>(cell.length)};
  }

  std::vector<Cell> cells_;
  std::string bytes_;
};

inline void ResultValues::addBytes(std::string_view bytes, Form form) {
  cells_.push_back(Cell{.place = static_cast<qsizetype>(bytes_.size()),
                        .length = static_cast<int>(bytes.size()),
                        .form = form});
  bytes_.append(bytes);
}

}  // namespace data
