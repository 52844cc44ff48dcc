#pragma once

#include <QByteArray>
#include <QStringList>
#include <optional>

namespace web {

/// A document in the words of the toolkit's rich text, which then shows it as browsers do. Nothing else gets
/// through: of the elements and attributes those that are known here, of numbers those that make sense.
struct RichText {
  QString html;
  QStringList pictures;  ///< their addresses; a picture's own is the number of one
};
/// Of bytes in windows-1252; nothing where they nest beyond all measure.
[[nodiscard]] std::optional<RichText> richText(const QByteArray& html);

/// Stands in words that are longer than a line, where they may be broken.
inline constexpr QChar kBreakHere(0x200B);

}  // namespace web
