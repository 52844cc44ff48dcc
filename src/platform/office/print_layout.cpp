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
#include <limits>
#include <variant>
#include <vector>

using namespace Qt::StringLiterals;

namespace office {
namespace {

constexpr double kSidePadding = 5.4, kLinePadding = 2.25, kLineWidth = 0.75;  // points; thinner ones vanish
constexpr double kTolerance = 4;  // points that a page may be higher than was measured

/// A place before which a page can begin: a block, or a row of a table.
using Place = std::pair<std::size_t, std::size_t>;
constexpr Place kStart{0, 0};
constexpr Place kEnd{std::numeric_limits<std::size_t>::max(), 0};

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

/// What stands from one place up to another as a text document, laid out for one device.
class Layout {
 public:
  Layout(const Document& document, QPagedPaintDevice& device, Place from, Place to)
      : document_(document),
        scale_(device.logicalDpiX() / 72.0),
        unit_(screenDpi() / 72.0),
        from_(from),
        to_(to) {
    text_.setDocumentMargin(0);
    text_.setUndoRedoEnabled(false);
    text_.documentLayout()->setPaintDevice(&device);
    text_.setUseDesignMetrics(true);
    cursor_ = QTextCursor(&text_);
    cursor_.beginEditBlock();  // laid out once, when all is in
    for (std::size_t i = 0; i < printedBlocks(document); ++i) {
      if (const auto* table = std::get_if<Table>(&document.blocks[i]))
        addTable(i, *table);
      else if (holds({i, 0}))
        addParagraph(i, std::get<Paragraph>(document.blocks[i]));
    }
    if (blockIsFree_) makeTiny();
    cursor_.endEditBlock();
    text_.setTextWidth(document_.textWidth() * scale_);
  }

  /// Tops and bottoms on one endless page.
  std::vector<Element> measure() {
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

  /// On one page, unless a row or paragraph alone is higher.
  void paint(QPainter& painter, QPagedPaintDevice& device) {
    const double width = document_.textWidth() * scale_;
    height_ = text_.size().height();
    if (height_ > pageHeight() + kTolerance * scale_) {
      height_ = pageHeight();
      text_.setPageSize({width, height_});
    }
    const int pages = text_.pageCount();
    for (int page = 0; page < pages; ++page) {
      if (page > 0) device.newPage();
      painter.save();
      painter.translate(document_.leftMargin * scale_, document_.topMargin * scale_ - page * height_);
      QAbstractTextDocumentLayout::PaintContext context;
      context.palette.setColor(QPalette::Text, Qt::black);
      if (pages > 1) {  // what ends or begins on the edge itself is another page's
        context.clip = QRectF(-scale_, page * height_ + 1, width + 2 * scale_, height_ - 2);
        painter.setClipRect(context.clip);
      }
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
    const double top = std::max(rowTop(table, 0), page * height_);
    const double bottom = std::min(end, (page + 1) * height_);
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
    format.setWidth(picture.width * unit_);
    format.setHeight(picture.height * unit_);
    cursor_.insertImage(format);
  }

  void addParagraph(std::size_t index, const Paragraph& paragraph) {
    if (!blockIsFree_) cursor_.insertBlock();
    type(paragraph);
    // The text layout hides an empty block before a table.
    if (paragraph.content.empty()) cursor_.insertText(QString(QChar::Nbsp), charFormat(paragraph.font));
    paragraphs_.push_back({{index, 0}, cursor_.position()});
    blockIsFree_ = false;
  }

  [[nodiscard]] bool holds(Place place) const { return from_ <= place && place < to_; }

  /// Those of its rows that stand here, the titles before them.
  void addTable(std::size_t index, const Table& table) {
    std::vector<std::size_t> rows;
    for (std::size_t row = 0; row < table.rows.size(); ++row)
      if (holds({index, row})) rows.push_back(row);
    if (rows.empty()) return;
    for (std::size_t title = std::min(table.headings, rows.front()); title-- > 0;)
      rows.insert(rows.begin(), title);
    addRows(index, table, rows);
  }

  void addRows(std::size_t index, const Table& table, const std::vector<std::size_t>& rows) {
    if (blockIsFree_ && cursor_.position() > 0) makeTiny();
    QTextTableFormat format;
    format.setBorder(0);
    format.setCellSpacing(0);
    format.setCellPadding(0);
    QList<QTextLength> widths;
    for (const double width : table.widths) widths << QTextLength(QTextLength::FixedLength, width * unit_);
    format.setColumnWidthConstraints(widths);
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
          type(paragraphs[i]);
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
  Place from_, to_;
  double height_ = 0;  // of a page as it is painted
  QTextDocument text_;
  QTextCursor cursor_;
  bool blockIsFree_ = true;
  int pictures_ = 0;
  std::vector<std::pair<Place, int>> paragraphs_;
  std::vector<std::pair<std::size_t, QTextTable*>> tables_;
};

/// Where pages begin: at the start, and before each element that would not end on the page it begins on and
/// those that stand with it.
std::vector<Place> pageStarts(const std::vector<Element>& elements, double pageHeight) {
  std::vector<Place> starts{kStart};
  double pageTop = 0;
  std::size_t first = 0;  // of the page
  for (std::size_t i = 0; i < elements.size(); ++i) {
    if (i == first || elements[i].bottom - pageTop <= pageHeight) continue;
    std::size_t start = i;
    while (start > first && elements[start - 1].keepWithNext) --start;
    first = i = start > first ? start : i;
    starts.push_back(elements[first].place);
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
  Layout whole(document, device, kStart, kEnd);
  const std::vector<Place> starts = pageStarts(whole.measure(), whole.pageHeight());
  for (std::size_t page = 0; page < starts.size(); ++page) {
    if (page > 0) device.newPage();
    // A text document for each page: the toolkit's own page breaks leave empty pages where a table ends on
    // one.
    Layout(document, device, starts[page], page + 1 < starts.size() ? starts[page + 1] : kEnd)
        .paint(painter, device);
  }
  return painter.end();
}

}  // namespace office
