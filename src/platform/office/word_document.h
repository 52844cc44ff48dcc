#pragma once

#include <QString>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextTable>
#include <functional>

#include "platform/paper/printer.h"

// What a word-processor document is made of. Measures are points; those within the text are dots.
namespace office {

/// Dots of the text to a point.
inline constexpr double kDots = paper::kDotsPerInch / 72;
inline constexpr double kSidePadding = 5.4, kLinePadding = 2.25;  // of cells
inline constexpr double kPageWidth = 595.3, kPageHeight = 841.9;  // A4

/// Property of a table's format: lines stand around all its cells.
inline constexpr int kGrid = QTextFormat::UserProperty;
/// Property of a block's format: it stands on the page of what comes after it.
inline constexpr int kKeepWithNext = QTextFormat::UserProperty + 1;

struct Document {
  /// Blocks and tables, whose header rows every page repeats. Pictures are resources: the bytes of their
  /// file.
  QTextDocument text;
  QString title;
  QString foot;  ///< stands on paper with the page's number below the second page and those after it
  double topMargin = 70.85, bottomMargin = 70.85, leftMargin = 85.05, rightMargin = 85.05;
  [[nodiscard]] double textWidth() const { return kPageWidth - leftMargin - rightMargin; }
};

/// Calls one of them for each part of a text, in their order. An empty block beside a table is none: the
/// layout gives it no height.
inline void forEachPart(const QTextDocument& text, const std::function<void(const QTextBlock&)>& block,
                        const std::function<void(const QTextTable&)>& table) {
  const auto tableAt = [](const QTextFrame::iterator& at) {
    return at.atEnd() ? nullptr : qobject_cast<const QTextTable*>(at.currentFrame());
  };
  bool afterTable = false;
  for (auto at = text.rootFrame()->begin(); !at.atEnd();) {
    const auto here = at++;
    const QTextTable* made = tableAt(here);
    if (made != nullptr)
      table(*made);
    else if (here.currentBlock().length() > 1 || (!afterTable && tableAt(at) == nullptr))
      block(here.currentBlock());
    afterTable = made != nullptr;
  }
}

/// Paints a document on a printer or PDF writer, page by page, inside the document's own margins
/// (print_layout.cpp). A table row never stands on two pages unless it is higher than a page. Whether
/// painting could begin.
[[nodiscard]] bool paint(Document& document, QPagedPaintDevice& device);

/// The document in Rich Text Format 1.9 (rtf_writer.cpp), pictures inside, characters outside ASCII as \u
/// escapes, which word processors open under the ending .doc.
[[nodiscard]] QByteArray toRtf(const Document& document);

}  // namespace office
