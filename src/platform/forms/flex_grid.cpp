#include "platform/forms/flex_grid.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "platform/forms/controls.h"
#include "platform/forms/measures.h"
#include "platform/values/spreadsheet.h"

namespace forms {

namespace {

/// Widths of layouts are meant for the plain text size; they grow with the text.
constexpr double kPlainTextHeight = 15.0;
constexpr int kCellMargin = 6;

}  // namespace

FlexGrid::FlexGrid(QWidget* parent) : QTableView(parent) {
  setModel(&grid_);
  setSelectionBehavior(SelectRows);
  setSelectionMode(SingleSelection);
  setEditTriggers(NoEditTriggers);
  setAlternatingRowColors(true);
  setWordWrap(false);
  setTabKeyNavigation(false);
  setAutoScroll(false);
  setHorizontalScrollMode(ScrollPerPixel);
  setVerticalScrollMode(ScrollPerItem);
  setGridStyle(Qt::SolidLine);
  setCornerButtonEnabled(false);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setSectionsClickable(true);
  horizontalHeader()->setMinimumSectionSize(0);

  connect(&grid_, &GridModel::modelReset, this, &FlexGrid::takeLayout);
  connect(&grid_, &GridModel::currentMoved, this, &FlexGrid::showCurrent);
  connect(&grid_, &GridModel::rowsInserted, this, [this] { showCurrent(grid_.row(), grid_.col()); });
  connect(horizontalHeader(), &QHeaderView::sectionPressed, this, &FlexGrid::titlePressed);
  connect(horizontalHeader(), &QHeaderView::sectionDoubleClicked, this, &FlexGrid::rowDoubleClicked);
  connect(horizontalHeader(), &QHeaderView::sectionResized, this,
          [this](int column, int /*before*/, int width) { noteDrag(column, width); });
  takeLayout();
}

double FlexGrid::textScale() const { return std::max(1.0, QFontMetrics(font()).height() / kPlainTextHeight); }

int FlexGrid::leastWidth(int column) const {
  const QFontMetrics metrics(font());
  return 2 * kCellMargin + std::max(metrics.horizontalAdvance(leastTexts_.value(column)),
                                    metrics.horizontalAdvance(grid_.text(0, column)));
}

int FlexGrid::laidOutWidth(int column) const {
  if (const int dragged = dragged_.value(column); dragged > 0) return qRound(dragged * textScale());
  return std::max(static_cast<int>(pixels(grid_.width(column)) * textScale()), leastWidth(column));
}

void FlexGrid::takeLayout() {
  const QScopedValueRollback fitting(fitting_, true);
  verticalHeader()->setDefaultSectionSize(QFontMetrics(font()).height() + kCellMargin);
  for (int column = 0; column < grid_.cols(); ++column) {
    const int kept = measures_.isEmpty() ? 0 : measures::kept(measures_ + QString::number(column)).toInt();
    if (kept > 0) dragged_.insert(column, kept);
    const bool hidden = pixels(grid_.width(column)) == 0;
    setColumnHidden(column, hidden);
    if (!hidden) setColumnWidth(column, laidOutWidth(column));
  }
  giveSpareWidth();
}

void FlexGrid::setLeastText(int column, const QString& sample) {
  leastTexts_.insert(column, sample);
  takeLayout();
}

void FlexGrid::setSpareColumns(const QList<int>& columns) {
  spareColumns_ = columns;
  takeLayout();
}

void FlexGrid::rememberWidths(const QString& form) {
  measures_ = form + u'/' + objectName() + u'/';
  takeLayout();
}

void FlexGrid::noteDrag(int column, int width) {
  if (fitting_ || !isVisible() || width == 0) return;
  dragged_.insert(column, std::max(1, qRound(width / textScale())));
  if (!measures_.isEmpty()) measures::keep(measures_ + QString::number(column), dragged_.value(column));
}

void FlexGrid::giveSpareWidth() {
  // No empty ground stands beside the last column.
  if (grid_.cols() == 0) return;
  const QScopedValueRollback fitting(fitting_, true);
  QList<int> takers = spareColumns_;
  if (takers.isEmpty()) {
    int widest = 0;
    for (int column = 0; column < grid_.cols(); ++column)
      if (grid_.width(column) > grid_.width(widest)) widest = column;
    takers << widest;
  }
  takers.removeIf([this](int column) { return grid_.width(column) == 0 || dragged_.contains(column); });
  int spare = viewport()->width();
  int shares = 0;
  for (int column = 0; column < grid_.cols(); ++column) {
    if (isColumnHidden(column)) continue;
    spare -= takers.contains(column) ? laidOutWidth(column) : columnWidth(column);
    if (takers.contains(column)) shares += grid_.width(column);
  }
  // Columns that were named give way too, down to half of their width, so that little is out of sight.
  if (spareColumns_.isEmpty()) spare = std::max(0, spare);
  for (const int column : std::as_const(takers)) {
    const int share = shares == 0 ? 0 : spare * grid_.width(column) / shares;
    const int least = std::max(laidOutWidth(column) / 2, leastWidth(column));
    const int width = std::max(laidOutWidth(column) + share, least);
    setColumnWidth(column, width);
    // What this one can't give the next ones do.
    spare -= width - laidOutWidth(column);
    shares -= grid_.width(column);
  }
}

void FlexGrid::showCurrent(int row, int column) {
  if (row < 1) return selectionModel()->clear();
  selectionModel()->setCurrentIndex(grid_.index(row - 1, std::max(0, column)),
                                    QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

int FlexGrid::topRow() const { return verticalScrollBar()->value() + 1; }

void FlexGrid::setTopRow(int row) {
  executeDelayedItemsLayout();
  verticalScrollBar()->setValue(row - 1);
}

void FlexGrid::titlePressed(int column) {
  grid_.setRow(0);
  grid_.setCol(column);
  Q_EMIT rowClicked();
}

bool FlexGrid::takeClick(const QMouseEvent* event) {
  const QModelIndex at = indexAt(event->position().toPoint());
  if (event->button() != Qt::LeftButton || !at.isValid()) return false;
  grid_.setRow(at.row() + 1);
  grid_.setCol(at.column());
  return true;
}

void FlexGrid::mousePressEvent(QMouseEvent* event) {
  if (takeClick(event)) Q_EMIT rowClicked();
}

void FlexGrid::mouseDoubleClickEvent(QMouseEvent* event) {
  if (takeClick(event)) Q_EMIT rowDoubleClicked();
}

void FlexGrid::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) return copyRows();
  if (event->matches(QKeySequence::SelectAll)) return selectAll();
  const int page =
      std::max(1, viewport()->height() / std::max(1, verticalHeader()->defaultSectionSize()) - 1);
  const int row = grid_.row();
  const int last = grid_.rows() - 1;
  const QHash<int, int> targets{
      {Qt::Key_Up, row - 1},          {Qt::Key_Down, row + 1}, {Qt::Key_PageUp, row - page},
      {Qt::Key_PageDown, row + page}, {Qt::Key_Home, 1},       {Qt::Key_End, last}};
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    if (event->isAutoRepeat() || row < 1) return;
    chooseVisibleColumn();
    Q_EMIT rowDoubleClicked();
    return;
  }
  const auto target = targets.constFind(event->key());
  if (target == targets.cend() || event->modifiers().testFlag(Qt::AltModifier)) return event->ignore();
  if (last < 1) return;
  chooseVisibleColumn();
  const bool extends = event->modifiers().testFlag(Qt::ShiftModifier) && row > 0;
  if (!extends || selectionModel()->selectedRows().size() < 2) anchor_ = std::max(1, row);
  grid_.setRow(std::clamp(*target, 1, last));
  if (extends) selectRows(anchor_, grid_.row());
  scrollTo(grid_.index(grid_.row() - 1, currentIndex().column()));
}

