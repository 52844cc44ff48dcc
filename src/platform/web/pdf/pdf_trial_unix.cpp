#include <fcntl.h>
#include <poll.h>
#include <signal.h>
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
constexpr int kPagePatience = 5'000;        // milliseconds for one page
constexpr QSize kSketch(60, 85);            // what is in a page costs the same in any size

/// Bytes of address space that this process takes.
rlim_t addressSpace() {
  QFile sizes(u"/proc/self/statm"_s);
  if (!sizes.open(QIODevice::ReadOnly)) return 0;
  return sizes.readLine().split(' ').first().toULongLong() * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
}

/// In the child: a sign for each page that is drawn, then the end.
[[noreturn]] void drawAll(const QByteArray& pdf, int signs) {
  const rlimit memory{addressSpace() + kMostMemory, addressSpace() + kMostMemory}, none{0, 0};
  setrlimit(RLIMIT_AS, &memory);
  setrlimit(RLIMIT_CORE, &none);
  const int nowhere = ::open("/dev/null", O_WRONLY);
  dup2(nowhere, STDERR_FILENO);
  QBuffer bytes;
  bytes.setData(pdf);
  bytes.open(QIODevice::ReadOnly);
  QPdfDocument document;
  document.load(&bytes);
  for (int page = 0; page < document.pageCount(); ++page) {
    document.render(page, kSketch);
    if (write(signs, "p", 1) != 1) _exit(1);
  }
  _exit(0);
}

/// Whether signs come, one within the patience after the other, till the child ends well.
bool watch(pid_t child, int signs) {
  pollfd ready{signs, POLLIN, 0};
  char sign = 0;
  while (poll(&ready, 1, kPagePatience) == 1)
    if (read(signs, &sign, 1) <= 0) {
      int status = 1;
      return waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
    }
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
  return false;
}

}  // namespace

bool canBeDrawn(const QByteArray& pdf) {
  int signs[2];
  if (pipe(signs) != 0) return false;
  const pid_t child = fork();
  if (child == 0) drawAll(pdf, signs[1]);
  close(signs[1]);
  const bool drawn = child > 0 && watch(child, signs[0]);
  close(signs[0]);
  return drawn;
}

}  // namespace web
