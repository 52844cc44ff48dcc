#pragma once

#include <QString>
#include <optional>

namespace data {

/// Whether a string names the embedded file.
[[nodiscard]] bool isEmbeddedString(const QString& connectionString);

/// Whether a string names the driver of SQL Server.
[[nodiscard]] bool isServerString(const QString& connectionString);

/// The value of a key of a connection string, whatever its case; nothing without it.
[[nodiscard]] std::optional<QString> keyValue(const QString& connectionString, QStringView key);

/// The string that goes to the driver manager: the given one with what the driver needs put after it.
/// portOfEnvironment is what TDSPORT holds; timeout, in seconds, is how long a statement may go unanswered.
[[nodiscard]] QString odbcString(const QString& connectionString, const QString& portOfEnvironment,
                                 int timeout);

/// How long the login may take, in seconds: what the string says of a statement ("Timeout=6"), else timeout.
[[nodiscard]] int loginTimeout(const QString& connectionString, int timeout);

}  // namespace data
