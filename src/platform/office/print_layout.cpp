#include "platform/office/print_layout.h"

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QScreen>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextTable>
#include <QUrl>
#include <algorithm>
#include <cmath>
#include <set>
#include <variant>
#include <vector>

using namespace Qt::StringLiterals;

namespace office {
namespace {

constexpr double kSidePadding = 5.4, kLinePadding = 2.25, kLineWidth = 0.75;  // points; thinner ones vanish

/// A place before which a page can begin: a block, or a row of a table.
using Place = std::pair<std::size_t, std::size_t>;

double screenDpi() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  return screen != nullptr ? std::round(screen->logicalDotsPerInchY()) : 96;
}

struct Element {
  Place place;
  double top, bottom;
  double heading = 0;  ///< height of the titles that a page which begins here repeats
  bool keepWithNext = false;
};

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

/// The document as a text document, laid out for one device; tables are cut at the rows where a page begins.
class Layout {
 public:
  Layout(const Document& document, QPagedPaintDevice& device, const std::set<Place>& pageStarts)
      : document_(document),
        scale_(device.logicalDpiX() / 72.0),
        unit_(screenDpi() / 72.0),
        pageStarts_(pageStarts) {
    text_.setDocumentMargin(0);
    text_.setUndoRedoEnabled(false);
    text_.documentLayout()->setPaintDevice(&device);
    text_.setUseDesignMetrics(true);
    cursor_ = QTextCursor(&text_);
    cursor_.beginEditBlock();  // laid out once, when all is in
    for (std::size_t i = 0; i < printedBlocks(document); ++i) {
      if (const auto* table = std::get_if<Table>(&document.blocks[i]))
        addTable(i, *table);
      else
        addParagraph(i, std::get<Paragraph>(document.blocks[i]));
    }
    if (blockIsFree_) makeTiny();
    cursor_.endEditBlock();
  }

  /// Tops and bottoms on one endless page.
  std::vector<Element> measure() {
    text_.setTextWidth(document_.textWidth() * scale_);
    std::vector<Element> elements;
    const auto* layout = text_.documentLayout();
    for (const auto& [place, block] : paragraphs_) {
      const QRectF area = layout->blockBoundingRect(text_.findBlock(block));
      const auto& paragraph = std::get<Paragraph>(document_.blocks[place.first]);
      elements.push_back({place, area.top(), area.bottom(), 0, paragraph.keepWithNext});
    }
    for (const auto& [index, table] : tables_) {
      const auto headings = static_cast<int>(std::get<Table>(document_.blocks[index]).headings);
      const double titles = headings < table->rows() ? rowTop(*table, headings) - rowTop(*table, 0) : 0;
      const double end = bottomOf(*table);
      for (int row = table->rows() - 1; row >= 0; --row) {
        const double bottom = row + 1 < table->rows() ? elements.back().top : end;
        elements.push_back({{index, static_cast<std::size_t>(row)},
                            rowTop(*table, row),
                            bottom,
                            row < headings ? 0 : titles,
                            row < headings});
      }
    }
    std::sort(elements.begin(), elements.end(),
              [](const auto& a, const auto& b) { return a.place < b.place; });
    return elements;
  }

  void paintPages(QPainter& painter, QPagedPaintDevice& device) {
    const double width = document_.textWidth() * scale_, height = pageHeight();
    text_.setPageSize({width, height});
    const int pages = text_.pageCount();
    for (int page = 0; page < pages; ++page) {
      if (page > 0) device.newPage();
      painter.save();
      painter.translate(document_.leftMargin * scale_, document_.topMargin * scale_ - page * height);
      QAbstractTextDocumentLayout::PaintContext context;
      context.palette.setColor(QPalette::Text, Qt::black);
      // What ends or begins on the edge itself is another page's.
      context.clip = QRectF(-scale_, page * height + 1, width + 2 * scale_, height - 2);
      painter.setClipRect(QRectF(-scale_, page * height, width + 2 * scale_, height));
      text_.documentLayout()->draw(&painter, context);
      painter.setClipping(false);
      for (const auto& [index, table] : tables_)
        if (std::get<Table>(document_.blocks[index]).grid) drawGrid(painter, *table, page);
      painter.restore();
    }
  }

  [[nodiscard]] double pageHeight() const {
    return (document_.pageHeight - document_.topMargin - document_.bottomMargin) * scale_;
  }

 private:
  [[nodiscard]] double rowTop(const QTextTable& table, int row) const {
    return firstIn(table, row).top() - kLinePadding * scale_;
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
    return bottom + kLinePadding * scale_;
  }

