#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <thread>

#include "platform/files/process_lock.h"

namespace files {

std::unique_ptr<ProcessLock> ProcessLock::take(const QString& path, std::chrono::milliseconds patience) {
  constexpr std::chrono::milliseconds kNap{5};
  constexpr mode_t kOwners = 0600;
  for (auto left = patience;; left -= kNap) {
    const int descriptor = ::open(QFile::encodeName(path).constData(),
                                  O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, kOwners);
    if (descriptor < 0) return nullptr;
    if (::flock(descriptor, LOCK_EX | LOCK_NB) == 0) {
      std::unique_ptr<ProcessLock> lock(new ProcessLock(path, descriptor));
      if (lock->holds()) return lock;  // else who had it has removed the file before he let go of it
    } else {
      ::close(descriptor);
    }
    if (left <= kNap) return nullptr;
    std::this_thread::sleep_for(kNap);
  }
}

ProcessLock::~ProcessLock() {
  if (holds()) ::unlink(QFile::encodeName(path_).constData());
  ::close(static_cast<int>(handle_));
}

/// Whether the path still leads to the open file.
bool ProcessLock::holds() const {
  struct stat mine {};
  struct stat there {};
  return ::fstat(static_cast<int>(handle_), &mine) == 0 &&
         ::stat(QFile::encodeName(path_).constData(), &there) == 0 && mine.st_dev == there.st_dev &&
         mine.st_ino == there.st_ino;
}

}  // namespace files
