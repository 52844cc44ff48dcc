#include "platform/files/regular_file.h"

#include <qt_windows.h>

#include <QDir>
#include <QFileInfo>
#include <cerrno>
#include <system_error>

namespace files {

int openRegular(QFile& file, const QString& path, QIODevice::OpenMode mode) {
  const QFileInfo info(path);
  if (info.exists() && !info.isFile()) return EINVAL;
  file.setFileName(path);
  return file.open(mode) ? 0 : lastFault();
}

int lastFault() {
  const std::error_code fault(static_cast<int>(::GetLastError()), std::system_category());
  return fault.default_error_condition().value();
}

bool isHeld(const QString& path) {
  constexpr DWORD kAllMayShare = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const std::wstring name = QDir::toNativeSeparators(path).toStdWString();
  const HANDLE handle = ::CreateFileW(name.c_str(), GENERIC_WRITE | DELETE, kAllMayShare, nullptr,
                                      OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle != INVALID_HANDLE_VALUE) {
    ::CloseHandle(handle);
    return false;
  }
  const DWORD fault = ::GetLastError();
  return fault == ERROR_SHARING_VIOLATION || fault == ERROR_LOCK_VIOLATION || fault == ERROR_USER_MAPPED_FILE;
}

// A folder's rights hold for what is made in it.
void keepFromOthers() {}

bool othersMayRead(const QString&) { return false; }

}  // namespace files
