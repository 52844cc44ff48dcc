#include "platform/data/recordset.h"

#include <QSet>

#include "platform/values/dates.h"
#include "platform/values/numbers.h"
#include "platform/values/runtime_error.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

constexpr int kUnknownField = 3265;
constexpr int kNoCurrentRow = 3021;

bool isDate(const QVariant& value) { return value.typeId() == QMetaType::QDateTime; }

bool isNumber(const QVariant& value) {
  return value.typeId() == QMetaType::Double || value.typeId() == QMetaType::LongLong;
}

}  // namespace

Recordset::Recordset(QStringList columns, std::vector<std::vector<QVariant>> rows)
    : open_(true), columns_(std::move(columns)), rows_(std::move(rows)) {}

void Recordset::close() { *this = {}; }

bool Recordset::eof() const {
  if (!open_) values::raise(values::kClosedObject);
  return row_ >= rows_.size();
}

void Recordset::moveNext() {
  if (eof()) throw values::RuntimeError(kNoCurrentRow, u"Não há registro atual."_s);
  ++row_;
}

qsizetype Recordset::count() const {
  if (!open_) values::raise(values::kClosedObject);
  return static_cast<qsizetype>(rows_.size());
}

const QStringList& Recordset::columns() const {
  if (!open_) values::raise(values::kClosedObject);
  return columns_;
}

const QVariant& Recordset::value(QStringView field) const {
  if (eof()) throw values::RuntimeError(kNoCurrentRow, u"Não há registro atual."_s);
  const auto width = static_cast<std::size_t>(columns_.size());
  // From the second row on the search goes on from the last field found, if that finds the same one.
  const std::size_t start = row_ > 0 && namesDiffer() ? lastColumn_ : 0;
  for (std::size_t tried = 0; tried < width; ++tried) {
    const std::size_t column = (start + tried) % width;
    if (field.compare(columns_[static_cast<qsizetype>(column)], Qt::CaseInsensitive) == 0) {
      lastColumn_ = column;
      return rows_[row_][column];
    }
  }
  throw values::RuntimeError(kUnknownField, u"O campo \"%1\" não está no resultado."_s.arg(field));
}

bool Recordset::namesDiffer() const {
  if (!namesDiffer_) {
    QSet<QString> names;
    for (const QString& column : columns_) names.insert(column.toUpper());
    namesDiffer_ = names.size() == columns_.size();
  }
  return *namesDiffer_;
}

QString Recordset::text(QStringView field) const {
  const QVariant& found = value(field);
  if (!found.isValid()) return {};
  if (isNumber(found)) return values::toText(found.toDouble());
  if (isDate(found)) return values::toText(found.toDateTime());
  return found.toString();
}

bool Recordset::isNull(QStringView field) const { return !value(field).isValid(); }

double Recordset::number(QStringView field) const {
  const QVariant& found = value(field);
  if (!found.isValid()) values::raise(values::kInvalidNull);
  if (isDate(found)) values::raise(values::kTypeMismatch);
  return isNumber(found) ? found.toDouble() : values::toNumber(found.toString());
}

QDateTime Recordset::date(QStringView field) const {
  const QVariant& found = value(field);
  if (!found.isValid()) return {};
  if (isDate(found)) return found.toDateTime();
  if (isNumber(found)) values::raise(values::kTypeMismatch);
  return values::toDate(found.toString());
}

QString Recordset::format(QStringView field, QStringView mask) const {
  return isNull(field) ? QString() : values::format(number(field), mask);
}

QString Recordset::formatDate(QStringView field, QStringView form) const {
  const QVariant& found = value(field);
  if (!found.isValid()) return {};
  return values::formatDate(isDate(found) ? found.toDateTime() : date(field), form);
}

}  // namespace data
