#include "platform/data/walk.h"

namespace data {

Walk::~Walk() {
  if (watcher_ && due_ != kFirstReport) watcher_(0, 0);
}

void Walk::done(qsizetype count, qsizetype of) {
  if (!watcher_ || count >= of) return;
  const qint64 elapsed = clock_.elapsed();
  if (elapsed < due_) return;
  due_ = elapsed + kNextReport;
  watcher_(count, of);
}

}  // namespace data
