#pragma once

#include <QString>

namespace data {

/// Whether a string names the driver of SQL Server.
[[nodiscard]] bool isServerString(const QString& connectionString);

/// The string that goes to the driver manager: the given one with what the driver needs put behind it.
/// portOfEnvironment is what TDSPORT holds; timeout, in seconds, is how long a statement may go unanswered.
[[nodiscard]] QString odbcString(const QString& connectionString, const QString& portOfEnvironment,
                                 int timeout);

}  // namespace data
