#include "platform/forms/modal_loops.h"

#include <QList>

#include "platform/forms/process.h"

namespace forms::modal {

namespace {

QList<QEventLoop*> loops;
bool leaving = false;
int endCount = 0;
int runCount = 0;

struct Entry {
  explicit Entry(QEventLoop& loop) { loops.append(&loop); }
  ~Entry() { loops.removeLast(); }
  Entry(const Entry&) = delete;
  Entry& operator=(const Entry&) = delete;
};

}  // namespace

void run(QEventLoop& loop, const std::function<bool()>& opening) {
  {
    const Entry entry(loop);
    ++runCount;
    if (opening() && !leaving) loop.exec();
  }
  if (!leaving) return;
  leaving = !loops.isEmpty();
  throw Ended{1};
}

void leaveAll() {
  ++endCount;
  leaving = !loops.isEmpty();
  for (QEventLoop* loop : std::as_const(loops)) loop->exit();
}

int depth() { return static_cast<int>(loops.size()); }

int runs() { return runCount; }

int ends() { return endCount; }

}  // namespace forms::modal
