#pragma once

#include <QTextDocument>
#include <vector>

#include "platform/paper/paginator.h"

namespace paper {

/// The rows and paragraphs of a laid-out document, with what keeps them together on paper: a table that is
/// lower than a quarter of a page stands whole, the first row of any other stands with its second, the last
/// piece with the one before it.
[[nodiscard]] std::vector<Piece> piecesOf(const QTextDocument& text, double pageHeight);

}  // namespace paper
