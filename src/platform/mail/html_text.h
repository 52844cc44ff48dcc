#pragma once

#include <QString>

namespace mail {

/// What an HTML document says, as lines of plain text: cells of a row beside each other, a line for each row
/// and paragraph. Takes any text, and loads nothing that it names.
[[nodiscard]] QString textOfHtml(const QString& html);

}  // namespace mail
