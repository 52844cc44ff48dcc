#include "platform/files/drives.h"

#include "platform/files/profile.h"

namespace files {

QString driveFolder(QChar letter) {
  const QByteArray variable = QByteArray("ZARIM_DRIVE_") + letter.toUpper().toLatin1();
  return qEnvironmentVariable(variable.constData());
}

QString stateFolder() { return profileFolder(); }

}  // namespace files
