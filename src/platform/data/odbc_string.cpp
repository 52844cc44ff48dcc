#include "platform/data/odbc_string.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace data {

namespace {

bool hasKey(const QString& connectionString, QStringView key) {
  for (const QString& pair : connectionString.split(u';'))
    if (QStringView(pair)
            .first(qMax<qsizetype>(0, pair.indexOf(u'=')))
            .trimmed()
            .compare(key, Qt::CaseInsensitive) == 0)
      return true;
  return false;
}

}  // namespace

bool isServerString(const QString& connectionString) {
  return connectionString.contains("{SQL Server}"_L1, Qt::CaseInsensitive);
}

QString odbcString(const QString& connectionString, const QString& portOfEnvironment, int timeout) {
  QString text = connectionString;
  if (!text.endsWith(u';')) text += u';';  // Qt adds a NUL to the last value
#ifndef Q_OS_WIN
  if (isServerString(text)) {
    // This driver has no default port, hangs on a silent server unless the version is pinned, and takes
    // accents by the C locale unless told otherwise.
    if (portOfEnvironment.isEmpty() && !hasKey(text, u"port")) text += "port=1433;"_L1;
    if (!hasKey(text, u"TDS_Version")) text += "TDS_Version=7.4;"_L1;
    if (!hasKey(text, u"Timeout")) text += u"Timeout=%1;"_s.arg(timeout);
    if (!hasKey(text, u"ClientCharset")) text += "ClientCharset=UTF-8;"_L1;
  }
#endif
  return text;
}

}  // namespace data
