#include "platform/office/word_processor.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>
#include <QUrl>
#include <algorithm>
#include <utility>

#include "platform/files/contents.h"
#include "platform/files/paths.h"
#include "platform/office/printers.h"
#include "platform/values/line_ends.h"
#include "platform/values/runtime_error.h"

using namespace Qt::StringLiterals;

namespace office {
namespace {

constexpr double kOwnVersion = 12;
double installedVersion = 0;

constexpr double kDotsOfPictures = 72.0 / 96.0;  // points to a dot of a picture

QTextBlockFormat aligned(Qt::Alignment alignment) {
  QTextBlockFormat format;
  format.setAlignment(alignment);
  return format;
}

QTextLength widthOf(double points) { return QTextLength(QTextLength::FixedLength, points * kDots); }

}  // namespace

WordProcessor::WordProcessor() : version_(installedVersion > 0 ? installedVersion : kOwnVersion) {
  activePrinter_ = defaultPrinter();
  // The first block of a cell carries the cell's format.
  font_.setProperty(QTextFormat::TableCellLeftPadding, kSidePadding * kDots);
  font_.setProperty(QTextFormat::TableCellRightPadding, kSidePadding * kDots);
  font_.setProperty(QTextFormat::TableCellTopPadding, kLinePadding * kDots);
  font_.setProperty(QTextFormat::TableCellBottomPadding, kLinePadding * kDots);
}

void WordProcessor::setInstalledVersion(double version) { installedVersion = version; }

Document& WordProcessor::open() {
  if (!document_)
    throw values::RuntimeError(values::kObjectNotSet, u"Não há documento aberto no processador de textos"_s);
  return *document_;
}

QTextCursor& WordProcessor::here() {
  (void)open();
  return cursor_;
}

QTextTable& WordProcessor::table() {
  (void)open();
  if (table_ == nullptr) values::raise(values::kNoSuchMember);
  return *table_;
}

void WordProcessor::addDocument(const QString& title, const QString& foot) {
  document_ = std::make_unique<Document>();
  document_->title = title;
  document_->foot = foot;
  paper::layOutForAnyDevice(document_->text);
  document_->text.setTextWidth(document_->textWidth() * kDots);
  cursor_ = QTextCursor(&document_->text);
  cursor_.beginEditBlock();  // laid out once, when all is in
  typing_ = true;
  table_ = nullptr;
  setFont(u"Times New Roman"_s, 12);
  alignment_ = Qt::AlignLeft;
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
  here().mergeBlockFormat(aligned(alignment));
}

void WordProcessor::keepWithNext() {
  QTextBlockFormat format;
  format.setProperty(kKeepWithNext, true);
  here().mergeBlockFormat(format);
}

void WordProcessor::typeText(const QString& text) {
  const QStringList parts = values::withPlainLineEnds(text).split(u'\n');
  for (qsizetype i = 0; i < parts.size(); ++i) {
    if (i > 0) typeParagraph();
    if (here().block().length() == 1) beginBlock(cursor_);
    cursor_.insertText(parts[i], font_);
  }
}

void WordProcessor::typeParagraph() { here().insertBlock(aligned(alignment_), font_); }

void WordProcessor::addPicture(const QString& path) {
  if (!QFileInfo(files::resolve(path)).isFile()) values::raise(values::kPictureNotFound, path);
  QByteArray bytes = files::readAll(path);
  QBuffer buffer(&bytes);
  QImageReader reader(&buffer);
  const QByteArray kind = reader.format();
  const QImage image = reader.read();
  if (image.isNull() || (kind != "jpeg" && kind != "png")) values::raise(values::kInvalidPicture, path);
  const double room =
      table_ ? table_->format().columnWidthConstraints().value(column_).rawValue() / kDots - 2 * kSidePadding
             : open().textWidth();
  const double natural = image.width() * kDotsOfPictures, width = std::min(natural, room);
  QTextImageFormat format;
  format.setName(u"picture:%1"_s.arg(here().position()));
  format.setWidth(width * kDots);
  format.setHeight(image.height() * kDotsOfPictures * width / natural * kDots);
  open().text.addResource(QTextDocument::ImageResource, QUrl(format.name()), bytes);
  setAlignment(alignment_);
  cursor_.insertImage(format);
}

void WordProcessor::addTable(int rows, int columns, bool grid) {
  QTextTableFormat format;
  format.setBorder(0);
  format.setCellSpacing(0);
  format.setCellPadding(0);
  format.setProperty(kGrid, grid);
  format.setColumnWidthConstraints(QList<QTextLength>(columns, widthOf(open().textWidth() / columns)));
  cursor_.movePosition(QTextCursor::End);
  table_ = cursor_.insertTable(rows, columns, format);
  for (row_ = rows - 1; row_ >= 0; --row_) beginRow();
  row_ = column_ = 0;
}

void WordProcessor::beginRow() {
  for (int column = 0; column < table_->columns(); ++column) {
    QTextCursor at = table_->cellAt(row_, column).firstCursorPosition();
    beginBlock(at);
  }
}

void WordProcessor::setColumnWidth(int column, double points) {
  QTextTableFormat format = table().format();
  QList<QTextLength> widths = format.columnWidthConstraints();
  widths[column] = widthOf(points);
  format.setColumnWidthConstraints(widths);
  table_->setFormat(format);
}

void WordProcessor::setColumnShares(const std::vector<double>& percents) {
  for (int column = 0; column < table().columns(); ++column)
    setColumnWidth(column, open().textWidth() * percents.at(static_cast<std::size_t>(column)) / 100);
}

void WordProcessor::setHeadingRow() {
  QTextTableFormat format = table().format();
  format.setHeaderRowCount(row_ + 1);
  table_->setFormat(format);
}

void WordProcessor::moveRight() {
  if (++column_ >= table().columns()) {
    column_ = 0;
    if (++row_ == table_->rows()) {
      table_->appendRows(1);
      beginRow();
    }
  }
  cursor_ = table_->cellAt(row_, column_).lastCursorPosition();
}

void WordProcessor::moveAfterTable() {
  (void)table();
  table_ = nullptr;
  cursor_.movePosition(QTextCursor::End);
  typeParagraph();  // the block beside the table is none (forEachPart)
  typeParagraph();
}

Document& WordProcessor::laidOut() {
  if (std::exchange(typing_, false)) here().endEditBlock();
  return open();
}

void WordProcessor::saveAs(const QString& path) { files::write(path, toRtf(laidOut())); }

void WordProcessor::printOut() { print(laidOut(), activePrinter_); }

}  // namespace office
