#pragma once

#include <QHash>
#include <QTableView>

#include "platform/forms/grid_model.h"

namespace forms {

/// Shows a GridModel of its own: whole rows selected, the title row fixed, light bands, fixed row height,
/// columns that can be dragged, Ctrl+C copies the current row. A click on the title makes row 0 current, a
/// click on empty ground changes nothing. Promoted in Designer files (header platform/forms/flex_grid.h).
class FlexGrid : public QTableView {
  Q_OBJECT

 public:
  explicit FlexGrid(QWidget* parent = nullptr);

  [[nodiscard]] GridModel& grid() { return grid_; }
  [[nodiscard]] const GridModel& grid() const { return grid_; }
  GridModel* operator->() { return &grid_; }

  /// A column is wide enough for a text, whatever its layout says; holds for later layouts too.
  void setLeastText(int column, const QString& sample);

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
  void showTopRow(int row);
  void copyCurrentRow() const;
  /// As a click does: nobody can choose a cell of a hidden column.
  void chooseVisibleColumn();
  void titlePressed(int column);

  /// Moves the current row to where the click is; false on empty ground.
  [[nodiscard]] bool takeClick(const QMouseEvent* event);

  GridModel grid_;
  QHash<int, QString> leastTexts_;
  bool dragged_ = false;  ///< the user has set column widths; they stay
  bool fitting_ = false;
};

}  // namespace forms
