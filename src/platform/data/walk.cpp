#include "platform/data/walk.h"

namespace data {

namespace {

constexpr qint64 kFirstReport = 1000, kNextReport = 100;  // milliseconds

Walk::Watcher watching = nullptr;

}  // namespace

Walk::Walk() : due_(kFirstReport) { clock_.start(); }

Walk::~Walk() {
  if (watching && due_ != kFirstReport) watching(0, 0);
}

void Walk::done(qsizetype count, qsizetype of) {
  if (!watching || count >= of) return;
  const qint64 elapsed = clock_.elapsed();
  if (elapsed < due_) return;
  due_ = elapsed + kNextReport;
  watching(count, of);
}

void Walk::setWatcher(Watcher watcher) { watching = watcher; }

}  // namespace data
