#pragma once

#include <QString>
#include <cstddef>

namespace data {

/// How much of a result is wanted: a lookup looks at the first row alone, so no other one needs to travel.
enum class Rows { All, First };

struct Statement {
  QString sql;
  Rows rows = Rows::All;
};

/// Most statements of one request.
inline constexpr std::size_t kFullBatch = 2000;

}  // namespace data
