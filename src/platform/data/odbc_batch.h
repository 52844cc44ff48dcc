#pragma once

#include <QString>
#include <span>

#include "platform/data/one_statement.h"

// Several statements as the server takes them in one request.
namespace data {

/// How many statements from the first on can go in one request: a statement that could swallow or spoil those
/// around it, by a quote without its pair, goes alone, so that it fails as it would by itself.
[[nodiscard]] std::size_t togetherInOneRequest(std::span<const ReadStatement> statements);

/// The text of the request, one statement a line. Statements of which only the first row is wanted stand
/// between limits; whole results, and statements that go alone, stand outside them. liftsLimit: a limit may
/// have been left by a request that failed, and goes first.
[[nodiscard]] QString requestText(std::span<const ReadStatement> statements, bool liftsLimit);

}  // namespace data
