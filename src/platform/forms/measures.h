#pragma once

#include <QString>
#include <QVariant>

// Sizes of windows and widths of columns that the user has set, kept from one run to the next in one file of
// the desktop user's. Until a file is named nothing is kept, and nothing found.
namespace forms::measures {

/// The file, made with its folder when there is something to keep. An empty path ends the keeping.
void keepIn(const QString& file);

/// Names are "frmX/size" (of the window as it is when not maximised), "frmX/maximised" and, of column 3 of a
/// grid, "frmX/Flex/3" (in pixels of the plain text size). What was never kept is invalid.
[[nodiscard]] QVariant kept(const QString& name);
void keep(const QString& name, const QVariant& value);

}  // namespace forms::measures
