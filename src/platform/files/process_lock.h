#pragma once

#include <QString>
#include <chrono>
#include <memory>

namespace files {

/// A lock by a file that is there as long as the lock is held. It goes with its process, however that ends:
/// the system holds it, not a number in the file that another process may get one day.
class ProcessLock {
 public:
  /// nullptr where another process (or another lock of this one) holds it for longer than `patience`, or
  /// where no such file can be made.
  [[nodiscard]] static std::unique_ptr<ProcessLock> take(const QString& path,
                                                         std::chrono::milliseconds patience);
  /// Removes the file.
  ~ProcessLock();
  ProcessLock(const ProcessLock&) = delete;
  ProcessLock& operator=(const ProcessLock&) = delete;

  /// Whether its file is still in its place: one that was removed by hand locks nobody out.
  [[nodiscard]] bool holds() const;

 private:
  ProcessLock(const QString& path, qintptr handle) : path_(path), handle_(handle) {}

  QString path_;
  qintptr handle_;  ///< the system's, of the open file
};

}  // namespace files
