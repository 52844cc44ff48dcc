#include "platform/data/odbc_string.h"

#include <QFileInfo>

#include "platform/files/paths.h"

using namespace Qt::StringLiterals;

namespace data {

std::optional<QString> keyValue(const QString& connectionString, QStringView key) {
  for (const QString& pair : connectionString.split(u';')) {
    const qsizetype equals = pair.indexOf(u'=');
    if (equals >= 0 && QStringView(pair).first(equals).trimmed().compare(key, Qt::CaseInsensitive) == 0)
      return pair.sliced(equals + 1).trimmed();
  }
  return std::nullopt;
}

QString withPair(const QString& connectionString, const QStringList& without, const QString& pair) {
  QStringList pairs = connectionString.split(u';', Qt::SkipEmptyParts);
  pairs.removeIf(
      [&](const QString& one) { return without.contains(one.section(u'=', 0, 0).trimmed().toLower()); });
  return (pairs << pair).join(u';');
}

bool isEmbeddedString(const QString& connectionString) {
  return keyValue(connectionString, u"server")
             .value_or(QString())
             .compare(u"(embutido)", Qt::CaseInsensitive) == 0;
}

bool isServerString(const QString& connectionString) {
  return connectionString.contains(u"{SQL Server}", Qt::CaseInsensitive);
}

QString placeOf(const QString& connectionString) {
  const auto value = [&](QStringView key) { return keyValue(connectionString, key).value_or(QString()); };
  if (isEmbeddedString(connectionString))
    return QFileInfo(files::resolve(value(u"database"))).canonicalFilePath();
  QStringList parts;
  // Drivers other than the server's name the same by other keys.
  for (const QStringView key : {u"dsn", u"server", u"port", u"database", u"dbname", u"dbq"})
    parts << value(key).toLower();
  return parts.join(u'^');
}

}  // namespace data
