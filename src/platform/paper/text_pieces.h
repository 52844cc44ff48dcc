#pragma once

#include <QTextBlock>
#include <QTextDocument>
#include <QTextTable>
#include <functional>
#include <vector>

#include "platform/paper/paginator.h"

namespace paper {

/// Property of a block's format: it stands on the page of what comes after it.
inline constexpr int kKeepWithNext = QTextFormat::UserProperty;

/// Calls one of them for each part of a text, in their order. An empty block beside a table is none: the
/// layout hides it.
void forEachPart(const QTextDocument& text, const std::function<void(const QTextBlock&)>& block,
                 const std::function<void(QTextTable&)>& table);

/// The rows and paragraphs of a laid-out document, with what keeps them together on paper: a table that is
/// lower than a quarter of a page stands whole, the first row of any other stands with its second, titles
/// with the row after them, the last piece with the one before it. Empty paragraphs at the end are none.
[[nodiscard]] std::vector<Piece> piecesOf(const QTextDocument& text, double pageHeight);

}  // namespace paper
