#include <QDir>

#include "platform/files/profile.h"

namespace files {

QString profileFolder() {
  return QDir::fromNativeSeparators(qEnvironmentVariable("LOCALAPPDATA")) + QStringLiteral("/zarim");
}

}  // namespace files
