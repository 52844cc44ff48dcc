#pragma once

#include <QPagedPaintDevice>
#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <functional>
#include <vector>

#include "platform/paper/paginator.h"

namespace paper {

/// Dots to an inch that texts are laid out with, whatever they are shown or printed on.
inline constexpr double kDotsPerInch = 96;

/// Lets a document be laid out without regard to a device: letters scale without moving. To be called before
/// it is filled.
void layOutForAnyDevice(QTextDocument& text);

/// How a laid-out text comes onto paper.
struct Sheet {
  QMarginsF margins;  ///< points
  double scale = 1;   ///< points of the paper to a dot of the layout
  double width = 0;   ///< dots of the layout that are painted
  QString foot;  ///< stands with the page's number below the second page and those after it; empty for none
  /// What is painted over a strip besides the text.
  std::function<void(QPainter&, const Strip&)> over = {};
};

/// Every place between the lines of some blocks at which no other line of them is cut; ascending.
[[nodiscard]] std::vector<double> cutsBetweenLines(const QTextBlock& first, const QTextBlock& last);

/// Height of what stands between the margins of an A4 page, in dots of the layout.
[[nodiscard]] double pageHeight(const Sheet& sheet);

/// Paints the pages on an A4 device. Whether it could begin.
[[nodiscard]] bool print(QTextDocument& text, const std::vector<Page>& pages, const Sheet& sheet,
                         QPagedPaintDevice& device);

}  // namespace paper
