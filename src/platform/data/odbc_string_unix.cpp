#include "platform/data/odbc_string.h"

using namespace Qt::StringLiterals;

namespace data {

QString odbcString(const QString& connectionString, const QString& portOfEnvironment, int timeout) {
  QString text = connectionString;
  if (!text.endsWith(u';')) text += u';';  // Qt adds a NUL to the last value
  if (!isServerString(text)) return text;
  // This driver has no default port, hangs on a silent server unless the version is pinned, and takes accents
  // by the C locale unless set otherwise.
  // An instance tells its port itself; a name of the driver's settings has one there.
  const bool hasPort =
      keyValue(text, u"server").value_or(QString()).contains(u'\\') || keyValue(text, u"Servername");
  if (portOfEnvironment.isEmpty() && !keyValue(text, u"port") && !hasPort) text += "port=1433;"_L1;
  if (!keyValue(text, u"TDS_Version")) text += "TDS_Version=7.4;"_L1;
  if (!keyValue(text, u"Timeout")) text += u"Timeout=%1;"_s.arg(timeout);
  if (!keyValue(text, u"ClientCharset")) text += "ClientCharset=UTF-8;"_L1;
  return text;
}

}  // namespace data
