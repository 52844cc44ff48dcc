#pragma once

#include <QEventLoop>

namespace web {

inline constexpr int kAnswerTimeout = 30'000;  // milliseconds

/// Waits for pictures until somebody quits the loop or the time is over. The user's keys and clicks are
/// kept for afterwards, and so is the closing of a window: a screen that closed here would take its pane away
/// from under the waiting routine.
void waitIn(QEventLoop& loop, int milliseconds = kAnswerTimeout);

}  // namespace web
