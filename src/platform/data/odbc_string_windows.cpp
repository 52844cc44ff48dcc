#include "platform/data/odbc_string.h"

using namespace Qt::StringLiterals;

namespace data {

QString odbcString(const QString& connectionString, const QString&, int) {
  return connectionString.endsWith(u';') ? connectionString
                                         : connectionString + u';';  // Qt adds a NUL to the last value
}

// This driver looks at the certificate by the system's own authorities wherever the line is encrypted.
ServerTrust::ServerTrust(const QString& connectionString)
    : string_(keyValue(connectionString, u"CAFile")
                  ? withPair(connectionString, {u"cafile"_s}, u"Encrypt=yes"_s)
                  : connectionString) {}

ServerTrust::~ServerTrust() = default;

}  // namespace data
