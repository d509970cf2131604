// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <new>
#include <string>
#include <string_view>

#include "c3d/FileState.h"
#include "console/Streams.h"
#include "support/RuntimeError.h"

namespace console {

// Which labels an open trial is to know.
enum class Labels { First255, All };

// Opens `file` into a fresh `state`; answers with the sentence of a failed open, empty where all is
// well. Errors as OpenC3dFile.
std::string OpenTrial(const std::string& file, Labels labels, modVantrel::FileState& state);

// Names `file`, and what happened to it, on the error stream.
void ComplainOf(const std::string& file, std::string_view message, const Streams& streams);

// What `work` answers, or the message of the error that ended it. OutputClosed passes.
template <typename Work>
std::string MessageOf(Work work) {
  try {
    return work();
  } catch (const modAllPurpose::RuntimeError& error) {
    return modAllPurpose::RuntimeErrorLine(error);
  } catch (const std::bad_alloc&) {
    return modAllPurpose::RuntimeErrorLine(
        modAllPurpose::RuntimeError(modAllPurpose::ErrorNumber::OutOfMemory));
  }
}

}  // namespace console
