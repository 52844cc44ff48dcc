#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QVariant>
#include <string_view>

namespace data {

/// The values of a result, as the database gave them, one behind the other: most of a long result is never
/// looked at, so a text or a date is made of a value only when it is asked for. Numbered from 0.
class ResultValues {
 public:
  enum class Kind : quint8 { Null, Integer, Number, Date, Text };

  void addNull() { cells_.append(Cell{}); }
  void addInteger(qint64 value) { cells_.append(Cell{.integer = value, .form = Form::Integer}); }
  void addNumber(double value) { cells_.append(Cell{.number = value, .form = Form::Number}); }
  void addText(std::string_view utf8) { addBytes(utf8, Form::Utf8); }
  /// A date as the embedded file writes it ("yyyymmdd hh:mm"); what is none stays a text.
  void addWrittenDate(std::string_view text) { addBytes(text, Form::WrittenDate); }
  /// QDateTime, double, qlonglong, QString, or an invalid QVariant, which is null.
  void add(const QVariant& value);

  [[nodiscard]] qsizetype size() const { return cells_.size(); }
  [[nodiscard]] Kind kind(qsizetype at) const;
  // Each for its own kind only.
  [[nodiscard]] qint64 integer(qsizetype at) const { return cells_[at].integer; }
  [[nodiscard]] double number(qsizetype at) const { return cells_[at].number; }
  [[nodiscard]] QDateTime date(qsizetype at) const;
  [[nodiscard]] QString text(qsizetype at) const;

 private:
  /// How a value is held: in its cell, or as a stretch of the bytes.
  enum class Form : quint8 { Null, Integer, Number, Date, WrittenDate, Utf8, Utf16 };
  struct Cell {
    union {
      qint64 integer = 0;  // of a date: milliseconds
      double number;
      qsizetype place;
    };
    int length = 0;
    Form form = Form::Null;
  };
  void addBytes(std::string_view bytes, Form form);
  [[nodiscard]] std::string_view bytes(const Cell& cell) const {
    return {bytes_.constData() + cell.place, static_cast<std::size_t>(cell.length)};
  }

  QList<Cell> cells_;
  QByteArray bytes_;
};

inline void ResultValues::addBytes(std::string_view bytes, Form form) {
  cells_.append(Cell{.place = bytes_.size(), .length = static_cast<int>(bytes.size()), .form = form});
  bytes_.append(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

}  // namespace data
