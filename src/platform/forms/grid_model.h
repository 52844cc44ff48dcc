#pragma once

#include <QAbstractTableModel>
#include <QColor>
#include <QHash>
#include <QList>
#include <QStringList>
#include <functional>
#include <initializer_list>
#include <memory>
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
  bool operator==(const GridColumn&) const = default;
};
inline constexpr Qt::Alignment kRight = Qt::AlignRight | Qt::AlignVCenter;

/// How a cell looks where it differs from its column.
struct GridLook {
  QColor back;
  std::optional<Qt::Alignment> align;
};

/// The texts of a lot of rows, by row of the lot from 0 and column. A text is asked for each time its cell is
/// looked at, also while painting: it neither raises nor takes long.
using GridTexts = std::function<QString(qsizetype row, int column)>;

/// The texts of a row by their columns, in any order; a column that is not named is empty. A tab in a text
/// becomes a blank.
class GridRow {
 public:
  GridRow() = default;
  GridRow(std::initializer_list<std::pair<int, QString>> cells);
  /// All its texts, from the first column on; none has a tab.
  explicit GridRow(QStringList texts) : texts_(std::move(texts)) {}
  /// One of a lot, until a text of it is set.
  GridRow(std::shared_ptr<const GridTexts> lot, qsizetype at) : lot_(std::move(lot)), at_(at) {}
  void set(int column, const QString& text);
  [[nodiscard]] QString text(int column) const;

 private:
  QStringList texts_;
  std::shared_ptr<const GridTexts> lot_;
  qsizetype at_ = 0;
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
  [[nodiscard]] int width(int column) const { return columns_.value(column).width; }

  [[nodiscard]] QString text(int row, int column) const;
  void setText(int row, int column, const QString& text);

  /// Adds a row from tab-separated text. Surplus fields are dropped, missing ones are empty; the current row
  /// stays.
  void addItem(const QString& tabSeparated) { addRow(GridRow(tabSeparated.split(QLatin1Char('\t')))); }
  void addRow(GridRow row) { addRows({std::move(row)}); }
  /// Adds many rows at once, which a visible grid takes as one change.
  void addRows(std::vector<GridRow> rows);
  /// The same for a lot of which most rows are never looked at: no text is made before.
  void addRows(qsizetype count, GridTexts texts);
  /// The texts of a row, to be added to another grid.
  [[nodiscard]] GridRow rowTexts(int row) const;
  /// Removes a data row; the current row stays where it is, or on the last row if that is gone.
  void removeItem(int row);
  /// Two data rows change places.
  void swapRows(int one, int other);
  /// Stable, ascending, by text (numbers among texts by value), blanks first.
  void sortAscending(int column);

  /// Current row and column, as the user or the program set them. Setting a row that is not there does
  /// nothing.
  [[nodiscard]] int row() const { return row_; }
  [[nodiscard]] int col() const { return col_; }
  void setRow(int row);
  void setCol(int column);
  /// After a search: a single row becomes the current one, of several none is.
  void chooseSingleRow();

  /// How the cells of a column look, told by their row each time they are painted; outlives layouts. Neither
  /// raises nor takes long.
  void setLook(int column, std::function<GridLook(int row)> look) { looks_[column] = std::move(look); }

  // For the view: data rows only, the titles are its header.
  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 Q_SIGNALS:
  void currentMoved(int row, int column);

 private:
  [[nodiscard]] bool has(int row, int column) const;
  [[nodiscard]] QVariant cell(int row, int column, int role) const;

  QList<GridColumn> columns_;
  QList<GridRow> rows_;
  QHash<int, std::function<GridLook(int row)>> looks_;  ///< by column
  int row_ = 0;
  int col_ = 0;
};

}  // namespace forms