  /// The part of a table's lines that stands on a page. Qt's own are of different widths at the edges.
  void drawGrid(QPainter& painter, const QTextTable& table, int page) const {
    const double left = firstIn(table, 0).left() - kSidePadding * scale_, end = bottomOf(table);
    const double top = std::max(rowTop(table, 0), page * pageHeight());
    const double bottom = std::min(end, (page + 1) * pageHeight());
    if (bottom - top < scale_) return;
    painter.setPen(QPen(Qt::black, kLineWidth * scale_, Qt::SolidLine, Qt::SquareCap));
    double x = left;
    painter.drawLine(QPointF(x, top), QPointF(x, bottom));
    for (const QTextLength& width : table.format().columnWidthConstraints()) {
      x += width.rawValue() / unit_ * scale_;
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

  void type(const Paragraph& paragraph, bool startsPage) {
    QTextBlockFormat format;
    format.setAlignment(paragraph.alignment);
    if (startsPage) format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
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
    format.setWidth(picture.width * unit_);
    format.setHeight(picture.height * unit_);
    cursor_.insertImage(format);
  }

  void addParagraph(std::size_t index, const Paragraph& paragraph) {
    if (!blockIsFree_) cursor_.insertBlock();
    type(paragraph, pageStarts_.contains({index, 0}));
    // The text layout hides an empty block before a table.
    if (paragraph.content.empty()) cursor_.insertText(QString(QChar::Nbsp), charFormat(paragraph.font));
    paragraphs_.push_back({{index, 0}, cursor_.position()});
    blockIsFree_ = false;
  }

  void addTable(std::size_t index, const Table& table) {
    std::size_t from = 0;
    while (from < table.rows.size()) {
      std::size_t to = from + 1;
      while (to < table.rows.size() && !pageStarts_.contains({index, to})) ++to;
      addRows(index, table, from, to);
      from = to;
    }
  }

  void addRows(std::size_t index, const Table& table, std::size_t from, std::size_t to) {
    if (blockIsFree_ && cursor_.position() > 0) makeTiny();
    QTextTableFormat format;
    format.setBorder(0);
    format.setCellSpacing(0);
    format.setCellPadding(0);
    QList<QTextLength> widths;
    for (const double width : table.widths) widths << QTextLength(QTextLength::FixedLength, width * unit_);
    format.setColumnWidthConstraints(widths);
    std::vector<std::size_t> rows;
    for (std::size_t row = 0; from > 0 && row < std::min(table.headings, from); ++row) rows.push_back(row);
    for (std::size_t row = from; row < to; ++row) rows.push_back(row);
    if (pageStarts_.contains({index, from})) format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    QTextTable* made =
        cursor_.insertTable(static_cast<int>(rows.size()), static_cast<int>(table.widths.size()), format);
    QTextTableCellFormat padding;
    padding.setLeftPadding(kSidePadding * unit_);
    padding.setRightPadding(kSidePadding * unit_);
    padding.setTopPadding(kLinePadding * unit_);
    padding.setBottomPadding(kLinePadding * unit_);
    for (std::size_t row = 0; row < rows.size(); ++row) {
      for (std::size_t column = 0; column < table.widths.size(); ++column) {
        QTextTableCell cell = made->cellAt(static_cast<int>(row), static_cast<int>(column));
        cursor_.setPosition(cell.firstPosition());
        const auto& paragraphs = table.rows[rows[row]][column].paragraphs;
        for (std::size_t i = 0; i < paragraphs.size(); ++i) {
          if (i > 0) cursor_.insertBlock();
          type(paragraphs[i], false);
        }
        cell.setFormat(padding);  // last: the first block of a cell carries the format of both
      }
    }
    tables_.push_back({index, made});
    cursor_.movePosition(QTextCursor::End);
    blockIsFree_ = true;
  }

  const Document& document_;
  double scale_;  // device dots to a point
  double unit_;   // lengths in formats are dots of the screen to Qt, which scales them to the device
  const std::set<Place>& pageStarts_;
  QTextDocument text_;
  QTextCursor cursor_;
  bool blockIsFree_ = true;
  int pictures_ = 0;
  std::vector<std::pair<Place, int>> paragraphs_;
  std::vector<std::pair<std::size_t, QTextTable*>> tables_;
};

/// Where pages begin: before each element that would not end on the page it begins on, and before those that
/// stand with it.
std::set<Place> pageStarts(const std::vector<Element>& elements, double pageHeight) {
  std::set<Place> starts;
  double pageTop = 0;
  std::size_t first = 0;  // of the page
  for (std::size_t i = 0; i < elements.size(); ++i) {
    if (i == first || elements[i].bottom - pageTop <= pageHeight) continue;
    std::size_t start = i;
    while (start > first && elements[start - 1].keepWithNext) --start;
    first = i = start > first ? start : i;
    starts.insert(elements[first].place);
    pageTop = elements[first].top - elements[first].heading;
  }
  return starts;
}

}  // namespace

bool paint(const Document& document, QPagedPaintDevice& device) {
  const QPageSize size(QSizeF(document.pageWidth, document.pageHeight), QPageSize::Point, QString(),
                       QPageSize::FuzzyMatch);
  device.setPageLayout(QPageLayout(size, QPageLayout::Portrait, QMarginsF()));
  QPainter painter;
  if (!painter.begin(&device)) return false;
  const std::set<Place> none;
  Layout whole(document, device, none);
  const double slack = device.logicalDpiX() / 18.0;  // the tiny blocks between the halves of cut tables
  const std::set<Place> starts = pageStarts(whole.measure(), whole.pageHeight() - slack);
  Layout(document, device, starts).paintPages(painter, device);
  return painter.end();
}

}  // namespace office
