#include <sys/prctl.h>

#include <QByteArray>
#include <csignal>
#include <initializer_list>

#include "child.h"

namespace road {

namespace {

volatile std::sig_atomic_t asked = 0;

}  // namespace

QByteArray display() {
  const QByteArray screen =
      qEnvironmentVariableIsSet("QT_SCALE_FACTOR") ? "screen_1366x768.json" : "screen_1024x768.json";
  return "offscreen:configfile=" ZARIM_SOURCE_DIR "/tools/hands/" + screen;
}

void watchForEnd() {
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) std::signal(signal, [](int which) { asked = which; });
}

int askedToEnd() { return asked; }

void bindToThis(QProcess& child) {
  child.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
}

}  // namespace road
