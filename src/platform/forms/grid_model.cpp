#include "platform/forms/grid_model.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

#include "platform/forms/controls.h"
#include "platform/forms/tips.h"
#include "platform/values/numbers.h"

namespace forms {

namespace {

/// What a sort compares: blanks, then numbers by value, then texts.
struct SortKey {
  int kind = 0;
  double number = 0;
  QString text;

  explicit SortKey(const QString& cell) {
    const QString trimmed = cell.trimmed();
    if (trimmed.isEmpty()) return;
    if (values::isNumeric(trimmed)) {
      kind = 1;
      number = values::toNumber(trimmed);
    } else {
      kind = 2;
      text = cell.toCaseFolded();
    }
  }
  bool operator<(const SortKey& other) const {
    if (kind != other.kind) return kind < other.kind;
    return kind == 1 ? number < other.number : text < other.text;
  }
};

}  // namespace

GridModel::GridModel(const QString& name, QObject* parent) : QAbstractTableModel(parent) {
  setObjectName(name);
  rows_.emplace_back();
}

void GridModel::layOut(std::span<const GridColumn> columns) {
  beginResetModel();
  columns_.assign(columns.begin(), columns.end());
  rows_.clear();
  Row titles{{}, std::vector<Cell>(columns_.size())};
  for (std::size_t i = 0; i < columns_.size(); ++i)
    titles.cells[i].text = QString::fromUtf16(columns_[i].title);
  rows_.push_back(std::move(titles));
  row_ = 0;
  col_ = 0;
  topRow_ = 1;
  endResetModel();
  Q_EMIT laidOut();
  Q_EMIT currentMoved(row_, col_);
}

void GridModel::chooseSingleRow() { setRow(rows() == 2 ? 1 : 0); }

int GridModel::width(int column) const {
  return column >= 0 && column < cols() ? columns_[static_cast<std::size_t>(column)].width : 0;
}

std::vector<GridModel::Cell>& GridModel::cellsOf(Row& row) const {
  if (row.cells.empty()) {
    row.cells.resize(columns_.size());
    std::size_t column = 0;
    for (const auto& field : QStringView(row.whole).tokenize(u'\t')) {
      if (column == row.cells.size()) break;
      row.cells[column++].text = field.toString();
    }
    row.whole = QString();
  }
  return row.cells;
}

const GridModel::Cell* GridModel::cell(int row, int column) const {
  if (row < 0 || row >= rows() || column < 0 || column >= cols()) return nullptr;
  return &cellsOf(rows_[static_cast<std::size_t>(row)])[static_cast<std::size_t>(column)];
}

GridModel::Cell* GridModel::cell(int row, int column) {
  return const_cast<Cell*>(std::as_const(*this).cell(row, column));
}

QString GridModel::text(int row, int column) const {
  const Cell* known = cell(row, column);
  return known == nullptr ? QString() : known->text;
}

void GridModel::cellChanged(int row, int column) {
  if (row == 0) {
    Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
  } else {
    Q_EMIT dataChanged(index(row - 1, column), index(row - 1, column));
  }
}

void GridModel::setText(int row, int column, const QString& text) {
  Cell* known = cell(row, column);
  if (known == nullptr) return;
  known->text = text;
  cellChanged(row, column);
}

void GridModel::appendRows(std::vector<Row> added) {
  if (added.empty()) return;
  const int at = rows() - 1;
  beginInsertRows({}, at, at + static_cast<int>(added.size()) - 1);
  rows_.insert(rows_.end(), std::make_move_iterator(added.begin()), std::make_move_iterator(added.end()));
  endInsertRows();
}

void GridModel::addItem(const QString& tabSeparated) { appendRows({{tabSeparated, {}}}); }

void GridModel::addRow(const GridRow& row) { addItem(row.tabSeparated()); }

void GridModel::addRows(const std::vector<GridRow>& rows) {
  std::vector<Row> added;
  added.reserve(rows.size());
  for (const GridRow& row : rows) added.push_back({row.tabSeparated(), {}});
  appendRows(std::move(added));
}

GridRow GridModel::rowTexts(int row) const {
  GridRow texts;
  for (int column = 0; column < cols(); ++column) texts.set(column, text(row, column));
  return texts;
}

void GridModel::removeItem(int row) {
  if (row < 1 || row >= rows()) return;
  beginRemoveRows({}, row - 1, row - 1);
  rows_.erase(rows_.begin() + row);
  endRemoveRows();
  row_ = std::min(row_, rows() - 1);
  topRow_ = std::clamp(topRow_, 1, std::max(1, rows() - 1));
  Q_EMIT currentMoved(row_, col_);
}

void GridModel::sortAscending(int column) {
  if (column < 0 || column >= cols() || rows() < 3) return;
  std::vector<SortKey> keys;
  keys.reserve(rows_.size());
  for (Row& row : rows_) keys.emplace_back(cellsOf(row)[static_cast<std::size_t>(column)].text);
  std::vector<std::size_t> order(rows_.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::stable_sort(order.begin() + 1, order.end(),
                   [&keys](std::size_t a, std::size_t b) { return keys[a] < keys[b]; });

  Q_EMIT layoutAboutToBeChanged();
  std::vector<Row> sorted;
  sorted.reserve(rows_.size());
  for (const std::size_t from : order) sorted.push_back(std::move(rows_[from]));
  rows_ = std::move(sorted);
  Q_EMIT layoutChanged();
  Q_EMIT currentMoved(row_, col_);
}

void GridModel::setRow(int row) {
  if (row < 0 || row >= rows()) return;
  row_ = row;
  Q_EMIT currentMoved(row_, col_);
}

void GridModel::setCol(int column) {
  if (column < 0 || column >= cols()) return;
  col_ = column;
  Q_EMIT currentMoved(row_, col_);
}

void GridModel::setTopRow(int row) {
  if (row < 1 || row >= rows() || row == topRow_) return;
  topRow_ = row;
  Q_EMIT topRowMoved(row);
}

void GridModel::setCellBackColor(int row, int column, QColor color) {
  Cell* known = cell(row, column);
  if (known == nullptr) return;
  known->back = color;
  cellChanged(row, column);
}

void GridModel::setCellAlignment(int row, int column, Qt::Alignment alignment) {
  Cell* known = cell(row, column);
  if (known == nullptr) return;
  known->align = alignment;
  known->aligned = true;
  cellChanged(row, column);
}

QColor GridModel::cellBackColor(int row, int column) const {
  const Cell* known = cell(row, column);
  return known == nullptr ? QColor() : known->back;
}

Qt::Alignment GridModel::cellAlignment(int row, int column) const {
  const Cell* known = cell(row, column);
  if (known == nullptr) return {};
  return known->aligned ? known->align : columns_[static_cast<std::size_t>(column)].align;
}

int GridModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows() - 1; }

int GridModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : cols(); }

