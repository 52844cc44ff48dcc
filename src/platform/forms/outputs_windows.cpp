#include "platform/forms/process.h"

#include <qt_windows.h>

#include <cstdlib>

namespace forms {

void keepOutputs() {}

// Without leave-taking: the runtime's exit waits for what each library does at its end, and the process must
// not.
void endAtOnce(int status) {
  ::TerminateProcess(::GetCurrentProcess(), static_cast<UINT>(status));
  std::abort();
}

void needNoDisplay() {}

}  // namespace forms
