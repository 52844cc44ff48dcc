#include <QStandardPaths>

#include "platform/files/profile.h"

namespace files {

QString profileFolder() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/zarim");
}

}  // namespace files
