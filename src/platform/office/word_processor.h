#pragma once

#include <QMarginsF>
#include <QTextCursor>
#include <QTextDocument>
#include <vector>

#include "platform/paper/printer.h"

namespace office {

/// Dots of the text to a point.
inline constexpr double kDots = paper::kDotsPerInch / 72;
inline constexpr QMarginsF kMargins{85.05, 70.85, 85.05, 70.85};  // points
inline constexpr double kTextWidth = paper::kPageWidth - kMargins.left() - kMargins.right();

struct Document {
  /// Blocks and tables, whose header rows every page repeats. Pictures are resources: the bytes of their
  /// file.
  QTextDocument text;
  QString title;
  QString foot;  ///< stands on paper with the page's number below the second page and those after it
};

/// The document in Rich Text Format 1.9 (rtf_writer.cpp), pictures inside, characters outside ASCII as \u
/// escapes, which word processors open under the ending .doc.
[[nodiscard]] QByteArray toRtf(const Document& document);

/// A word processor that is driven: text is typed where the selection stands, as a person would. Its one
/// document is an A4 page with margins.
class WordProcessor {
 public:
  explicit WordProcessor(const QString& title = {}, const QString& foot = {});

  void setFont(const QString& name, double size, bool bold = false);
  void setBold(bool bold) { font_.setFontWeight(bold ? QFont::Bold : QFont::Normal); }
  /// Of the paragraph that the selection stands in, and of those typed after it.
  void setAlignment(Qt::Alignment alignment);
  /// Keeps the current paragraph on the page of the one after it.
  void keepWithNext();

  /// Types into the current paragraph; CR LF, CR and LF start a new one.
  void typeText(const QString& text);
  void typeParagraph();
  /// Puts a picture file (JPEG or PNG), saved with the document, at its natural size, smaller where the cell
  /// or page is narrower. Raises 5152 when the file is not there, 481 when it is no such picture.
  void addPicture(const QString& path);

  /// A table of one row at the end, to whose first cell the selection goes; columns share the text's width.
  void addTable(int columns, bool grid);
  // In a table.
  /// Widths of the columns as shares of the text's width, which add up to 100.
  void setColumnShares(const std::vector<double>& percents);
  /// The current row is a title, which the table repeats on each page; so are those above it.
  void setHeadingRow();
  /// To the next cell; from the last one a row is added.
  void moveRight();
  /// After the last table and an empty paragraph, on a new one.
  void moveAfterTable();

  /// Writes the document as RTF.
  void saveAs(const QString& path);
  /// Writes it as PDF, as it comes onto paper: no row of a table stands on two pages unless it is higher than
  /// one. Raises 482 where it can't be painted, and as files::write does.
  void printToPdf(const QString& path);

  [[nodiscard]] const Document& document() const { return document_; }

 private:
  void beginBlock(QTextCursor& at) const;
  void beginRow();

  Document document_;
  QTextCursor cursor_{&document_.text};
  QTextCharFormat font_;
  Qt::Alignment alignment_ = Qt::AlignLeft;
  QTextTable* table_ = nullptr;  ///< that the selection is in
  int column_ = 0;
};

}  // namespace office
