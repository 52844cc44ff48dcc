#include "platform/files/drives.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace files {

QString driveFolder(QChar letter) {
  const QByteArray variable = QByteArray("ZARIM_DRIVE_") + letter.toUpper().toLatin1();
  QString named = qEnvironmentVariable(variable.constData());
  if (!named.isEmpty()) return named;
  const QString name = u"drive_"_s + letter.toLower();
  QString machine = u"/etc/zarim/"_s + name;
  if (const QFileInfo there(machine); there.exists() || there.isSymLink()) return machine;
  const QString own = profileFolder() + u'/' + name;
  return QFileInfo(own).isDir() ? own : QString();
}

void standForDriveC(const QString& folder) { qputenv("ZARIM_DRIVE_C", folder.toUtf8()); }

QString profileFolder() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/zarim"_s;
}

QString stateFolder() {
  QString named = qEnvironmentVariable("XDG_STATE_HOME");
  return (named.isEmpty() ? QDir::homePath() + u"/.local/state"_s : named) + u"/zarim"_s;
}

}  // namespace files
