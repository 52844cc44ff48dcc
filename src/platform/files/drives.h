#pragma once

#include <QChar>
#include <QString>

namespace files {

/// The folder that stands for a drive ('c' or 'C'), empty where none does. In this order: the one that the
/// environment variable ZARIM_DRIVE_C (or _D, …) names; /etc/zarim/drive_c, a folder or a link of the
/// machine's administrator; drive_c in the user's own data folder for this program, where the sample company
/// is put. One of the first two that leads nowhere still counts, and its path is given: a share that isn't
/// mounted must not open another company.
[[nodiscard]] QString driveFolder(QChar letter);

/// Lets a folder stand for drive C, in this process and in those that it starts: whatever its letters, which
/// on Windows qputenv takes in the machine's code page.
void standForDriveC(const QString& folder);

/// The folder of what this program keeps of its user's own, such as drafts: zarim in the folder that
/// XDG_DATA_HOME names (~/.local/share), on Windows in the one that LOCALAPPDATA names. It need not be there.
[[nodiscard]] QString profileFolder();

/// The folder of what it notes for its user's support: zarim in XDG_STATE_HOME (~/.local/state), on Windows
/// the same as above.
[[nodiscard]] QString stateFolder();

}  // namespace files
