#include "platform/paper/text_pieces.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextTable>
#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/paper/printer.h"

namespace paper {

namespace {

/// What stands around the first text of a cell: its own table's, and that of those which begin in it.
double aboveText(const QTextTable& outer, const QTextTable* inner) {
  double height = 0;
  for (const QTextTable* table = inner; table != nullptr;
       table = qobject_cast<QTextTable*>(table->parentFrame())) {
    const QTextTableFormat format = table->format();
    height += format.cellPadding() + format.border() + (format.borderCollapse() ? 0 : format.cellSpacing());
    if (table == &outer) break;
  }
  return height;
}

class Measuring {
 public:
  Measuring(const QTextDocument& text, double pageHeight)
      : layout_(*text.documentLayout()), pageHeight_(pageHeight) {
    for (auto it = text.rootFrame()->begin(); !it.atEnd(); ++it) {
      if (auto* table = qobject_cast<QTextTable*>(it.currentFrame()))
        addTable(*table);
      else if (it.currentBlock().isValid())
        addBlock(it.currentBlock());
    }
    if (pieces_.size() > 1) (pieces_.end() - 2)->keepWithNext = true;
  }

  std::vector<Piece> pieces() { return std::move(pieces_); }

 private:
  [[nodiscard]] bool isTall(const Strip& strip) const { return strip.height() > pageHeight_; }

  void addBlock(const QTextBlock& block) {
    const QRectF area = layout_.blockBoundingRect(block);
    if (area.height() < 0.5 || !block.isVisible()) return;
    Piece piece{{area.top(), area.bottom()}};
    if (isTall(piece.strip)) piece.cuts = cutsBetweenLines(block, block);
    pieces_.push_back(piece);
  }

  [[nodiscard]] double rowTop(QTextTable& table, int row) const {
    double top = layout_.frameBoundingRect(&table).bottom() + 1e6;
    for (int column = 0; column < table.columns(); ++column) {
      const QTextTableCell cell = table.cellAt(row, column);
      if (cell.row() != row) continue;  // one that began further up
      const QTextCursor cursor = cell.firstCursorPosition();
      top = std::min(
          top, layout_.blockBoundingRect(cursor.block()).top() - aboveText(table, cursor.currentTable()));
    }
    return top;
  }

  /// One that touches the table before it belongs to it.
  void addTable(QTextTable& table) {
    std::vector<double> tops;
    tops.reserve(static_cast<std::size_t>(table.rows()));
    for (int row = 0; row < table.rows(); ++row) tops.push_back(rowTop(table, row));
    const double end = tops.front() + layout_.frameBoundingRect(&table).height();
    if (!pieces_.empty() && std::abs(pieces_.back().strip.bottom - tops.front()) < 1)
      pieces_.back().keepWithNext = true;
    const bool whole = end - tops.front() < pageHeight_ / 4;
    for (int row = 0; row < table.rows(); ++row) {
      const bool last = row + 1 == table.rows();
      const auto index = static_cast<std::size_t>(row);
      Piece piece{{tops[index], last ? end : std::max(tops[index], tops[index + 1])},
                  !last && (whole || row == 0)};
      if (isTall(piece.strip))
        piece.cuts = cutsBetweenLines(table.cellAt(row, 0).firstCursorPosition().block(),
                                      table.cellAt(row, table.columns() - 1).lastCursorPosition().block());
      pieces_.push_back(piece);
    }
  }

  const QAbstractTextDocumentLayout& layout_;
  double pageHeight_;
  std::vector<Piece> pieces_;
};

}  // namespace

std::vector<Piece> piecesOf(const QTextDocument& text, double pageHeight) {
  return Measuring(text, pageHeight).pieces();
}

}  // namespace paper
