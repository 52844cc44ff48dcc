#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <algorithm>
#include <vector>

#include "platform/office/word_document.h"

namespace office {
namespace {

constexpr double kLineWidth = 0.75;  // points; thinner ones vanish

/// A document as one endless page.
class Layout {
 public:
  explicit Layout(Document& document) : document_(document), text_(document.text) {}

  bool print(QPagedPaintDevice& device) {
    const paper::Sheet sheet{
        {document_.leftMargin, document_.topMargin, document_.rightMargin, document_.bottomMargin},
        1 / kDots,
        document_.textWidth() * kDots,
        document_.foot,
        [this](QPainter& painter, const paper::Strip& strip) {
          forEachPart(
              text_, [](const QTextBlock&) {},
              [&](const QTextTable& table) {
                if (table.format().boolProperty(kGrid)) drawGrid(painter, table, strip);
              });
        }};
    const double height = paper::pageHeight(sheet);
    return paper::print(text_, paper::paginate(pieces(height), height), sheet, device);
  }

 private:
  [[nodiscard]] std::vector<paper::Piece> pieces(double pageHeight) const {
    std::vector<paper::Piece> pieces;
    std::size_t printed = 0;  // empty paragraphs at the end make no page
    const auto add = [&](paper::Piece piece, const QTextBlock& first, const QTextBlock& last) {
      if (piece.strip.height() > pageHeight) piece.cuts = paper::cutsBetweenLines(first, last);
      pieces.push_back(std::move(piece));
    };
    const auto addBlock = [&](const QTextBlock& block) {
      const QRectF area = text_.documentLayout()->blockBoundingRect(block);
      add({{area.top(), area.bottom()}, block.blockFormat().boolProperty(kKeepWithNext)}, block, block);
      if (block.length() > 1) printed = pieces.size();
    };
    const auto addTable = [&](const QTextTable& table) {
      const int rows = table.rows(), headings = table.format().headerRowCount();
      const double start = rowTop(table, 0), end = bottomOf(table);
      const auto topOf = [&](int row) { return row < rows ? rowTop(table, row) : end; };
      for (int row = 0; row < rows; ++row)
        add({{topOf(row), topOf(row + 1)},
             row < headings,
             row < headings ? paper::Strip{} : paper::Strip{start, topOf(headings)}},
            table.cellAt(row, 0).firstCursorPosition().block(),
            table.cellAt(row, table.columns() - 1).lastCursorPosition().block());
      printed = pieces.size();
    };
    forEachPart(text_, addBlock, addTable);
    pieces.resize(printed);
    return pieces;
  }

  [[nodiscard]] double rowTop(const QTextTable& table, int row) const {
    return firstIn(table, row).top() - kLinePadding * kDots;
  }

  /// The first paragraph of a row's first cell.
  [[nodiscard]] QRectF firstIn(const QTextTable& table, int row) const {
    return text_.documentLayout()->blockBoundingRect(table.cellAt(row, 0).firstCursorPosition().block());
  }

  [[nodiscard]] double bottomOf(const QTextTable& table) const {
    double bottom = 0;
    for (int column = 0; column < table.columns(); ++column) {
      const QTextBlock last = table.cellAt(table.rows() - 1, column).lastCursorPosition().block();
      bottom = std::max(bottom, text_.documentLayout()->blockBoundingRect(last).bottom());
    }
    return bottom + kLinePadding * kDots;
  }

  /// The part of a table's lines that stands in a strip. Qt's own are of different widths at the edges.
  void drawGrid(QPainter& painter, const QTextTable& table, const paper::Strip& strip) const {
    const double left = firstIn(table, 0).left() - kSidePadding * kDots, end = bottomOf(table);
    const double top = std::max(rowTop(table, 0), strip.top), bottom = std::min(end, strip.bottom);
    if (bottom - top < 1) return;
    painter.setPen(QPen(Qt::black, kLineWidth * kDots, Qt::SolidLine, Qt::SquareCap));
    double x = left;
    painter.drawLine(QPointF(x, top), QPointF(x, bottom));
    for (const QTextLength& width : table.format().columnWidthConstraints()) {
      x += width.rawValue();
      painter.drawLine(QPointF(x, top), QPointF(x, bottom));
    }
    const auto across = [&](double y) {
      if (y >= top - 1 && y <= bottom + 1) painter.drawLine(QPointF(left, y), QPointF(x, y));
    };
    for (int row = 0; row < table.rows(); ++row) across(rowTop(table, row));
    across(end);
  }

  Document& document_;
  QTextDocument& text_;
};

}  // namespace

bool paint(Document& document, QPagedPaintDevice& device) { return Layout(document).print(device); }

}  // namespace office
