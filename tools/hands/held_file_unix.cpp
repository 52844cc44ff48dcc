#include <fcntl.h>

#include "hands/held_file.h"

namespace hands {

HeldFile::HeldFile(const QString& path) : file_(path) {
  struct flock whole {};
  whole.l_type = F_WRLCK;
  whole.l_whence = SEEK_SET;
  holds_ = file_.open(QIODevice::ReadWrite | QIODevice::ExistingOnly) &&
           ::fcntl(file_.handle(), F_OFD_SETLK, &whole) == 0;
}

HeldFile::~HeldFile() = default;

}  // namespace hands
