#pragma once

#include <QEventLoop>
#include <QTimer>

namespace web {

inline constexpr int kAnswerTimeout = 30'000;  // milliseconds

/// Waits for the engine until somebody quits the loop or the time is over. The user's keys and clicks are
/// kept for afterwards: a screen that closed here would take its pane away from under the waiting routine.
inline void waitIn(QEventLoop& loop, int milliseconds = kAnswerTimeout) {
  QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
  loop.exec(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace web
