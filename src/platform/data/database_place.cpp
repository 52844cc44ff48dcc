#include "platform/data/database_place.h"

#include <QFileInfo>
#include <QStringList>

#include "platform/data/odbc_string.h"
#include "platform/files/paths.h"

using namespace Qt::StringLiterals;

namespace data {

QString placeOf(const QString& connectionString) {
  const auto value = [&](QStringView key) { return keyValue(connectionString, key).value_or(QString()); };
  if (isEmbeddedString(connectionString))
    return QFileInfo(files::resolve(value(u"database"))).canonicalFilePath();
  QStringList parts;
  // Drivers other than the server's name the same by other keys.
  for (const char16_t* key : {u"dsn", u"server", u"port", u"database", u"dbname", u"dbq"})
    parts << value(key).toLower();
  return parts.join(u'^');
}

}  // namespace data
