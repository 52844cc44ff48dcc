#pragma once

#include <QStringList>

#include "platform/web/html_tree.h"

namespace web {

/// A document in the words of the toolkit's rich text, which then shows it as browsers do. Nothing else gets
/// through: of the elements and attributes those that are known here, of numbers those that make sense.
struct RichText {
  QString html;
  QStringList pictures;  ///< their addresses; a picture's own is the number of one
};
[[nodiscard]] RichText richText(const HtmlTree& tree);

/// Stands in words that are longer than a line, where they may be broken.
inline constexpr QChar kBreakHere(0x200B);

}  // namespace web
