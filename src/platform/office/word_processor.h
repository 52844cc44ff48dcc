#pragma once

#include <QTextCursor>
#include <memory>
#include <vector>

#include "platform/office/word_document.h"

namespace office {

/// A word processor that is driven: text is typed where the selection stands, as a person would. One document
/// at a time. Members act on the open document; without one they raise 91.
class WordProcessor {
 public:
  WordProcessor();
  /// Version as the target's releases count them: 8, 9, 10, 11, 12.
  [[nodiscard]] double version() const { return version_; }
  /// Makes later word processors report another version; 0 brings back their own, 12 (tests).
  static void setInstalledVersion(double version);

  void addDocument(const QString& title = {}, const QString& foot = {});
  void setTopMargin(double points) { open().topMargin = points; }
  void setBottomMargin(double points) { open().bottomMargin = points; }

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

  /// A table at the selection, which goes to its first cell; columns share the text's width.
  void addTable(int rows, int columns, bool grid);
  void setColumnWidth(int column, double points);
  /// Widths as shares of the text's width, which add up to 100.
  void setColumnShares(const std::vector<double>& percents);
  /// The current row is a title, which the table repeats on each page; so are those above it.
  void setHeadingRow();
  /// To the next cell; from the last one a row is added.
  void moveRight();
  /// After the last table and an empty paragraph, on a new one.
  void moveAfterTable();

  /// Writes the document as RTF, which word processors open under the ending .doc.
  void saveAs(const QString& path);

  void setActivePrinter(const QString& deviceName) { activePrinter_ = deviceName; }
  /// Prints on the active printer.
  void printOut();

  [[nodiscard]] const Document& document() { return laidOut(); }

 private:
  [[nodiscard]] Document& open();
  [[nodiscard]] QTextCursor& here();
  [[nodiscard]] QTextTable& table();
  /// The open document, to be read.
  [[nodiscard]] Document& laidOut();
  void beginBlock(QTextCursor& at) const;
  void beginRow();

  double version_;
  std::unique_ptr<Document> document_;
  QTextCursor cursor_;
  bool typing_ = false;
  QTextCharFormat font_;
  Qt::Alignment alignment_ = Qt::AlignLeft;
  QTextTable* table_ = nullptr;  ///< that the selection is in
  int row_ = 0, column_ = 0;
  QString activePrinter_;
};

}  // namespace office
