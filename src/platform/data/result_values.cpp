#include "platform/data/result_values.h"

namespace data {

void ResultValues::addText(QStringView text) {
  addBytes(
      {reinterpret_cast<const char*>(text.utf16()), static_cast<std::size_t>(text.size()) * sizeof(QChar)},
      Form::Utf16);
}

ResultValues::Kind ResultValues::kind(qsizetype at) const {
  const Cell& cell = cells_[static_cast<std::size_t>(at)];
  switch (cell.form) {
    case Form::Null:
      return Kind::Null;
    case Form::Integer:
      return Kind::Integer;
    case Form::Number:
      return Kind::Number;
    case Form::Date:
      return Kind::Date;
    case Form::Utf8:
    case Form::Utf16:
      break;
  }
  return Kind::Text;
}

QString ResultValues::text(qsizetype at) const {
  const Cell& cell = cells_[static_cast<std::size_t>(at)];
  const std::string_view held = bytes(cell);
  const auto length = static_cast<qsizetype>(held.size());
  if (cell.form != Form::Utf16) return QString::fromUtf8(held.data(), length);
  QString text(length / static_cast<qsizetype>(sizeof(QChar)), Qt::Uninitialized);
  held.copy(reinterpret_cast<char*>(text.data()), held.size());
  return text;
}

}  // namespace data
