#pragma once

#include <QString>

// Files by the paths that the program knows. A path that starts with a drive letter ("c:\zarim\config\x.ini")
// is found under the folder that stands for that drive (drives.h), without regard to case, with either slash;
// any other path is taken as it stands.
namespace files {

/// The path on this machine. A part that exists in another case is taken as it is on disk; what does not
/// exist keeps the case that was asked for. It stays inside the folder of its drive: ".." stops there, and a
/// link that leads out of it raises 70. Raises 52 on a path with a NUL. An empty path stays empty.
[[nodiscard]] QString resolve(const QString& path);

/// A path of this machine, such as a dialog gives, in a form that is taken as it stands: on Windows it may
/// begin with the letter of a drive that a folder stands for.
[[nodiscard]] QString ofThisMachine(const QString& path);

/// Whether a regular file is there, inside the folder of its drive. An empty path is no file, nor is one that
/// resolve refuses.
[[nodiscard]] bool exists(const QString& path);

}  // namespace files
