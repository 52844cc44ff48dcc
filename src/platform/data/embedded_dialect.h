#pragma once

#include <QString>
#include <optional>

// The few words of the server's dialect that the SQLite library does not know.
namespace data {

/// The name of the result's column where a statement selects `@@identity` and nothing else
/// ("MaxPropCmrc" of "SELECT @@identity as 'MaxPropCmrc'"); nothing for any other statement.
[[nodiscard]] std::optional<QString> identityColumn(const QString& sql);

/// The statement with a FROM after a DELETE that has none.
[[nodiscard]] QString toEmbeddedDialect(const QString& sql);

}  // namespace data
