#pragma once

#include <QString>

namespace forms {

/// A tip that shows a text as it is: one that looks like HTML would be read so, with the files that it names.
[[nodiscard]] QString asTip(const QString& text);

}  // namespace forms
