#pragma once

#include <QString>

namespace data {

/// The statement that ran last, on any connection; of a batch that failed the one that did. For the
/// report of an error.
[[nodiscard]] QString& lastStatement();

}  // namespace data
