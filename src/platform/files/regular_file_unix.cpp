#include "platform/files/regular_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFileInfo>
#include <cerrno>

namespace files {

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

int lastFault() { return errno; }

bool isHeld(const QString& path) {
  QFile file;
  if (openRegular(file, path, QIODevice::ReadOnly) != 0) return false;
  // Word processors lock the document that they edit, from its first byte on or as a whole.
  struct flock whole {};
  whole.l_type = F_WRLCK;
  whole.l_whence = SEEK_SET;
  return ::fcntl(file.handle(), F_OFD_GETLK, &whole) == 0 && whole.l_type != F_UNLCK;
}

void keepFromOthers() {
  constexpr mode_t kOthers = 027;
  ::umask(kOthers | ::umask(kOthers));
}

bool othersMayRead(const QString& path) { return QFileInfo(path).permission(QFile::ReadOther); }

}  // namespace files
