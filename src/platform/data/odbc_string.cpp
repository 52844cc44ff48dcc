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

int loginTimeout(const QString& connectionString, int timeout) {
  bool good = false;
  const int own = keyValue(connectionString, u"Timeout").value_or(QString()).toInt(&good);
  return good && own > 0 ? own : timeout;
}

}  // namespace data
