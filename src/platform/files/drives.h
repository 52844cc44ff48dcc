#pragma once

#include <QChar>
#include <QString>

namespace files {

/// The folder that stands for a drive ('c' or 'C'), empty where none does. In this order: the one that the
/// environment variable ZARIM_DRIVE_C (or _D, …) names; /etc/zarim/drive_c, a folder or a link of the
/// machine's administrator; drive_c in the user's own data folder for this program, where the sample company
/// is put.
[[nodiscard]] QString driveFolder(QChar letter);

}  // namespace files
