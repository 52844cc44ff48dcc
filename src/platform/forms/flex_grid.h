#pragma once

#include <QHash>
#include <QTableView>

#include "platform/forms/grid_model.h"

namespace forms {

/// Shows a GridModel of its own: whole rows selected (several with Shift and the arrows or Ctrl+A, for
/// copying), the title row fixed, light bands, fixed row height, columns that can be dragged and stay so in
/// later layouts, Ctrl+C copies the selected rows, visible columns with their titles, for a spreadsheet; all
/// rows where none is selected. A click on the title makes row 0 current, a click on empty ground changes
/// nothing. Promoted in Designer files (header platform/forms/flex_grid.h).
class FlexGrid : public QTableView {
  Q_OBJECT

 public:
  explicit FlexGrid(QWidget* parent = nullptr);

  [[nodiscard]] GridModel& grid() { return grid_; }
  [[nodiscard]] const GridModel& grid() const { return grid_; }

  /// A column is wide enough for a text, whatever its layout says; holds for later layouts too.
  void setLeastText(int column, const QString& sample);

  /// Columns that share what the others leave of the width, in proportion to their own, and that give way,
  /// down to half of it, where there is less; without them the widest one takes what is left.
  void setSpareColumns(const QList<int>& columns);

  /// First visible data row; shows one there as far as the rows below it fill the grid.
  [[nodiscard]] int topRow() const;
  void setTopRow(int row);

  /// The texts of the visible columns: the titles, then the data rows.
  [[nodiscard]] QList<QStringList> visibleTexts() const;
  void copyRows() const;

  /// Widths that the user drags are kept for this form (measures.h), and those kept are taken.
  void rememberWidths(const QString& form);

 Q_SIGNALS:
  /// A user's click on a row or on the title; the current row is set before.
  void rowClicked();
  /// A double click on a row or the title, or Enter on the current row.
  void rowDoubleClicked();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void takeLayout();
  void giveSpareWidth();
  void showCurrent(int row, int column);
  void selectRows(int from, int to);
  void noteDrag(int column, int width);
  /// How much larger than the plain text size the text is.
  [[nodiscard]] double textScale() const;
  [[nodiscard]] int leastWidth(int column) const;
  [[nodiscard]] int laidOutWidth(int column) const;
  /// As a click does: nobody can choose a cell of a hidden column.
  void chooseVisibleColumn();
  void titlePressed(int column);

  /// Moves the current row to where the click is; false on empty ground.
  [[nodiscard]] bool takeClick(const QMouseEvent* event);

  GridModel grid_;
  QHash<int, QString> leastTexts_;
  QList<int> spareColumns_;
  QHash<int, int> dragged_;  ///< widths that the user has set, at the plain text size
  QString measures_;         ///< under which the widths are kept; empty: nowhere
  int anchor_ = 1;           ///< where a selection of several rows began
  bool fitting_ = false;
};

}  // namespace forms
