#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <functional>

// What is done with whole files, by the paths that the program knows (paths.h).
namespace files {

/// Asked in the main thread about a file that another program holds open and that is to be removed or
/// replaced; true tries again, false raises values::Cancelled. Without a question, and in other threads, such
/// a file raises 70.
void setHeldFileQuestion(std::function<bool(const QString& path)> question);

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

}  // namespace files
