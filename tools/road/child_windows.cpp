#include <qt_windows.h>

#include "child.h"

namespace road {

QByteArray display() { return "windows"; }

void watchForEnd() {}

int askedToEnd() { return 0; }

void bindToThis(QProcess&) {
  // All children belong to one job, which goes with the last handle to it: this process's own.
  static const HANDLE job = [] {
    const HANDLE made = ::CreateJobObjectW(nullptr, nullptr);
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    ::SetInformationJobObject(made, JobObjectExtendedLimitInformation, &limits, sizeof limits);
    ::AssignProcessToJobObject(made, ::GetCurrentProcess());
    return made;
  }();
  Q_UNUSED(job)
}

}  // namespace road
