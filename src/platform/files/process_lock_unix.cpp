#include "platform/files/process_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <thread>
#include <utility>

namespace files {

struct ProcessLock::File {
  QByteArray path;
  int descriptor = -1;

  explicit File(const QString& name) : path(QFile::encodeName(name)) {}
  ~File() { close(); }
  File(const File&) = delete;
  File& operator=(const File&) = delete;

  void close() {
    if (descriptor >= 0) ::close(std::exchange(descriptor, -1));
  }
  bool open() {
    constexpr mode_t kOwners = 0600;
    descriptor = ::open(path.constData(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, kOwners);
    return descriptor >= 0;
  }
  /// Whether the path still leads to the open file.
  [[nodiscard]] bool isInPlace() const {
    struct stat mine {};
    struct stat there {};
    return ::fstat(descriptor, &mine) == 0 && ::stat(path.constData(), &there) == 0 &&
           mine.st_dev == there.st_dev && mine.st_ino == there.st_ino;
  }
};

std::unique_ptr<ProcessLock> ProcessLock::take(const QString& path, std::chrono::milliseconds patience) {
  constexpr std::chrono::milliseconds kNap{5};
  auto file = std::make_unique<File>(path);
  for (auto left = patience;; left -= kNap) {
    if (!file->open()) return nullptr;
    // Who had it removes the file before he lets go of it.
    if (::flock(file->descriptor, LOCK_EX | LOCK_NB) == 0 && file->isInPlace())
      return std::unique_ptr<ProcessLock>(new ProcessLock(std::move(file)));
    file->close();
    if (left <= kNap) return nullptr;
    std::this_thread::sleep_for(kNap);
  }
}

ProcessLock::~ProcessLock() {
  if (file_->isInPlace()) ::unlink(file_->path.constData());
}

bool ProcessLock::holds() const { return file_->isInPlace(); }

ProcessLock::ProcessLock(std::unique_ptr<File> file) : file_(std::move(file)) {}

}  // namespace files
