#pragma once

#include <QString>

namespace data {

/// The statement that ran last, on any connection; of a batch that failed the one that did. For who has to
/// tell what failed.
[[nodiscard]] QString& lastStatement();

}  // namespace data
