#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// Files by the paths that the program knows. A path that starts with a drive letter ("c:\zarim\config\x.ini")
// is found under the folder that stands for that drive (drives.h), without regard to case, with either slash;
// any other path is taken as it stands.
namespace files {

/// The path on this machine. A part that exists in another case is taken as it is on disk; what does not
/// exist keeps the case that was asked for. It stays inside the folder of its drive: ".." stops there, and a
/// link that leads out of it raises 70. Raises 52 on a path with a NUL. An empty path stays empty.
[[nodiscard]] QString resolve(const QString& path);

/// Whether a regular file is there, inside the folder of its drive. An empty path is no file.
[[nodiscard]] bool exists(const QString& path);

/// Removes a file; raises 53 if it is not there, 70 or 75 if it can't be removed.
void remove(const QString& path);

/// Removes it if it is there; another program may be quicker.
void removeIfThere(const QString& path);

/// Gives a whole file the name of another, which it replaces; both in one folder. Errors as of write.
void replace(const QString& from, const QString& path);

/// Whole content. Raises 53 (no file), 76 (no folder), 70 (no right), 75 (any other fault). Like append it
/// opens regular files alone: a pipe or a device, which could hold the program for good, raises 75.
[[nodiscard]] QByteArray readAll(const QString& path);

/// Lines of a text file without their line ends (CR LF, LF or CR). The text is UTF-8 with or without a mark
/// when it is valid UTF-8, else Windows-1252. A final line end makes no further line.
[[nodiscard]] QStringList readLines(const QString& path);

/// Appends bytes, making the file if it is not there. Raises 76, 70, 61 (disk full) or 75. A file that this
/// call began and could not write is removed.
void append(const QString& path, const QByteArray& bytes);

/// Who may read a file, its user aside.
enum class Readers { AsOthers, Nobody };

/// Replaces the content; same errors. Nobody is for a file with passwords.
void write(const QString& path, const QByteArray& bytes, Readers readers = Readers::AsOthers);

/// Text in the encoding that the program's HTML declares, ISO-8859-1: a character outside it becomes a
/// decimal numeric character reference, so that nothing is lost.
[[nodiscard]] QByteArray toHtmlLatin1(const QString& text);

}  // namespace files
