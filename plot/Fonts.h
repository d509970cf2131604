// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>

namespace plot {

enum class Face { Regular, Bold, Oblique };

// A carried font, `size` in the units that the painter draws in. Its letters stand apart, no two
// joined to one sign: a word of a page is found by a search. The toolkit's application must exist.
QFont FontOf(Face face, int size);

}  // namespace plot
