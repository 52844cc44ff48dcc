#include "platform/forms/flex_grid.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>

#include "platform/forms/controls.h"

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

  connect(&grid_, &GridModel::laidOut, this, &FlexGrid::takeLayout);
  connect(&grid_, &GridModel::currentMoved, this, &FlexGrid::showCurrent);
  connect(&grid_, &GridModel::topRowMoved, this, &FlexGrid::showTopRow);
  connect(&grid_, &GridModel::rowsInserted, this, [this] { showCurrent(grid_.row(), grid_.col()); });
  connect(verticalScrollBar(), &QScrollBar::valueChanged, this,
          [this](int value) { grid_.setTopRow(value + 1); });
  connect(horizontalHeader(), &QHeaderView::sectionPressed, this, &FlexGrid::titlePressed);
  connect(horizontalHeader(), &QHeaderView::sectionDoubleClicked, this, &FlexGrid::rowDoubleClicked);
  connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this] {
    if (!fitting_ && isVisible()) dragged_ = true;
  });
  takeLayout();
}

void FlexGrid::takeLayout() {
  const QScopedValueRollback fitting(fitting_, true);
  const QFontMetrics metrics(font());
  const double scale = std::max(1.0, metrics.height() / kPlainTextHeight);
  verticalHeader()->setDefaultSectionSize(metrics.height() + kCellMargin);
  for (int column = 0; column < grid_.cols(); ++column) {
    const int width = pixels(grid_.width(column));
    setColumnHidden(column, width == 0);
    if (width == 0) continue;
    const int least = std::max(metrics.horizontalAdvance(leastTexts_.value(column)),
                               metrics.horizontalAdvance(grid_.text(0, column)));
    setColumnWidth(column, std::max(static_cast<int>(width * scale), least + 2 * kCellMargin));
  }
  dragged_ = false;
  giveSpareWidth();
}

void FlexGrid::setLeastText(int column, const QString& sample) {
  leastTexts_.insert(column, sample);
  takeLayout();
}

void FlexGrid::giveSpareWidth() {
  // The widest column takes what the others leave, so that no empty ground stands beside the last one.
  if (dragged_ || grid_.cols() == 0) return;
  const QScopedValueRollback fitting(fitting_, true);
  const double scale = std::max(1.0, QFontMetrics(font()).height() / kPlainTextHeight);
  int widest = 0;
  int others = 0;
  for (int column = 0; column < grid_.cols(); ++column) {
    if (grid_.width(column) > grid_.width(widest)) widest = column;
  }
  for (int column = 0; column < grid_.cols(); ++column) {
    if (column != widest && !isColumnHidden(column)) others += columnWidth(column);
  }
  const int own = static_cast<int>(pixels(grid_.width(widest)) * scale);
  if (own > 0) setColumnWidth(widest, std::max(own, viewport()->width() - others));
}

void FlexGrid::showCurrent(int row, int column) {
  if (row < 1) {
    selectionModel()->clear();
    return;
  }
  selectionModel()->setCurrentIndex(grid_.index(row - 1, std::max(0, column)),
                                    QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void FlexGrid::showTopRow(int row) {
  if (verticalScrollBar()->value() == row - 1) return;
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
  if (event->matches(QKeySequence::Copy)) {
    copyCurrentRow();
    return;
  }
  const int page =
      std::max(1, viewport()->height() / std::max(1, verticalHeader()->defaultSectionSize()) - 1);
  const int last = grid_.rows() - 1;
  int target = grid_.row();
  switch (event->key()) {
    case Qt::Key_Up:
      --target;
      break;
    case Qt::Key_Down:
      ++target;
      break;
    case Qt::Key_PageUp:
      target -= page;
      break;
    case Qt::Key_PageDown:
      target += page;
      break;
    case Qt::Key_Home:
      target = 1;
      break;
    case Qt::Key_End:
      target = last;
      break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (event->isAutoRepeat() || grid_.row() < 1) return;
      chooseVisibleColumn();
      Q_EMIT rowDoubleClicked();
      return;
    default:
      event->ignore();
      return;
  }
  if (last < 1) return;
  chooseVisibleColumn();
  grid_.setRow(std::clamp(target, 1, last));
  scrollTo(grid_.index(grid_.row() - 1, currentIndex().column()));
}

void FlexGrid::chooseVisibleColumn() {
  int column = grid_.col();
  while (column < grid_.cols() - 1 && isColumnHidden(column)) ++column;
  grid_.setCol(column);
}

void FlexGrid::copyCurrentRow() const {
  if (grid_.row() < 1) return;
  QStringList cells;
  for (int column = 0; column < grid_.cols(); ++column) {
    if (grid_.width(column) > 0) cells << grid_.text(grid_.row(), column);
  }
  QApplication::clipboard()->setText(cells.join(u'\t'));
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
