#pragma once

#include "platform/values/runtime_error.h"

namespace support {

/// Number of the error that an action raises; 0 if it raises none.
template <typename Act>
int errorOf(Act act) {
  try {
    act();
  } catch (const values::RuntimeError& error) {
    return error.number();
  }
  return 0;
}

}  // namespace support
