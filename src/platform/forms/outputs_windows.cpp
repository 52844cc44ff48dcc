#include "platform/forms/process.h"

namespace forms {

void keepOutputs() {}

void needNoDisplay() {}

}  // namespace forms
