#include "platform/data/odbc_string.h"

namespace data {

QString odbcString(const QString& connectionString, const QString&, int) {
  return connectionString.endsWith(u';') ? connectionString
                                         : connectionString + u';';  // Qt adds a NUL to the last value
}

}  // namespace data
