#include <fcntl.h>
#include <io.h>
#include <qt_windows.h>

#include <QDir>

#include "hands/held_file.h"

namespace hands {

HeldFile::HeldFile(const QString& path) {
  const std::wstring name = QDir::toNativeSeparators(path).toStdWString();
  const HANDLE handle = ::CreateFileW(name.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                      OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return;
  const int descriptor = _open_osfhandle(reinterpret_cast<intptr_t>(handle), _O_RDWR);
  holds_ = file_.open(descriptor, QIODevice::ReadWrite, QFileDevice::AutoCloseHandle);
}

HeldFile::~HeldFile() = default;

}  // namespace hands
