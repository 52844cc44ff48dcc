#include <qt_windows.h>

#include <QDir>
#include <thread>

#include "platform/files/process_lock.h"

namespace files {

// A file that nobody else may open, and that goes when it is closed.
std::unique_ptr<ProcessLock> ProcessLock::take(const QString& path, std::chrono::milliseconds patience) {
  constexpr std::chrono::milliseconds kNap{5};
  const std::wstring name = QDir::toNativeSeparators(path).toStdWString();
  for (auto left = patience;; left -= kNap) {
    const HANDLE handle = ::CreateFileW(name.c_str(), GENERIC_READ | GENERIC_WRITE | DELETE, 0, nullptr,
                                        OPEN_ALWAYS, FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (handle != INVALID_HANDLE_VALUE)
      return std::unique_ptr<ProcessLock>(new ProcessLock(path, reinterpret_cast<qintptr>(handle)));
    // A file that is being closed can't be opened either.
    const DWORD fault = ::GetLastError();
    if ((fault != ERROR_SHARING_VIOLATION && fault != ERROR_ACCESS_DENIED) || left <= kNap) return nullptr;
    std::this_thread::sleep_for(kNap);
  }
}

ProcessLock::~ProcessLock() { ::CloseHandle(reinterpret_cast<HANDLE>(handle_)); }

// Nobody can remove a file that is open so.
bool ProcessLock::holds() const { return true; }

}  // namespace files
