#pragma once

#include <QFile>

namespace files {

/// Opens a regular file to read, or with QIODevice::Append to write at its end, making it if it is not there.
/// Anything else, such as a pipe, is refused without waiting for its other end. Returns 0, or the system's
/// number of the error.
[[nodiscard]] int openRegular(QFile& file, const QString& path, QIODevice::OpenMode mode);

/// The system's number (errno's) of what the operation just before has failed of.
[[nodiscard]] int lastFault();

/// Whether another program has a file open so that it can't be replaced or removed without harm: on Windows
/// one that it shares with nobody, elsewhere one that it has locked. False where there is no file.
[[nodiscard]] bool isHeld(const QString& path);

/// From here on, files that this program makes can't be read by users outside their group.
void keepFromOthers();

/// Whether users who are neither its owner nor of its group may read a file of this machine; where the system
/// has no such rights nobody may.
[[nodiscard]] bool othersMayRead(const QString& path);

}  // namespace files
