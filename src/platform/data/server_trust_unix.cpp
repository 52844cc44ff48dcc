#include "platform/data/server_trust.h"

#include "platform/data/odbc_string.h"
#include "platform/files/paths.h"
#include "platform/values/runtime_error.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

constexpr char kVariable[] = "FREETDSCONF";

}  // namespace

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
  QStringList pairs;
  for (const QString& pair : connectionString.split(u';', Qt::SkipEmptyParts)) {
    const QString key = pair.section(u'=', 0, 0).trimmed().toLower();
    if (key != u"server" && key != u"port" && key != u"cafile" && key != u"encryption") pairs += pair;
  }
  string_ = (pairs << u"Servername=zarim"_s).join(u';');
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
