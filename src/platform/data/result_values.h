#pragma once

#include <QDateTime>
#include <QString>
#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace data {

/// The values of a result, as the database gave them, one after the other: most of a long result is never
/// looked at, so a text is made of a value only when it is asked for. Numbered from 0.
class ResultValues {
 public:
  enum class Kind : quint8 { Null, Integer, Number, Date, Utf8, Utf16 };

  void addNull() { cells_.push_back({}); }
  void addInteger(qint64 value) { cells_.push_back({.integer = value, .kind = Kind::Integer}); }
  void addNumber(double value) { cells_.push_back({.number = value, .kind = Kind::Number}); }
  void addText(std::string_view utf8) { addBytes(utf8, Kind::Utf8); }
  /// As it is: half a character, which a server may have cut off, has no UTF-8.
  void addText(QStringView text) {
    addBytes({reinterpret_cast<const char*>(text.utf16()), static_cast<std::size_t>(text.size()) * 2},
             Kind::Utf16);
  }
  void addDate(QDate date, QTime time) {
    cells_.push_back(
        {.integer = date.toJulianDay() * kDay + time.msecsSinceStartOfDay(), .kind = Kind::Date});
  }

  [[nodiscard]] qsizetype size() const { return static_cast<qsizetype>(cells_.size()); }
  [[nodiscard]] Kind kind(qsizetype at) const { return cell(at).kind; }
  // Each for its own kind only.
  [[nodiscard]] qint64 integer(qsizetype at) const { return cell(at).integer; }
  [[nodiscard]] double number(qsizetype at) const { return cell(at).number; }
  [[nodiscard]] QDate date(qsizetype at) const { return QDate::fromJulianDay(integer(at) / kDay); }
  [[nodiscard]] QTime time(qsizetype at) const {
    return QTime::fromMSecsSinceStartOfDay(static_cast<int>(integer(at) % kDay));
  }
  [[nodiscard]] QString text(qsizetype at) const {
    const int length = cell(at).length;
    const char* bytes = bytes_.data() + cell(at).place;
    if (kind(at) == Kind::Utf8) return QString::fromUtf8(bytes, length);
    QString text(length / 2, Qt::Uninitialized);
    std::copy_n(bytes, length, reinterpret_cast<char*>(text.data()));
    return text;
  }

 private:
  static constexpr qint64 kDay = 86'400'000;  // milliseconds
  struct Cell {
    union {
      qint64 integer = 0;  // of a date: milliseconds since the first Julian day
      double number;
      qsizetype place;  // of a text, among the bytes
    };
    int length = 0;
    Kind kind = Kind::Null;
  };
  void addBytes(std::string_view bytes, Kind kind) {
    cells_.push_back({.place = std::ssize(bytes_), .length = static_cast<int>(bytes.size()), .kind = kind});
    bytes_.append(bytes);
  }
  [[nodiscard]] const Cell& cell(qsizetype at) const { return cells_[static_cast<std::size_t>(at)]; }

  std::vector<Cell> cells_;
  std::string bytes_;
};

}  // namespace data