QVariant GridModel::data(const QModelIndex& index, int role) const {
  const Cell* known = cell(index.row() + 1, index.column());
  if (!index.isValid() || known == nullptr) return {};
  switch (role) {
    case Qt::DisplayRole:
      return known->text;
    case Qt::ToolTipRole:
      return asTip(known->text);
    case Qt::TextAlignmentRole:
      return QVariant::fromValue(cellAlignment(index.row() + 1, index.column()));
    case Qt::BackgroundRole:
      return known->back.isValid() ? QVariant(known->back) : QVariant();
    case Qt::ForegroundRole:
      return known->back.isValid() ? QVariant(QColor(isDark(known->back) ? Qt::white : Qt::black))
                                   : QVariant();
    default:
      return {};
  }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Vertical) return {};
  if (role == Qt::DisplayRole) return text(0, section);
  if (role == Qt::ToolTipRole) return asTip(text(0, section));
  if (role == Qt::TextAlignmentRole) return QVariant::fromValue(cellAlignment(0, section));
  return {};
}

GridRow::GridRow(std::initializer_list<std::pair<int, QString>> cells) {
  for (const auto& [column, text] : cells) set(column, text);
}

void GridRow::set(int column, const QString& text) {
  while (texts_.size() <= column) texts_.append(QString());
  texts_[column] = text;
  texts_[column].replace(u'\t', u' ');
}

QString GridRow::tabSeparated() const { return texts_.join(u'\t') + u'\t'; }

RowBuilder& RowBuilder::operator<<(const QString& field) {
  const qsizetype start = text_.size();
  text_ += field;
  std::replace(text_.begin() + start, text_.end(), QChar(u'\t'), QChar(u' '));
  text_ += u'\t';
  return *this;
}

}  // namespace forms
