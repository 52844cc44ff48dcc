#include "platform/office/word_processor.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>
#include <QPdfWriter>
#include <QTextTable>
#include <QUrl>
#include <algorithm>

#include "platform/files/contents.h"
#include "platform/files/paths.h"
#include "platform/paper/text_pieces.h"
#include "platform/values/line_ends.h"
#include "platform/values/runtime_error.h"

using namespace Qt::StringLiterals;

namespace office {
namespace {

// Dots, as everything within the text.
constexpr double kWidth = kTextWidth * kDots;
constexpr double kSidePadding = 5.4 * kDots, kLinePadding = 2.5;  // of cells
constexpr double kSideLine = 1.5;  // what the layout takes from a cell for the line at its side
constexpr double kOutside = -2.5;  // what the layout leaves around a table with lines

QTextBlockFormat aligned(Qt::Alignment alignment) {
  QTextBlockFormat format;
  format.setAlignment(alignment);
  return format;
}

}  // namespace

WordProcessor::WordProcessor(const QString& title, const QString& foot) {
  document_.title = title;
  document_.foot = foot;
  // The first block of a cell carries the cell's format.
  font_.setProperty(QTextFormat::TableCellLeftPadding, kSidePadding - kSideLine);
  font_.setProperty(QTextFormat::TableCellRightPadding, kSidePadding - kSideLine);
  font_.setProperty(QTextFormat::TableCellTopPadding, kLinePadding);
  font_.setProperty(QTextFormat::TableCellBottomPadding, kLinePadding);
  setFont(u"Times New Roman"_s, 12);
  beginBlock(cursor_);
}

void WordProcessor::beginBlock(QTextCursor& at) const {
  at.setBlockFormat(aligned(alignment_));
  at.setBlockCharFormat(font_);
}

void WordProcessor::setFont(const QString& name, double size, bool bold) {
  font_.setFontFamilies({name});
  font_.setFontPointSize(size);
  setBold(bold);
}

void WordProcessor::setAlignment(Qt::Alignment alignment) {
  alignment_ = alignment;
  cursor_.mergeBlockFormat(aligned(alignment));
}

void WordProcessor::keepWithNext() {
  QTextBlockFormat format;
  format.setProperty(paper::kKeepWithNext, true);
  cursor_.mergeBlockFormat(format);
}

void WordProcessor::typeText(const QString& text) {
  const QStringList parts = values::withPlainLineEnds(text).split(u'\n');
  for (qsizetype i = 0; i < parts.size(); ++i) {
    if (i > 0) typeParagraph();
    if (cursor_.block().length() == 1) beginBlock(cursor_);
    cursor_.insertText(parts[i], font_);
  }
}

void WordProcessor::typeParagraph() { cursor_.insertBlock(aligned(alignment_), font_); }

void WordProcessor::addPicture(const QString& path) {
  if (!QFileInfo(files::resolve(path)).isFile()) values::raise(values::kPictureNotFound, path);
  QByteArray bytes = files::readAll(path);
  QBuffer buffer(&bytes);
  QImageReader reader(&buffer);
  const QByteArray kind = reader.format();
  const QImage image = reader.read();
  if (image.isNull() || (kind != "jpeg" && kind != "png")) values::raise(values::kInvalidPicture, path);
  const double share = table_ ? table_->format().columnWidthConstraints()[column_].rawValue() / 100 : 1;
  const double room = kWidth * share - (table_ ? 2 * kSidePadding : 0);
  const double width = std::min<double>(image.width(), room);  // a dot of a picture is one of the text
  QTextImageFormat format;
  format.setName(u"picture:%1"_s.arg(cursor_.position()));
  format.setWidth(width);
  format.setHeight(image.height() * width / image.width());
  document_.text.addResource(QTextDocument::ImageResource, QUrl(format.name()), bytes);
  setAlignment(alignment_);
  cursor_.insertImage(format);
}

void WordProcessor::addTable(int columns, bool grid) {
  QTextTableFormat format;
  format.setBorderCollapse(true);
  format.setBorder(grid ? 1 : 0);
  format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
  format.setBorderBrush(Qt::black);
  format.setTopMargin(grid ? kOutside : 0);
  format.setBottomMargin(grid ? kOutside : 0);
  format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
  format.setCellSpacing(0);
  format.setCellPadding(0);
  cursor_.movePosition(QTextCursor::End);
  table_ = cursor_.insertTable(1, columns, format);
  setColumnShares(std::vector<double>(static_cast<std::size_t>(columns), 100.0 / columns));
  column_ = 0;
  beginRow();
}

void WordProcessor::beginRow() {
  for (int column = 0; column < table_->columns(); ++column) {
    QTextCursor at = table_->cellAt(table_->rows() - 1, column).firstCursorPosition();
    beginBlock(at);
  }
}

void WordProcessor::setColumnShares(const std::vector<double>& percents) {
  QList<QTextLength> widths;
  for (const double percent : percents) widths << QTextLength(QTextLength::PercentageLength, percent);
  QTextTableFormat format = table_->format();
  format.setColumnWidthConstraints(widths);
  table_->setFormat(format);
}

void WordProcessor::setHeadingRow() {
  QTextTableFormat format = table_->format();
  format.setHeaderRowCount(table_->rows());
  table_->setFormat(format);
}

void WordProcessor::moveRight() {
  if (++column_ == table_->columns()) {
    column_ = 0;
    table_->appendRows(1);
    beginRow();
  }
  cursor_ = table_->cellAt(table_->rows() - 1, column_).lastCursorPosition();
}

void WordProcessor::moveAfterTable() {
  table_ = nullptr;
  cursor_.movePosition(QTextCursor::End);
  typeParagraph();  // the block beside the table is none (paper::forEachPart)
  typeParagraph();
}

void WordProcessor::saveAs(const QString& path) { files::write(path, toRtf(document_)); }

void WordProcessor::printToPdf(const QString& path) {
  paper::layOutForAnyDevice(document_.text);
  document_.text.setTextWidth(kWidth);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setTitle(document_.title);
  if (!paper::print(document_.text, {kMargins, 1 / kDots, kWidth, document_.foot}, writer))
    values::raise(values::kPrinterError, path);
  files::write(path, bytes);
}

}  // namespace office
