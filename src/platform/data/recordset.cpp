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

double numberOf(const QVariant& value) {
  if (!value.isValid()) values::raise(values::kInvalidNull);
  if (isDate(value)) values::raise(values::kTypeMismatch);
  return isNumber(value) ? value.toDouble() : values::toNumber(value.toString());
}

QDateTime dateOf(const QVariant& value) {
  if (!value.isValid()) return {};
  if (isDate(value)) return value.toDateTime();
  if (isNumber(value)) values::raise(values::kTypeMismatch);
  return values::toDate(value.toString());
}

}  // namespace

Recordset::Recordset(QStringList columns, std::vector<std::vector<QVariant>> rows)
    : open_(true), columns_(std::move(columns)), rows_(rows.size()) {
  values_.reserve(columns_.size() * static_cast<qsizetype>(rows_));
  for (auto& row : rows)
    for (auto& value : row) values_.append(std::move(value));
}

Recordset::Recordset(QStringList columns, QList<QVariant> values)
    : open_(true), columns_(std::move(columns)), values_(std::move(values)) {
  if (!columns_.isEmpty()) rows_ = static_cast<std::size_t>(values_.size() / columns_.size());
}

void Recordset::close() { *this = {}; }

bool Recordset::eof() const {
  if (!open_) values::raise(values::kClosedObject);
  return row_ >= rows_;
}

void Recordset::moveNext() {
  if (eof()) throw values::RuntimeError(kNoCurrentRow, u"Não há registro atual."_s);
  ++row_;
}

void Recordset::moveTo(qsizetype row) {
  if (!open_) values::raise(values::kClosedObject);
  row_ = static_cast<std::size_t>(row);
}

qsizetype Recordset::count() const {
  if (!open_) values::raise(values::kClosedObject);
  return static_cast<qsizetype>(rows_);
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
      return values_[static_cast<qsizetype>(row_ * width + column)];
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
  if (found.typeId() == QMetaType::QString) return *static_cast<const QString*>(found.constData());
  if (found.typeId() == QMetaType::LongLong) return QString::number(found.toLongLong());
  if (isNumber(found)) return values::toText(found.toDouble());
  if (isDate(found)) return values::toText(found.toDateTime());
  return found.toString();
}

bool Recordset::isNull(QStringView field) const { return !value(field).isValid(); }

double Recordset::number(QStringView field) const { return numberOf(value(field)); }

QDateTime Recordset::date(QStringView field) const { return dateOf(value(field)); }

QString Recordset::format(QStringView field, QStringView mask) const {
  const QVariant& found = value(field);
  return found.isValid() ? values::format(numberOf(found), mask) : QString();
}

QString Recordset::formatDate(QStringView field, QStringView form) const {
  const QVariant& found = value(field);
  return found.isValid() ? values::formatDate(dateOf(found), form) : QString();
}

}  // namespace data
