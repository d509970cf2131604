// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace python {

// Has each kind of failure raised as its exception: OpenError and DataError of the module,
// MemoryError where memory ran out, ValueError for a closed trial.
void RegisterExceptions();

}  // namespace python
