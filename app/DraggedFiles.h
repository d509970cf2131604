// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

class QDropEvent;
class QMimeData;

namespace app {

// The paths of the files among what is dragged, byte for byte, since they need not be UTF-8.
std::vector<std::string> DraggedFiles(const QMimeData* data);

// Accepts a file that is dragged, to be read where it is: the program it comes from must not take
// it for moved away. False where it may only be moved.
bool AcceptCopy(QDropEvent* event);

}  // namespace app
