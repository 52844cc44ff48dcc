#pragma once

#include <QString>

namespace data {

/// Which database a connection string leads to, so that two can be told apart: the path of the embedded file,
/// links followed, or the server and the name of the database there, in small letters.
[[nodiscard]] QString placeOf(const QString& connectionString);

}  // namespace data
