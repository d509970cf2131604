// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <new>
#include <string>

#include "support/RuntimeError.h"

namespace modAllPurpose {

// What `work` answers, or the message of the error that ended it: RuntimeErrorLine, also for memory
// that could not be had. Other exceptions pass.
template <typename Work>
std::string MessageOf(Work work) {
  try {
    return work();
  } catch (const RuntimeError& error) {
    return RuntimeErrorLine(error);
  } catch (const std::bad_alloc&) {
    return RuntimeErrorLine(RuntimeError(ErrorNumber::OutOfMemory));
  }
}

}  // namespace modAllPurpose
