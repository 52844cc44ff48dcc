#include <QDir>
#include <QStandardPaths>
#include <cstdlib>

#include "platform/files/drives.h"

using namespace Qt::StringLiterals;

namespace files {

QString driveFolder(QChar letter) {
  const QByteArray variable = QByteArray("ZARIM_DRIVE_") + letter.toUpper().toLatin1();
  return qEnvironmentVariable(variable.constData());
}

void standForDriveC(const QString& folder) { ::_wputenv_s(L"ZARIM_DRIVE_C", folder.toStdWString().c_str()); }

QString profileFolder() {
  const QString system = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
  return QDir::fromNativeSeparators(qEnvironmentVariable("LOCALAPPDATA", system)) + u"/zarim"_s;
}

QString stateFolder() { return profileFolder(); }

}  // namespace files
