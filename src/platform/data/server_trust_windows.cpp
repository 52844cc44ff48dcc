#include "platform/data/odbc_string.h"
#include "platform/data/server_trust.h"

namespace data {

// This driver looks at the certificate by the system's own authorities wherever the line is encrypted.
ServerTrust::ServerTrust(const QString& connectionString) : string_(connectionString) {
  if (!keyValue(string_, u"CAFile")) return;
  QStringList pairs;
  for (const QString& pair : connectionString.split(u';', Qt::SkipEmptyParts))
    if (pair.section(u'=', 0, 0).trimmed().compare(u"CAFile", Qt::CaseInsensitive) != 0) pairs += pair;
  string_ = (pairs << QStringLiteral("Encrypt=yes")).join(u';');
}

ServerTrust::~ServerTrust() = default;

}  // namespace data
