#include "platform/data/odbc_string.h"

#include <QStringList>

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

bool isEmbeddedString(const QString& connectionString) {
  return keyValue(connectionString, u"server")
             .value_or(QString())
             .compare("(embutido)"_L1, Qt::CaseInsensitive) == 0;
}

bool isServerString(const QString& connectionString) {
  return connectionString.contains("{SQL Server}"_L1, Qt::CaseInsensitive);
}

QString odbcString(const QString& connectionString, [[maybe_unused]] const QString& portOfEnvironment,
                   [[maybe_unused]] int timeout) {
  QString text = connectionString;
  if (!text.endsWith(u';')) text += u';';  // Qt adds a NUL to the last value
#ifndef Q_OS_WIN
  if (isServerString(text)) {
    // This driver has no default port, hangs on a silent server unless the version is pinned, and takes
    // accents by the C locale unless set otherwise.
    // An instance tells its port itself; a name of the driver's settings has one there.
    const bool hasPort =
        keyValue(text, u"server").value_or(QString()).contains(u'\\') || keyValue(text, u"Servername");
    if (portOfEnvironment.isEmpty() && !keyValue(text, u"port") && !hasPort) text += "port=1433;"_L1;
    if (!keyValue(text, u"TDS_Version")) text += "TDS_Version=7.4;"_L1;
    if (!keyValue(text, u"Timeout")) text += u"Timeout=%1;"_s.arg(timeout);
    if (!keyValue(text, u"ClientCharset")) text += "ClientCharset=UTF-8;"_L1;
  }
#endif
  return text;
}

int loginTimeout(const QString& connectionString, int timeout) {
  bool good = false;
  const int own = keyValue(connectionString, u"Timeout").value_or(QString()).toInt(&good);
  return good && own > 0 ? own : timeout;
}

}  // namespace data
