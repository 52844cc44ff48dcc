#pragma once

#include <QString>

namespace files {

/// The folder of what this program keeps of its user's own, such as drafts: zarim in the folder that
/// XDG_DATA_HOME names (~/.local/share), on Windows in the one that LOCALAPPDATA names. It need not be there.
[[nodiscard]] QString profileFolder();

}  // namespace files
