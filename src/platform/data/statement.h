#pragma once

#include <QString>
#include <cstddef>

#include "platform/values/runtime_error.h"

namespace data {

/// How much of a result is wanted: a lookup looks at the first row alone, so no other one needs to travel.
enum class Rows { All, First };

struct Statement {
  QString sql;
  Rows rows = Rows::All;
};

/// Most statements of one request.
inline constexpr std::size_t kFullBatch = 2000;

/// What a statement of a batch raises: which one it was, from 0 in the order given.
class BatchError : public values::RuntimeError {
 public:
  BatchError(const values::RuntimeError& error, qsizetype statement)
      : RuntimeError(error), statement_(statement) {}
  [[nodiscard]] qsizetype statement() const { return statement_; }

 private:
  qsizetype statement_;
};

}  // namespace data
