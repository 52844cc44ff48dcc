#include "platform/data/odbc_string.h"
#include "platform/files/paths.h"
#include "platform/values/runtime_error.h"

using namespace Qt::StringLiterals;

namespace data {

static constexpr char kVariable[] = "FREETDSCONF";

QString odbcString(const QString& connectionString, const QString& portOfEnvironment, int timeout) {
  QString text = connectionString;
  if (!text.endsWith(u';')) text += u';';  // Qt adds a NUL to the last value
  if (!isServerString(text)) return text;
  // This driver has no default port, hangs on a silent server unless the version is pinned, and takes accents
  // by the C locale unless set otherwise.
  // An instance tells its port itself; a name of the driver's settings has one there.
  const bool hasPort =
      keyValue(text, u"server").value_or(QString()).contains(u'\\') || keyValue(text, u"Servername");
  if (portOfEnvironment.isEmpty() && !keyValue(text, u"port") && !hasPort) text += u"port=1433;"_s;
  if (!keyValue(text, u"TDS_Version")) text += u"TDS_Version=7.4;"_s;
  if (!keyValue(text, u"Timeout")) text += u"Timeout=%1;"_s.arg(timeout);
  if (!keyValue(text, u"ClientCharset")) text += u"ClientCharset=UTF-8;"_s;
  return text;
}

ServerTrust::ServerTrust(const QString& connectionString)
    : string_(connectionString), before_(qgetenv(kVariable)) {
  const auto authorities = keyValue(string_, u"CAFile");
  if (!authorities) return;
  const QString server = keyValue(string_, u"server").value_or(QString());
  const QString port = keyValue(string_, u"port").value_or(qEnvironmentVariable("TDSPORT", u"1433"_s));
  const QString instance = server.section(u'\\', 1);
  const QString file = *authorities == u"system" ? *authorities : files::resolve(*authorities);
  const QString text =
      u"[zarim]\nhost = %1\n%2\nencryption = require\nca file = %3\ncheck certificate hostname = yes\n"_s.arg(
          server.section(u'\\', 0, 0), instance.isEmpty() ? u"port = "_s + port : u"instance = "_s + instance,
          file);
  if (!settings_.open() || settings_.write(text.toUtf8()) < 0 || !settings_.flush())
    values::raise(values::kPathFileAccess, settings_.fileName());
  string_ = withPair(string_, {u"server"_s, u"port"_s, u"cafile"_s, u"encryption"_s}, u"Servername=zarim"_s);
  qputenv(kVariable, settings_.fileName().toLocal8Bit());
}

ServerTrust::~ServerTrust() {
  if (!settings_.isOpen()) return;
  if (before_.isEmpty())
    qunsetenv(kVariable);
  else
    qputenv(kVariable, before_);
}

}  // namespace data
