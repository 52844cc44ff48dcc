#include "platform/office/word_processor.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>
#include <algorithm>

#include "platform/files/contents.h"
#include "platform/files/paths.h"
#include "platform/office/printers.h"
#include "platform/office/rtf_writer.h"
#include "platform/values/line_ends.h"
#include "platform/values/runtime_error.h"

using namespace Qt::StringLiterals;

namespace office {
namespace {

constexpr double kOwnVersion = 12;
constexpr double kCellPadding = 5.4;  // on either side, as word processors have it
double installedVersion = 0;

/// Natural size in points: by the file's own resolution, 96 dots an inch without one.
Picture readPicture(const QString& path) {
  const QString found = files::resolve(path);
  if (!QFileInfo(found).isFile()) values::raise(values::kPictureNotFound, path);
  Picture picture;
  picture.bytes = files::readAll(path);
  QBuffer buffer(&picture.bytes);
  QImageReader reader(&buffer);
  const QByteArray format = reader.format();
  const QImage image = reader.read();
  if (image.isNull() || (format != "jpeg" && format != "png")) values::raise(values::kInvalidPicture, path);
  picture.png = format == "png";
  picture.width = image.width() * 72.0 / 96.0;
  picture.height = image.height() * 72.0 / 96.0;
  return picture;
}

}  // namespace

WordProcessor::WordProcessor() : version_(installedVersion > 0 ? installedVersion : kOwnVersion) {
  activePrinter_ = defaultPrinter();
}

void WordProcessor::setInstalledVersion(double version) { installedVersion = version; }

Document& WordProcessor::open() {
  if (!document_)
    throw values::RuntimeError(values::kObjectNotSet, u"Não há documento aberto no processador de textos"_s);
  return *document_;
}

const Document& WordProcessor::document() const { return const_cast<WordProcessor*>(this)->open(); }

Table& WordProcessor::table() {
  auto* last = std::get_if<Table>(&open().blocks.back());
  if (last == nullptr || !inTable_) values::raise(values::kNoSuchMember);
  return *last;
}

std::vector<Paragraph>& WordProcessor::paragraphs() { return table().rows[row_][column_].paragraphs; }

Paragraph& WordProcessor::paragraph() {
  if (inTable_) return paragraphs().back();
  return std::get<Paragraph>(open().blocks.back());
}

void WordProcessor::addDocument(const QString& title, const QString& foot) {
  document_.emplace();
  document_->title = title;
  document_->foot = foot;
  font_ = {};
  alignment_ = Qt::AlignLeft;
  inTable_ = false;
}

void WordProcessor::setTopMargin(double points) { open().topMargin = points; }
void WordProcessor::setBottomMargin(double points) { open().bottomMargin = points; }

void WordProcessor::setFont(const QString& name, double size, bool bold) { font_ = {name, size, bold}; }
void WordProcessor::setBold(bool bold) { font_.bold = bold; }

void WordProcessor::setAlignment(Qt::Alignment alignment) {
  alignment_ = alignment;
  paragraph().alignment = alignment;
}

void WordProcessor::keepWithNext() { paragraph().keepWithNext = true; }

void WordProcessor::typeText(const QString& text) {
  const QStringList parts = values::withPlainLineEnds(text).split(u'\n');
  for (qsizetype i = 0; i < parts.size(); ++i) {
    if (i > 0) typeParagraph();
    Paragraph& here = paragraph();
    if (here.content.empty()) {
      here.font = font_;
      here.alignment = alignment_;
    }
    if (!parts[i].isEmpty()) here.content.emplace_back(Run{parts[i], font_});
  }
}

void WordProcessor::typeParagraph() {
  Paragraph next{{}, alignment_, font_};
  if (inTable_)
    paragraphs().push_back(std::move(next));
  else
    open().blocks.emplace_back(std::move(next));
}

void WordProcessor::addPicture(const QString& path) {
  Picture picture = readPicture(path);
  const double room = inTable_ ? table().widths[column_] - 2 * kCellPadding : open().textWidth();
  if (picture.width > room) {
    picture.height *= room / picture.width;
    picture.width = room;
  }
  Paragraph& here = paragraph();
  here.alignment = alignment_;
  here.content.emplace_back(std::move(picture));
}

void WordProcessor::addTable(int rows, int columns, bool grid) {
  Document& document = open();
  const auto columnCount = static_cast<std::size_t>(columns);
  Table made;
  made.grid = grid;
  made.widths.assign(columnCount, document.textWidth() / columns);
  made.rows.assign(static_cast<std::size_t>(rows),
                   std::vector<Cell>(columnCount, Cell{{Paragraph{{}, alignment_, font_}}}));
  // The empty paragraph that the selection stands on gives way to the table.
  if (!inTable_ && paragraph().content.empty()) document.blocks.pop_back();
  document.blocks.emplace_back(std::move(made));
  inTable_ = true;
  row_ = column_ = 0;
}

void WordProcessor::setColumnWidth(int column, double points) {
  table().widths.at(static_cast<std::size_t>(column)) = points;
}

void WordProcessor::setColumnShares(const std::vector<double>& percents) {
  std::vector<double>& widths = table().widths;
  for (std::size_t i = 0; i < widths.size(); ++i) widths[i] = open().textWidth() * percents.at(i) / 100;
}

void WordProcessor::setHeadingRow() { table().headings = row_ + 1; }

void WordProcessor::moveRight() {
  Table& here = table();
  if (++column_ < here.widths.size()) return;
  column_ = 0;
  if (++row_ == here.rows.size())
    here.rows.emplace_back(here.widths.size(), Cell{{Paragraph{{}, alignment_, font_}}});
}

void WordProcessor::moveAfterTable() {
  (void)table();
  inTable_ = false;
  open().blocks.emplace_back(Paragraph{{}, alignment_, font_});
  typeParagraph();
}

void WordProcessor::saveAs(const QString& path) { files::write(path, toRtf(open())); }

void WordProcessor::printOut() { print(open(), activePrinter_); }

void WordProcessor::closeDocument() {
  (void)open();
  document_.reset();
}

void WordProcessor::quit() { document_.reset(); }

}  // namespace office
