// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include <QStringList>

class QLineEdit;

namespace app {

// Proposes, below a box that is typed in, those of `names` that hold what is typed, without regard
// to case. `names` is asked with each key; empty and repeated ones are left out. What is set by the
// program is not proposed for, and a text that is no proposal stays as it was typed.
void ProposeNames(QLineEdit& box, const std::function<QStringList()>& names);

}  // namespace app
