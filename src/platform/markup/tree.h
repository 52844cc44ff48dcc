#pragma once

#include <tidy.h>

#include <QByteArray>
#include <QString>
#include <memory>
#include <vector>

namespace markup {

enum class Encoding { Windows1252, Utf8 };

/// An HTML document as browsers read old markup: what is left open is closed, what crosses is taken apart,
/// what stands between the cells of a table goes before it.
class Tree {
 public:
  Tree(const QByteArray& html, Encoding encoding);

  /// False where the document nests deeper than a stack holds or grows out of all bounds; the tree then ends
  /// there.
  [[nodiscard]] bool isWhole() const;
  [[nodiscard]] TidyNode root() const;
  /// Of a text or a style sheet.
  [[nodiscard]] QString textOf(TidyNode node) const;

 private:
  struct Document;
  std::shared_ptr<Document> document_;
};

[[nodiscard]] std::vector<TidyNode> childrenOf(TidyNode node);
/// Trimmed; empty where there is none.
[[nodiscard]] QString attribute(TidyNode node, TidyAttrId name);

}  // namespace markup
