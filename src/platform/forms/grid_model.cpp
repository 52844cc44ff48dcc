#include "platform/forms/grid_model.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "platform/forms/controls.h"
#include "platform/values/numbers.h"

namespace forms {

namespace {

/// What a sort compares: blanks, then numbers by value, then texts.
std::tuple<int, double, QString> sortKey(const QString& cell) {
  const QString trimmed = cell.trimmed();
  if (trimmed.isEmpty()) return {};
  if (values::isNumeric(trimmed)) return {1, values::toNumber(trimmed), {}};
  return {2, 0, cell.toCaseFolded()};
}

}  // namespace

GridRow::GridRow(std::initializer_list<std::pair<int, QString>> cells) {
  texts_.reserve(static_cast<qsizetype>(cells.size()));
  for (const auto& [column, text] : cells) set(column, text);
}

void GridRow::set(int column, const QString& text) {
  if (texts_.size() <= column) texts_.resize(column + 1);
  (texts_[column] = text).replace(u'\t', u' ');
}

QString GridRow::text(int column) const {
  return lot_ ? (*lot_)(at_, column).replace(u'\t', u' ') : texts_.value(column);
}

GridModel::GridModel(const QString& name, QObject* parent) : QAbstractTableModel(parent), rows_(1) {
  setObjectName(name);
}

void GridModel::layOut(std::span<const GridColumn> columns) {
  row_ = 0;
  col_ = 0;
  // A view takes another layout anew, measures and all; of the same one its rows go.
  if (!std::ranges::equal(columns, columns_)) {
    beginResetModel();
    columns_ = QList<GridColumn>(columns.begin(), columns.end());
    rows_ = QList<GridRow>(1);
    for (int column = 0; column < cols(); ++column) rows_[0].set(column, columns_[column].title.toString());
    endResetModel();
  } else if (rows() > 1) {
    beginRemoveRows({}, 0, rows() - 2);
    rows_.resize(1);
    endRemoveRows();
  }
  Q_EMIT currentMoved(row_, col_);
}

void GridModel::chooseSingleRow() { setRow(rows() == 2 ? 1 : 0); }

bool GridModel::has(int row, int column) const {
  return row >= 0 && row < rows() && column >= 0 && column < cols();
}

QString GridModel::text(int row, int column) const {
  return has(row, column) ? rows_[row].text(column) : QString();
}

void GridModel::setText(int row, int column, const QString& text) {
  if (!has(row, column)) return;
  GridRow own = rowTexts(row);
  own.set(column, text);
  rows_[row] = std::move(own);
  const QModelIndex cell = index(row - 1, column);
  if (row == 0)
    Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
  else
    Q_EMIT dataChanged(cell, cell);
}

void GridModel::addRows(std::vector<GridRow> added) {
  if (added.empty()) return;
  const int at = rows() - 1;
  beginInsertRows({}, at, at + static_cast<int>(added.size()) - 1);
  rows_.reserve(rows_.size() + std::ssize(added));
  for (GridRow& row : added) rows_.append(std::move(row));
  endInsertRows();
}

void GridModel::addRows(qsizetype count, GridTexts texts) {
  const auto lot = std::make_shared<const GridTexts>(std::move(texts));
  std::vector<GridRow> added;
  added.reserve(static_cast<std::size_t>(count));
  for (qsizetype at = 0; at < count; ++at) added.emplace_back(lot, at);
  addRows(std::move(added));
}

GridRow GridModel::rowTexts(int row) const {
  GridRow texts;
  for (int column = 0; column < cols(); ++column) texts.set(column, text(row, column));
  return texts;
}

void GridModel::removeItem(int row) {
  if (row < 1 || row >= rows()) return;
  beginRemoveRows({}, row - 1, row - 1);
  rows_.removeAt(row);
  endRemoveRows();
  row_ = std::min(row_, rows() - 1);
  Q_EMIT currentMoved(row_, col_);
}

void GridModel::swapRows(int one, int other) {
  if (std::min(one, other) < 1 || std::max(one, other) >= rows()) return;
  rows_.swapItemsAt(one, other);
  for (const int row : {one, other}) Q_EMIT dataChanged(index(row - 1, 0), index(row - 1, cols() - 1));
}

void GridModel::sortAscending(int column) {
  if (column < 0 || column >= cols() || rows() < 3) return;
  std::vector<std::pair<decltype(sortKey({})), GridRow>> sorted;
  for (const GridRow& row : rows_.sliced(1)) sorted.emplace_back(sortKey(row.text(column)), row);
  std::ranges::stable_sort(sorted,
                           [](const auto& one, const auto& other) { return one.first < other.first; });

  Q_EMIT layoutAboutToBeChanged();
  rows_.resize(1);
  for (auto& [key, row] : sorted) rows_.append(std::move(row));
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

int GridModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows() - 1; }

int GridModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : cols(); }

QVariant GridModel::cell(int row, int column, int role) const {
  if (role == Qt::DisplayRole) return text(row, column);
  if (role == Qt::ToolTipRole) return asTip(text(row, column));
  if (role != Qt::TextAlignmentRole && role != Qt::BackgroundRole && role != Qt::ForegroundRole) return {};
  const auto own = looks_.constFind(column);
  const GridLook look = row > 0 && own != looks_.cend() ? (*own)(row) : GridLook();
  if (role == Qt::TextAlignmentRole) {
    // A row is as high as one line: at its top a text would stand higher than those beside it.
    const Qt::Alignment align = look.align.value_or(columns_[column].align);
    return QVariant::fromValue((align & Qt::AlignHorizontal_Mask) | Qt::AlignVCenter);
  }
  if (!look.back.isValid()) return {};
  return role == Qt::BackgroundRole ? look.back : QColor(isDark(look.back) ? Qt::white : Qt::black);
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  return cell(index.row() + 1, index.column(), role);
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  return orientation == Qt::Vertical ? QVariant() : cell(0, section, role);
}

}  // namespace forms