void FlexGrid::selectRows(int from, int to) {
  const auto [first, last] = std::minmax(from, to);
  selectionModel()->select(QItemSelection(grid_.index(first - 1, 0), grid_.index(last - 1, 0)),
                           QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

void FlexGrid::chooseVisibleColumn() {
  int column = grid_.col();
  while (column < grid_.cols() - 1 && isColumnHidden(column)) ++column;
  grid_.setCol(column);
}

QList<QStringList> FlexGrid::visibleTexts() const {
  QList<QStringList> texts;
  for (int row = 0; row < grid_.rows(); ++row) {
    texts.emplace_back();
    for (int column = 0; column < grid_.cols(); ++column)
      if (!isColumnHidden(column)) texts.back() << grid_.text(row, column);
  }
  return texts;
}

void FlexGrid::copyRows() const {
  QList<QStringList> texts = visibleTexts();
  if (texts.size() < 2) return;
  for (int row = grid_.rows() - 1; row > 0 && selectionModel()->hasSelection(); --row)
    if (!selectionModel()->isRowSelected(row - 1)) texts.removeAt(row);
  QApplication::clipboard()->setText(values::tabSeparated(texts));
}

void FlexGrid::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::FontChange) takeLayout();
}

void FlexGrid::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  giveSpareWidth();
}

}  // namespace forms
