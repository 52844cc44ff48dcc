#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QBuffer>
#include <QFile>
#include <QPdfDocument>

#include "platform/web/pdf/pdf_trial.h"

using namespace Qt::StringLiterals;

namespace web {

namespace {

constexpr rlim_t kMostMemory = 512U << 20;  // bytes beside what this process has
constexpr unsigned kPagePatience = 5;       // seconds for one page
constexpr QSize kSketch(60, 85);            // what is in a page costs the same in any size

/// Bytes of address space that this process takes.
rlim_t addressSpace() {
  QFile sizes(u"/proc/self/statm"_s);
  if (!sizes.open(QIODevice::ReadOnly)) return 0;
  return sizes.readLine().split(' ').first().toULongLong() * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
}

/// In the child, whom the system ends where it goes out of bounds.
[[noreturn]] void drawAll(const QByteArray& pdf) {
  const rlim_t most = addressSpace() + kMostMemory;
  const rlimit memory{most, most}, none{0, 0};
  setrlimit(RLIMIT_AS, &memory);
  setrlimit(RLIMIT_CORE, &none);
  dup2(::open("/dev/null", O_WRONLY), STDERR_FILENO);
  QBuffer bytes;
  bytes.setData(pdf);
  bytes.open(QIODevice::ReadOnly);
  QPdfDocument document;
  document.load(&bytes);
  for (int page = 0; page < document.pageCount(); ++page) {
    alarm(kPagePatience);
    document.render(page, kSketch);
  }
  _exit(0);
}

}  // namespace

bool canBeDrawn(const QByteArray& pdf) {
  const pid_t child = fork();
  if (child == 0) drawAll(pdf);
  int status = 1;
  return child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace web
