#include "hands/hands.h"

#include <QHeaderView>

namespace hands {

Place placeOf(forms::FlexGrid& grid, int row, int column) {
  constexpr QPoint kInside(6, 6);
  while (grid.isColumnHidden(column) && column + 1 < grid.grid().cols()) ++column;
  if (row == 0) {
    QHeaderView& titles = *grid.horizontalHeader();
    return {titles.viewport(), QPoint(titles.sectionViewportPosition(column), 0) + kInside * 2};
  }
  const QModelIndex cell = grid.grid().index(row - 1, column);
  grid.scrollTo(cell);
  return {grid.viewport(), grid.visualRect(cell).topLeft() + kInside};
}

}  // namespace hands
