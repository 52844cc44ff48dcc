#pragma once

#include <QString>

// A file of what support asks for after a user's box: dated lines, at most 1 MB, one old file kept beside it.
namespace files {

/// From here on lines go into that file; its folder is made. An empty path ends it.
void logInto(const QString& path);
/// Where lines go; empty where they go nowhere.
[[nodiscard]] QString logPath();

/// Adds a line with date and time, and this process's number. A disk that takes none is no error.
void log(const QString& line);

}  // namespace files
