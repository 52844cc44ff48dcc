#pragma once

#include <QMarginsF>
#include <QPagedPaintDevice>
#include <QTextDocument>

namespace paper {

/// Dots to an inch that texts are laid out with, whatever they are shown or printed on.
inline constexpr double kDotsPerInch = 96;
inline constexpr double kPageHeight = 841.9, kPageWidth = 595.3;  // points, of A4

/// Lets a document be laid out without regard to a device: letters scale without moving.
void layOutForAnyDevice(QTextDocument& text);

/// How a laid-out text comes onto paper.
struct Sheet {
  QMarginsF margins;  ///< points
  double scale = 1;   ///< points of the paper to a dot of the layout
  double width = 0;   ///< dots of the layout that are painted
  QString foot;  ///< stands with the page's number below the second page and those after it; empty for none
};

/// Paints a laid-out text on an A4 device, page by page (text_pieces.h says what stays together). Whether it
/// could begin.
[[nodiscard]] bool print(QTextDocument& text, const Sheet& sheet, QPagedPaintDevice& device);

}  // namespace paper
