// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace app::FormReader {

// Has screen readers know the form as a window from now on. To the toolkit it is a widget like any
// other.
void Install();

}  // namespace app::FormReader
