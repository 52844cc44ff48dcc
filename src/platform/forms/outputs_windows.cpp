#include "platform/forms/outputs.h"

namespace forms {

void keepOutputs() {}

void needNoDisplay() {}

}  // namespace forms
