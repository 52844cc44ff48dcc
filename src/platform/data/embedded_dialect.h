#pragma once

#include <QString>

#include "platform/data/one_statement.h"

namespace data {

/// A statement in the words of the SQLite library: a FROM after a DELETE that has none, and the library's
/// function for the `@@identity` that a statement selects.
[[nodiscard]] QString toEmbeddedDialect(const ReadStatement& statement);

}  // namespace data
