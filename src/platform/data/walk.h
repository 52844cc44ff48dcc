#pragma once

#include <QElapsedTimer>

namespace data {

/// Work on many rows or statements, one after the other: after a second it says how far it is.
class Walk {
 public:
  /// Gets how many are done of how many; 0 of 0 when the work is over. It may paint, but neither raises nor
  /// handles events: the work stands in the middle of an action.
  using Watcher = void (*)(qsizetype done, qsizetype of);

  Walk() { clock_.start(); }
  ~Walk();
  Walk(const Walk&) = delete;
  Walk& operator=(const Walk&) = delete;

  /// So many are done, before the next one begins.
  void done(qsizetype count, qsizetype of);

  /// None when `watcher` is null.
  static void setWatcher(Watcher watcher) { watcher_ = watcher; }

 private:
  static constexpr qint64 kFirstReport = 1000, kNextReport = 100;  // milliseconds
  static inline Watcher watcher_ = nullptr;
  QElapsedTimer clock_;
  qint64 due_ = kFirstReport;  ///< milliseconds from the start to the next report
};

}  // namespace data
