#pragma once

#include <QAbstractTableModel>
#include <QColor>
#include <QHash>
#include <QList>
#include <QStringList>
#include <initializer_list>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace forms {

/// One column of a layout: title and width in twips (15 to a pixel); a width of 0 hides the column.
struct GridColumn {
  QStringView title;
  int width;
  Qt::Alignment align = Qt::AlignLeft | Qt::AlignVCenter;
};
inline constexpr Qt::Alignment kRight = Qt::AlignRight | Qt::AlignVCenter;

/// The texts of a row by their columns, in any order; a column that is not named is empty. A tab in a text
/// becomes a blank.
class GridRow {
 public:
  GridRow() = default;
  GridRow(std::initializer_list<std::pair<int, QString>> cells);
  void set(int column, const QString& text);
  [[nodiscard]] QString text(int column) const { return texts_.value(column); }

 private:
  QStringList texts_;
};

/// The data of a grid: rows of text cells, row 0 the titles. A grid that is never shown is a GridModel alone.
/// Rows count from 0 with the title row, as the program does: data are rows 1 to rows() - 1.
/// Reading a cell that is not there gives an empty text; writing one does nothing.
class GridModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  explicit GridModel(const QString& name = {}, QObject* parent = nullptr);

  /// Clears all, leaves the title row alone, takes titles, widths and alignment; current row and column 0.
  void layOut(std::span<const GridColumn> columns);

  [[nodiscard]] int rows() const { return static_cast<int>(rows_.size()); }
  [[nodiscard]] int cols() const { return static_cast<int>(columns_.size()); }
  [[nodiscard]] int width(int column) const;

  [[nodiscard]] QString text(int row, int column) const;
  void setText(int row, int column, const QString& text);

  /// Adds a row from tab-separated text. Surplus fields are dropped, missing ones are empty; the current row
  /// stays.
  void addItem(const QString& tabSeparated);
  void addRow(GridRow row);
  /// Adds many rows at once, which a visible grid takes as one change.
  void addRows(std::vector<GridRow> rows);
  /// The texts of a row, to be added to another grid.
  [[nodiscard]] GridRow rowTexts(int row) const;
  /// Removes a data row; the current row stays where it is, or on the last row if that is gone.
  void removeItem(int row);
  /// Two data rows change places.
  void swapRows(int one, int other);
  /// Stable, ascending, by text (numbers among texts by value), blanks first; cell formats move along.
  void sortAscending(int column);

  /// Current row and column, as the user or the program set them. Setting a row that is not there does
  /// nothing.
  [[nodiscard]] int row() const { return row_; }
  [[nodiscard]] int col() const { return col_; }
  void setRow(int row);
  void setCol(int column);
  /// After a search: a single row becomes the current one, of several none is.
  void chooseSingleRow();
  /// First visible data row.
  [[nodiscard]] int topRow() const { return topRow_; }
  void setTopRow(int row);

  void setCellBackColor(int row, int column, QColor color);
  /// Of many rows, which a visible grid takes as one change.
  void setBackColors(int column, const std::vector<std::pair<int, QColor>>& rows);
  void setCellAlignment(int row, int column, Qt::Alignment alignment);
  [[nodiscard]] QColor cellBackColor(int row, int column) const;
  [[nodiscard]] Qt::Alignment cellAlignment(int row, int column) const;

  // For the view: data rows only, the titles are its header.
  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 Q_SIGNALS:
  void currentMoved(int row, int column);
  void topRowMoved(int row);

 private:
  struct Format {
    QColor back;
    std::optional<Qt::Alignment> align;
  };
  struct Row {
    GridRow texts;
    QHash<int, Format> formats;  ///< of the cells that have one of their own
  };
  [[nodiscard]] bool has(int row, int column) const;
  [[nodiscard]] Format format(int row, int column) const;
  void cellChanged(int row, int column);

  QList<GridColumn> columns_;
  QList<Row> rows_;
  int row_ = 0;
  int col_ = 0;
  int topRow_ = 1;
};

}  // namespace forms
