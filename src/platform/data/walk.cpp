#include "platform/data/walk.h"

#include <utility>
#include <vector>

namespace data {

namespace {

constexpr qint64 kFirstReport = 1000, kNextReport = 100;  // milliseconds

Walk::Watcher watching = nullptr;

int underWay = 0;

std::vector<std::shared_ptr<void>>& kept() {
  static std::vector<std::shared_ptr<void>> all;
  return all;
}

}  // namespace

Walk::Walk() : due_(kFirstReport) {
  clock_.start();
  ++underWay;
}

Walk::~Walk() {
  if (--underWay == 0) kept().clear();
  if (watching && due_ != kFirstReport) watching(0, 0);
}

void Walk::done(qsizetype count, qsizetype of) {
  if (!watching || count >= of) return;
  const qint64 elapsed = clock_.elapsed();
  if (elapsed < due_) return;
  due_ = elapsed + kNextReport;
  watching(count, of);
}

bool Walk::isUnderWay() { return underWay > 0; }

void Walk::keep(std::shared_ptr<void> what) { kept().push_back(std::move(what)); }

void Walk::setWatcher(Watcher watcher) { watching = watcher; }

}  // namespace data
