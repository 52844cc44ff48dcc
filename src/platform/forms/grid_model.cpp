#include "platform/forms/grid_model.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "platform/forms/controls.h"
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

GridRow::GridRow(std::initializer_list<std::pair<int, QString>> cells) {
  texts_.reserve(static_cast<qsizetype>(cells.size()));
  for (const auto& [column, text] : cells) set(column, text);
}

void GridRow::set(int column, const QString& text) {
  if (texts_.size() <= column) texts_.resize(column + 1);
  texts_[column] = text;
  if (text.contains(u'\t')) texts_[column].replace(u'\t', u' ');
}

QString GridRow::text(int column) const {
  if (!lot_) return texts_.value(column);
  QString text = (*lot_)(at_, column);
  return text.contains(u'\t') ? text.replace(u'\t', u' ') : text;
}

GridModel::GridModel(const QString& name, QObject* parent) : QAbstractTableModel(parent), rows_(1) {
  setObjectName(name);
}

void GridModel::layOut(std::span<const GridColumn> columns) {
  const auto sameColumn = [](const GridColumn& one, const GridColumn& other) {
    return one.title == other.title && one.width == other.width && one.align == other.align;
  };
  row_ = 0;
  col_ = 0;
  topRow_ = 1;
  // A view takes another layout anew, measures and all; of the same one its rows go.
  if (!std::ranges::equal(columns, columns_, sameColumn)) {
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

int GridModel::width(int column) const { return column >= 0 && column < cols() ? columns_[column].width : 0; }

bool GridModel::has(int row, int column) const {
  return row >= 0 && row < rows() && column >= 0 && column < cols();
}

QString GridModel::text(int row, int column) const {
  return has(row, column) ? rows_[row].text(column) : QString();
}

void GridModel::cellChanged(int row, int column) {
  if (row == 0) {
    Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
  } else {
    Q_EMIT dataChanged(index(row - 1, column), index(row - 1, column));
  }
}

void GridModel::setText(int row, int column, const QString& text) {
  if (!has(row, column)) return;
  if (rows_[row].isOfLot()) rows_[row] = rowTexts(row);
  rows_[row].set(column, text);
  cellChanged(row, column);
}

void GridModel::addItem(const QString& tabSeparated) {
  GridRow row;
  int column = 0;
  for (const QString& field : tabSeparated.split(u'\t')) row.set(column++, field);
  addRow(std::move(row));
}

void GridModel::addRow(GridRow row) { addRows({std::move(row)}); }

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
  topRow_ = std::clamp(topRow_, 1, std::max(1, rows() - 1));
  Q_EMIT currentMoved(row_, col_);
}

void GridModel::swapRows(int one, int other) {
  if (std::min(one, other) < 1 || std::max(one, other) >= rows()) return;
  rows_.swapItemsAt(one, other);
  for (const int row : {one, other}) Q_EMIT dataChanged(index(row - 1, 0), index(row - 1, cols() - 1));
}

void GridModel::sortAscending(int column) {
  if (column < 0 || column >= cols() || rows() < 3) return;
  std::vector<SortKey> keys;
  for (const GridRow& row : std::as_const(rows_)) keys.emplace_back(row.text(column));
  std::vector<std::size_t> order(keys.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::stable_sort(order.begin() + 1, order.end(),
                   [&keys](std::size_t a, std::size_t b) { return keys[a] < keys[b]; });

  Q_EMIT layoutAboutToBeChanged();
  QList<GridRow> sorted;
  for (const std::size_t from : order) sorted.append(std::move(rows_[static_cast<qsizetype>(from)]));
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

GridLook GridModel::look(int row, int column) const {
  const auto look = looks_.constFind(column);
  return look != looks_.cend() && row > 0 && has(row, column) ? (*look)(row) : GridLook();
}

QColor GridModel::cellBackColor(int row, int column) const { return look(row, column).back; }

Qt::Alignment GridModel::cellAlignment(int row, int column) const {
  if (!has(row, column)) return {};
  return look(row, column).align.value_or(columns_[column].align);
}

int GridModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows() - 1; }

int GridModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : cols(); }

QVariant GridModel::data(const QModelIndex& index, int role) const {
  const int row = index.row() + 1;
  const int column = index.column();
  switch (role) {
    case Qt::DisplayRole:
      return text(row, column);
    case Qt::ToolTipRole:
      return asTip(text(row, column));
    case Qt::TextAlignmentRole:
      // A row is as high as one line: at its top a text would stand higher than those beside it.
      return QVariant::fromValue((cellAlignment(row, column) & Qt::AlignHorizontal_Mask) | Qt::AlignVCenter);
    case Qt::BackgroundRole:
    case Qt::ForegroundRole: {
      const QColor back = cellBackColor(row, column);
      if (!back.isValid()) return {};
      return role == Qt::BackgroundRole ? back : QColor(isDark(back) ? Qt::white : Qt::black);
    }
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

}  // namespace forms
