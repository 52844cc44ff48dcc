#include "platform/data/walk.h"

namespace data {

namespace {

Walk::Watcher watching = nullptr;

}  // namespace

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
