#include "platform/paper/paginator.h"

#include <algorithm>

namespace paper {

namespace {

/// Where a piece is cut that goes on below a page's end.
double cutOf(const Piece& piece, double pageTop, double pageEnd) {
  const auto after = std::upper_bound(piece.cuts.begin(), piece.cuts.end(), pageEnd);
  return after == piece.cuts.begin() || *(after - 1) <= pageTop ? pageEnd : *(after - 1);
}

}  // namespace

std::vector<Page> paginate(const std::vector<Piece>& pieces, double pageHeight) {
  std::vector<Page> pages;
  if (pieces.empty()) return {{}};
  std::size_t first = 0;  // of the page
  Page page{{}, {pieces.front().strip.top, 0}};
  const auto turn = [&](double at, const Strip& head) {
    page.body.bottom = at;
    pages.push_back(page);
    page = {head, {at, 0}};
  };
  for (std::size_t i = 0; i < pieces.size();) {
    const Strip& strip = pieces[i].strip;
    const double end = page.body.top + pageHeight - page.head.height();
    if (strip.bottom <= end) {
      ++i;
    } else if (i > first) {
      std::size_t start = i;
      while (start > first && pieces[start - 1].keepWithNext) --start;
      if (start == first) start = i;
      turn(pieces[start].strip.top, pieces[start].head);
      first = i = start;
    } else {
      turn(cutOf(pieces[i], page.body.top, end), {});
    }
  }
  page.body.bottom = pieces.back().strip.bottom;
  pages.push_back(page);
  return pages;
}

}  // namespace paper
