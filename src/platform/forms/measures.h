#pragma once

#include <QHash>
#include <QSize>
#include <QString>
#include <optional>

// Sizes of windows and widths of columns that the user has set, kept from one run to the next in one file of
// the desktop user's. Until a file is named nothing is kept, and nothing found.
namespace forms::measures {

/// The file, made with its folder when there is something to keep. An empty path ends the keeping.
void keepIn(const QString& file);

struct Window {
  QSize size;  ///< as it is when not maximised
  bool maximised = false;
};
[[nodiscard]] std::optional<Window> window(const QString& form);
void keep(const QString& form, const Window& window);

/// Widths of a grid's columns, by their numbers, in pixels of the plain text size.
[[nodiscard]] QHash<int, int> columns(const QString& form, const QString& grid);
void keepColumn(const QString& form, const QString& grid, int column, int width);

}  // namespace forms::measures
