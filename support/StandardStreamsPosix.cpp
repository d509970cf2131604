// SPDX-License-Identifier: GPL-3.0-or-later

#include <fcntl.h>
#include <unistd.h>

#include "support/StandardStreams.h"

namespace modAllPurpose {

// A new file gets the lowest number that is free. The root folder is everywhere, and a mere place
// in the tree of files, for which no right is needed, can be neither read nor written.
void KeepPlacesOfStandardStreams() {
  int place = 0;
  while (place >= 0 && place <= STDERR_FILENO) place = ::open("/", O_PATH | O_CLOEXEC);
  if (place > STDERR_FILENO) ::close(place);
}

}  // namespace modAllPurpose
