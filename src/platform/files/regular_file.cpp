#include "platform/files/regular_file.h"

#include <QFileInfo>
#include <cerrno>

#ifndef Q_OS_WIN
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace files {

#ifdef Q_OS_WIN

int openRegular(QFile& file, const QString& path, QIODevice::OpenMode mode) {
  const QFileInfo info(path);
  if (info.exists() && !info.isFile()) return EINVAL;
  file.setFileName(path);
  if (file.open(mode)) return 0;
  return file.error() == QFileDevice::PermissionsError ? EACCES : EIO;
}

void keepFromOthers() {}

bool othersMayRead(const QString&) { return false; }

#else

int openRegular(QFile& file, const QString& path, QIODevice::OpenMode mode) {
  const int access = mode.testFlag(QIODevice::Append) ? O_WRONLY | O_APPEND | O_CREAT : O_RDONLY;
  constexpr mode_t kLessTheMask = 0666;
  const int descriptor =
      ::open(QFile::encodeName(path).constData(), access | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, kLessTheMask);
  if (descriptor < 0) return errno;
  struct stat about {};
  const bool regular = ::fstat(descriptor, &about) == 0 && S_ISREG(about.st_mode);
  if (regular && file.open(descriptor, mode, QFileDevice::AutoCloseHandle)) return 0;
  ::close(descriptor);
  return EINVAL;
}

void keepFromOthers() {
  constexpr mode_t kOthers = 027;
  ::umask(kOthers | ::umask(kOthers));
}

bool othersMayRead(const QString& path) { return QFileInfo(path).permission(QFile::ReadOther); }

#endif

}  // namespace files
