// SPDX-License-Identifier: GPL-3.0-or-later

#include <fcntl.h>
#include <unistd.h>

#include "support/StandardStreams.h"

namespace modAllPurpose {

// A new file gets the lowest number that is free. The root folder is everywhere, and neither its
// bytes can be read nor others written to it.
void KeepPlacesOfStandardStreams() {
  int place = 0;
  while (place >= 0 && place <= STDERR_FILENO) place = ::open("/", O_RDONLY | O_CLOEXEC);
  if (place > STDERR_FILENO) ::close(place);
}

}  // namespace modAllPurpose
