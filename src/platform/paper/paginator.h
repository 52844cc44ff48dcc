#pragma once

#include <vector>

// Where pages end, whatever is laid out and on whatever device: all heights are of one endless page.
namespace paper {

/// A part of the endless page, from its top to its bottom.
struct Strip {
  double top = 0, bottom = 0;
  [[nodiscard]] double height() const { return bottom - top; }
};

/// What stands on one page whenever it fits on one: a paragraph, a row.
struct Piece {
  Strip strip;
  bool keepWithNext = false;  ///< stands on the page of the piece after it
  Strip head = {};            ///< titles that a page which begins here repeats
  /// Where one that is higher than a page is cut, if there is such a place; ascending.
  std::vector<double> cuts = {};
};

struct Page {
  Strip head;  ///< repeated titles; empty for none
  Strip body;
};

/// The pages of pieces that follow each other. One that is higher than a page begins on a page of its own;
/// what comes after it goes on where its last part ends.
[[nodiscard]] std::vector<Page> paginate(const std::vector<Piece>& pieces, double pageHeight);

}  // namespace paper
