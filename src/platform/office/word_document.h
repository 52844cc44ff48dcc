#pragma once

#include <QByteArray>
#include <QString>
#include <Qt>
#include <variant>
#include <vector>

// What a word-processor document is made of. Measures are points.
namespace office {

struct Font {
  QString name = QStringLiteral("Times New Roman");
  double size = 12;
  bool bold = false;
  bool operator==(const Font&) const = default;
};

struct Run {
  QString text;
  Font font;
};

struct Picture {
  QByteArray bytes;  ///< the file as it is: JPEG or PNG
  bool png = false;
  double width = 0, height = 0;
};

struct Paragraph {
  std::vector<std::variant<Run, Picture>> content;
  Qt::Alignment alignment = Qt::AlignLeft;
  Font font;                  ///< of an empty paragraph's line
  bool keepWithNext = false;  ///< stands on the page of the paragraph after it
};

struct Cell {
  std::vector<Paragraph> paragraphs{Paragraph{}};
};

struct Table {
  bool grid = false;           ///< lines around all cells
  std::vector<double> widths;  ///< of the columns
  std::size_t headings = 0;    ///< rows at the top that every page repeats
  std::vector<std::vector<Cell>> rows;
};

using Block = std::variant<Paragraph, Table>;

struct Document {
  QString title;
  QString foot;  ///< stands on paper with the page's number below the second page and those after it
  double pageWidth = 595.3, pageHeight = 841.9;  // A4
  double topMargin = 70.85, bottomMargin = 70.85, leftMargin = 85.05, rightMargin = 85.05;
  std::vector<Block> blocks{Paragraph{}};
  [[nodiscard]] double textWidth() const { return pageWidth - leftMargin - rightMargin; }
};

}  // namespace office
