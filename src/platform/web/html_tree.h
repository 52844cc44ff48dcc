#pragma once

#include <QByteArray>
#include <QString>
#include <utility>
#include <vector>

namespace web {

/// A piece of text, or an element with what it holds.
struct HtmlNode {
  QString tag;                                          ///< lower case; empty for a text
  QString text;                                         ///< of a text, as it is written: with its references
  std::vector<std::pair<QString, QString>> attributes;  ///< names in lower case
  std::vector<int> children;                            ///< in HtmlTree::nodes

  /// Trimmed; empty where there is none.
  [[nodiscard]] QString attribute(QStringView name) const;
  [[nodiscard]] bool has(QStringView name) const;
};

/// A document as browsers read it: what is left open is closed, what crosses is taken apart, what stands
/// between the cells of a table goes before it. However it nests, the tree is not deeper than a routine can
/// follow.
struct HtmlTree {
  std::vector<HtmlNode> nodes;  ///< the first holds all
  QString styles;               ///< text of the style sheets
  /// Whether its type asks for the lines of today's browsers; without one they are as high as their letters.
  bool standardLines = false;
};

/// Reads bytes in windows-1252.
[[nodiscard]] HtmlTree readHtml(const QByteArray& html);

}  // namespace web
