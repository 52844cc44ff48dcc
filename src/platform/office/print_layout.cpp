#include "platform/office/print_layout.h"

#include <QAbstractTextDocumentLayout>
#include <QImage>
#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextTable>
#include <QUrl>
#include <algorithm>
#include <utility>
#include <variant>
#include <vector>

#include "platform/paper/printer.h"

using namespace Qt::StringLiterals;

namespace office {
namespace {

constexpr double kSidePadding = 5.4, kLinePadding = 2.25, kLineWidth = 0.75;  // points; thinner ones vanish
constexpr double kDots = paper::kDotsPerInch / 72;                            // of the layout to a point

bool isEmpty(const Block& block) {
  const auto* paragraph = std::get_if<Paragraph>(&block);
  return paragraph != nullptr && paragraph->content.empty();
}

/// Blocks that are printed: empty paragraphs at the end make no page.
std::size_t printedBlocks(const Document& document) {
  std::size_t count = document.blocks.size();
  while (count > 1 && isEmpty(document.blocks[count - 1])) --count;
  return count;
}

/// A document as one endless page.
class Layout {
 public:
  explicit Layout(const Document& document) : document_(document) {
    paper::layOutForAnyDevice(text_);
    cursor_ = QTextCursor(&text_);
    cursor_.beginEditBlock();  // laid out once, when all is in
    for (std::size_t i = 0; i < printedBlocks(document); ++i) {
      if (const auto* table = std::get_if<Table>(&document.blocks[i]))
        addTable(*table);
      else
        addParagraph(std::get<Paragraph>(document.blocks[i]));
    }
    if (blockIsFree_) makeTiny();
    cursor_.endEditBlock();
    text_.setTextWidth(document_.textWidth() * kDots);
  }

  bool print(QPagedPaintDevice& device) {
    const paper::Sheet sheet{
        {document_.leftMargin, document_.topMargin, document_.rightMargin, document_.bottomMargin},
        1 / kDots,
        document_.textWidth() * kDots,
        document_.foot,
        [this](QPainter& painter, const paper::Strip& strip) {
          for (const auto& [table, made] : tables_)
            if (table->grid) drawGrid(painter, *made, strip);
        }};
    const double height = paper::pageHeight(sheet);
    return paper::print(text_, paper::paginate(pieces(height), height), sheet, device);
  }

 private:
  /// In the order of the document.
  [[nodiscard]] std::vector<paper::Piece> pieces(double pageHeight) const {
    std::vector<paper::Piece> pieces;
    const auto add = [&](paper::Piece piece, const QTextBlock& first, const QTextBlock& last) {
      if (piece.strip.height() > pageHeight) piece.cuts = paper::cutsBetweenLines(first, last);
      pieces.push_back(std::move(piece));
    };
    for (const auto& [paragraph, position] : paragraphs_) {
      const QTextBlock block = text_.findBlock(position);
      const QRectF area = text_.documentLayout()->blockBoundingRect(block);
      add({{area.top(), area.bottom()}, paragraph->keepWithNext}, block, block);
    }
    for (const auto& [table, made] : tables_) {
      const int rows = made->rows(), headings = static_cast<int>(table->headings);
      const double start = rowTop(*made, 0), end = bottomOf(*made);
      const auto topOf = [&, &made = made](int row) { return row < rows ? rowTop(*made, row) : end; };
      for (int row = 0; row < rows; ++row)
        add({{topOf(row), topOf(row + 1)},
             row < headings,
             row < headings ? paper::Strip{} : paper::Strip{start, topOf(headings)}},
            made->cellAt(row, 0).firstCursorPosition().block(),
            made->cellAt(row, made->columns() - 1).lastCursorPosition().block());
    }
    std::ranges::sort(pieces, {}, [](const paper::Piece& piece) { return piece.strip.top; });
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

  static QTextCharFormat charFormat(const Font& font) {
    QTextCharFormat format;
    format.setFontFamilies({font.name});
    format.setFontPointSize(font.size);
    format.setFontWeight(font.bold ? QFont::Bold : QFont::Normal);
    return format;
  }

  /// The block that always follows a table, when nothing else fills it.
  void makeTiny() {
    QTextBlockFormat format;
    format.setLineHeight(1, QTextBlockFormat::FixedHeight);
    cursor_.setBlockFormat(format);
  }

  void type(const Paragraph& paragraph) {
    QTextBlockFormat format;
    format.setAlignment(paragraph.alignment);
    cursor_.setBlockFormat(format);
    cursor_.setBlockCharFormat(charFormat(paragraph.font));
    for (const auto& part : paragraph.content) {
      if (const auto* run = std::get_if<Run>(&part))
        cursor_.insertText(run->text, charFormat(run->font));
      else
        insertPicture(std::get<Picture>(part));
    }
  }

  void insertPicture(const Picture& picture) {
    const QString name = u"picture:%1"_s.arg(++pictures_);
    text_.addResource(QTextDocument::ImageResource, QUrl(name), QImage::fromData(picture.bytes));
    QTextImageFormat format;
    format.setName(name);
    format.setWidth(picture.width * kDots);
    format.setHeight(picture.height * kDots);
    cursor_.insertImage(format);
  }

  void addParagraph(const Paragraph& paragraph) {
    if (!blockIsFree_) cursor_.insertBlock();
    type(paragraph);
    // The text layout hides an empty block before a table.
    if (paragraph.content.empty()) cursor_.insertText(QString(QChar::Nbsp), charFormat(paragraph.font));
    paragraphs_.push_back({&paragraph, cursor_.position()});
    blockIsFree_ = false;
  }

  void addTable(const Table& table) {
    if (table.rows.empty()) return;
    if (blockIsFree_ && cursor_.position() > 0) makeTiny();
    QTextTableFormat format;
    format.setBorder(0);
    format.setCellSpacing(0);
    format.setCellPadding(0);
    QList<QTextLength> widths;
    for (const double width : table.widths) widths << QTextLength(QTextLength::FixedLength, width * kDots);
    format.setColumnWidthConstraints(widths);
    QTextTable* made = cursor_.insertTable(static_cast<int>(table.rows.size()),
                                           static_cast<int>(table.widths.size()), format);
    QTextTableCellFormat padding;
    padding.setLeftPadding(kSidePadding * kDots);
    padding.setRightPadding(kSidePadding * kDots);
    padding.setTopPadding(kLinePadding * kDots);
    padding.setBottomPadding(kLinePadding * kDots);
    for (std::size_t row = 0; row < table.rows.size(); ++row) {
      for (std::size_t column = 0; column < table.widths.size(); ++column) {
        QTextTableCell cell = made->cellAt(static_cast<int>(row), static_cast<int>(column));
        cursor_.setPosition(cell.firstPosition());
        const auto& paragraphs = table.rows[row][column].paragraphs;
        for (std::size_t i = 0; i < paragraphs.size(); ++i) {
          if (i > 0) cursor_.insertBlock();
          type(paragraphs[i]);
        }
        cell.setFormat(padding);  // last: the first block of a cell carries the format of both
      }
    }
    tables_.push_back({&table, made});
    cursor_.movePosition(QTextCursor::End);
    blockIsFree_ = true;
  }

  const Document& document_;
  QTextDocument text_;
  QTextCursor cursor_;
  bool blockIsFree_ = true;
  int pictures_ = 0;
  std::vector<std::pair<const Paragraph*, int>> paragraphs_;
  std::vector<std::pair<const Table*, QTextTable*>> tables_;
};

}  // namespace

bool paint(const Document& document, QPagedPaintDevice& device) { return Layout(document).print(device); }

}  // namespace office
