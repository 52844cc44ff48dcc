#include "platform/data/recordset.h"

#include <vector>

#include "platform/data/one_statement.h"
#include "platform/values/dates.h"
#include "platform/values/numbers.h"
#include "platform/values/runtime_error.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

using Kind = ResultValues::Kind;

double numberOf(const ResultValues& result, qsizetype at) {
  const Kind kind = result.kind(at);
  if (kind == Kind::Null) values::raise(values::kInvalidNull);
  if (kind == Kind::Date) values::raise(values::kTypeMismatch);
  if (kind == Kind::Integer) return static_cast<double>(result.integer(at));
  return kind == Kind::Number ? result.number(at) : values::toNumber(result.text(at));
}

QDateTime dateOf(const ResultValues& result, qsizetype at) {
  const Kind kind = result.kind(at);
  if (kind == Kind::Null) return {};
  if (kind == Kind::Integer || kind == Kind::Number) values::raise(values::kTypeMismatch);
  return kind == Kind::Date ? values::wallClock(result.date(at), result.time(at))
                            : values::toDate(result.text(at));
}

QString textOf(const ResultValues& result, qsizetype at) {
  const Kind kind = result.kind(at);
  if (kind == Kind::Null) return {};
  if (kind == Kind::Integer) return QString::number(result.integer(at));
  if (kind == Kind::Number) return values::toText(result.number(at));
  return kind == Kind::Date ? values::toText(result.date(at), result.time(at)) : result.text(at);
}

}  // namespace

Recordset::Recordset(std::shared_ptr<const Columns> columns, ResultValues values)
    : columns_(std::move(columns)), values_(std::make_shared<const ResultValues>(std::move(values))) {
  const QStringList& names = columns_->names;
  if (!names.isEmpty()) rows_ = static_cast<std::size_t>(values_->size() / names.size());
}

void Recordset::close() { *this = {}; }

bool Recordset::eof() const {
  if (!isOpen()) values::raise(values::kClosedObject);
  return row_ >= rows_;
}

void Recordset::moveNext() {
  if (eof()) values::raise(values::kNoCurrentRecord);
  ++row_;
}

qsizetype Recordset::count() const {
  if (!isOpen()) values::raise(values::kClosedObject);
  return static_cast<qsizetype>(rows_);
}

const QStringList& Recordset::columns() const {
  if (!isOpen()) values::raise(values::kClosedObject);
  return columns_->names;
}

int Recordset::longest(QStringView field) const {
  if (!isOpen() || rows_ > 0) return 0;
  for (qsizetype at = 0; at < columns_->longest.size(); ++at)
    if (isSameWord(field, columns_->names[at])) return columns_->longest[at];
  return 0;
}

qsizetype Recordset::place(QStringView field) const {
  if (eof()) values::raise(values::kNoCurrentRecord);
  const QStringList& names = columns_->names;
  for (qsizetype column = 0; column < names.size(); ++column)
    if (isSameWord(field, names[column])) return static_cast<qsizetype>(row_) * names.size() + column;
  values::raise(values::kUnknownField, field.toString());
}

// The place comes first: a closed recordset has no values.
QString Recordset::text(QStringView field) const {
  const qsizetype at = place(field);
  return textOf(*values_, at);
}

bool Recordset::isNull(QStringView field) const {
  const qsizetype at = place(field);
  return values_->kind(at) == Kind::Null;
}

double Recordset::number(QStringView field) const {
  const qsizetype at = place(field);
  return numberOf(*values_, at);
}

QDateTime Recordset::date(QStringView field) const {
  const qsizetype at = place(field);
  return dateOf(*values_, at);
}

QString Recordset::format(QStringView field, QStringView mask) const {
  const qsizetype at = place(field);
  return values_->kind(at) == Kind::Null ? QString() : values::format(numberOf(*values_, at), mask);
}

QString Recordset::formatDate(QStringView field, QStringView form) const {
  const qsizetype at = place(field);
  return values::formatDate(dateOf(*values_, at), form);
}

std::function<QString(qsizetype row, int field)> Recordset::shown(std::span<const ShownField> fields) const {
  if (eof()) return {};
  const qsizetype width = columns_->names.size();
  struct Shown {
    qsizetype column;
    QStringView form;
  };
  std::vector<Shown> shown;
  for (const auto& [field, form] : fields) {
    const qsizetype column = place(field) % width;
    shown.push_back({column, form});
    if (form.isEmpty()) continue;
    for (qsizetype at = column; at < values_->size(); at += width)
      if (values_->kind(at) != Kind::Date) static_cast<void>(dateOf(*values_, at));
  }
  return [values = values_, shown = std::move(shown), width](qsizetype row, int field) {
    const auto& [column, form] = shown[static_cast<std::size_t>(field)];
    const qsizetype at = row * width + column;
    return form.isEmpty() ? textOf(*values, at) : values::formatDate(dateOf(*values, at), form);
  };
}

}  // namespace data
