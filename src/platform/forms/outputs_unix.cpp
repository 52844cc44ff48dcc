#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>

#include "platform/forms/process.h"

namespace forms {

void keepOutputs() {
  for (const int number : {SIGPIPE, SIGXFSZ}) std::signal(number, SIG_IGN);
  // What is written to a closed output must not go into the file or connection that is opened next.
  int opened = 0;
  while (opened >= 0 && opened <= STDERR_FILENO) opened = ::open("/dev/null", O_RDWR);
  if (opened >= 0) ::close(opened);
}

void endAtOnce(int status) { std::_Exit(status); }

void needNoDisplay() { qputenv("QT_QPA_PLATFORM", "offscreen"); }

}  // namespace forms
