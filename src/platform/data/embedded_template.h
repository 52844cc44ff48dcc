#pragma once

#include <QByteArray>
#include <optional>
#include <variant>
#include <vector>

namespace data {

/// A statement with its values taken out, so that the next one of the same form need not be compiled again.
struct Template {
  /// The statement with "?" in the place of each value.
  QByteArray text;
  /// Values in their order: a text without its quotes, or a whole number.
  std::vector<std::variant<QByteArray, qint64>> values;
};

/// The template of a single SELECT, INSERT, UPDATE or DELETE in UTF-8. Nothing for any other text, and for
/// one with comments or several statements. A quoted text counts as a value behind = < > ( , LIKE and AND, a
/// number behind = < >: elsewhere it is a name or a place.
[[nodiscard]] std::optional<Template> templateOf(const QByteArray& sql);

}  // namespace data
