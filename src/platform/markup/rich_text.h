#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

namespace markup {

/// A document's bytes, in windows-1252, in the words of the toolkit's rich text, which then shows them as
/// browsers do. Nothing else gets through: of the elements and attributes those that are known here, of
/// numbers those that make sense. Nothing at all where they nest beyond all measure.
[[nodiscard]] std::optional<QString> richText(const QByteArray& html);

/// Stands in words that are longer than a line, where they may be broken.
inline constexpr QChar kBreakHere(0x200B);

}  // namespace markup
