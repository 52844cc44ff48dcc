#include "platform/paper/text_pieces.h"

#include <QAbstractTextDocumentLayout>
#include <QTextLayout>
#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace paper {

namespace {

bool isEmpty(const QTextBlock& block) {
  return block.length() == 1 &&
         !block.blockFormat().hasProperty(QTextFormat::BlockTrailingHorizontalRulerWidth);
}

/// What stands above the first text of a cell: its own table's, and that of those which begin in it.
double aboveText(const QTextTable& outer, const QTextCursor& first) {
  double height = 0;
  for (const QTextTable* table = first.currentTable(); table != nullptr;
       table = qobject_cast<QTextTable*>(table->parentFrame())) {
    const QTextTableFormat format = table->format();
    const QTextTableCellFormat cell = table->cellAt(first).format().toTableCellFormat();
    height += cell.hasProperty(QTextFormat::TableCellTopPadding) ? cell.topPadding() : format.cellPadding();
    height += format.border() + (format.borderCollapse() ? 0 : format.cellSpacing());
    if (table == &outer) break;
  }
  return height;
}

/// Every place between the lines of some blocks at which no other line of them is cut; ascending.
std::vector<double> cutsBetweenLines(const QTextBlock& first, const QTextBlock& last) {
  std::vector<Strip> lines;
  const auto* layout = first.document()->documentLayout();
  for (QTextBlock block = first; block.isValid() && block.position() <= last.position();
       block = block.next()) {
    const double top = layout->blockBoundingRect(block).top();
    for (int i = 0; i < block.layout()->lineCount(); ++i) {
      const QRectF line = block.layout()->lineAt(i).rect();
      lines.push_back({top + line.top(), top + line.bottom()});
    }
  }
  std::ranges::sort(lines, {}, &Strip::top);
  std::vector<double> cuts;
  for (double bottom = 1e9; const Strip& line : lines) {
    if (line.top >= bottom - 0.5) cuts.push_back(bottom);
    bottom = cuts.empty() && bottom == 1e9 ? line.bottom : std::max(bottom, line.bottom);
  }
  return cuts;
}

class Measuring {
 public:
  Measuring(const QTextDocument& text, double pageHeight)
      : layout_(*text.documentLayout()), pageHeight_(pageHeight) {
    forEachPart(
        text, [this](const QTextBlock& block) { addBlock(block); },
        [this](QTextTable& table) { addTable(table); });
    pieces_.resize(filled_);
    if (pieces_.size() > 1) (pieces_.end() - 2)->keepWithNext = true;
  }

  std::vector<Piece> pieces() { return std::move(pieces_); }

 private:
  void add(Piece piece, const QTextBlock& first, const QTextBlock& last) {
    if (piece.strip.height() > pageHeight_) piece.cuts = cutsBetweenLines(first, last);
    pieces_.push_back(std::move(piece));
    if (!isEmpty(last)) filled_ = pieces_.size();
  }

  void addBlock(const QTextBlock& block) {
    const QRectF area = layout_.blockBoundingRect(block);
    if (area.height() < 0.5 || !block.isVisible()) return;
    add({{area.top(), area.bottom()}, block.blockFormat().boolProperty(kKeepWithNext)}, block, block);
  }

  [[nodiscard]] double rowTop(const QTextTable& table, int row) const {
    double top = 1e9;
    for (int column = 0; column < table.columns(); ++column) {
      const QTextTableCell cell = table.cellAt(row, column);
      if (cell.row() != row) continue;  // one that began further up
      const QTextCursor cursor = cell.firstCursorPosition();
      top = std::min(top, layout_.blockBoundingRect(cursor.block()).top() - aboveText(table, cursor));
    }
    return top;
  }

  /// One that touches the table before it belongs to it.
  void addTable(QTextTable& table) {
    const int rows = table.rows();
    std::vector<double> tops(static_cast<std::size_t>(rows) + 1);
    for (int row = 0; row < rows; ++row) tops[static_cast<std::size_t>(row)] = rowTop(table, row);
    const double top = tops.front(), height = layout_.frameBoundingRect(&table).height();
    tops.back() = top + height;
    std::partial_sum(tops.rbegin(), tops.rend(), tops.rbegin(),
                     [](double a, double b) { return std::min(a, b); });
    if (!pieces_.empty() && std::abs(pieces_.back().strip.bottom - top) < 1)
      pieces_.back().keepWithNext = true;
    const auto titles = static_cast<std::size_t>(table.format().headerRowCount());
    for (int row = 0; row < rows; ++row) {
      const auto at = static_cast<std::size_t>(row);
      const bool together = row == 0 || at < titles || height < pageHeight_ / 4;
      add({{tops[at], tops[at + 1]},
           together && row + 1 < rows,
           at < titles ? Strip{} : Strip{top, tops[titles]}},
          table.cellAt(row, 0).firstCursorPosition().block(),
          table.cellAt(row, table.columns() - 1).lastCursorPosition().block());
    }
    filled_ = pieces_.size();
  }

  const QAbstractTextDocumentLayout& layout_;
  double pageHeight_;
  std::vector<Piece> pieces_;
  std::size_t filled_ = 0;  ///< up to the last one with something in it
};

}  // namespace

void forEachPart(const QTextDocument& text, const std::function<void(const QTextBlock&)>& block,
                 const std::function<void(QTextTable&)>& table) {
  const auto tableAt = [](const QTextFrame::iterator& at) {
    return at.atEnd() ? nullptr : qobject_cast<QTextTable*>(at.currentFrame());
  };
  bool afterTable = false;
  for (auto at = text.rootFrame()->begin(); !at.atEnd();) {
    const auto here = at++;
    QTextTable* made = tableAt(here);
    if (made != nullptr)
      table(*made);
    else if (here.currentBlock().isValid() &&
             (!isEmpty(here.currentBlock()) || (!afterTable && tableAt(at) == nullptr)))
      block(here.currentBlock());
    afterTable = made != nullptr;
  }
}

std::vector<Piece> piecesOf(const QTextDocument& text, double pageHeight) {
  return Measuring(text, pageHeight).pieces();
}

}  // namespace paper
