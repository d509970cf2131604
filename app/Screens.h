#pragma once

#include <QPoint>
#include <QSize>

namespace app {

// Where the top left corner of a form goes: centred from left to right and a third of the way down.
// Halves and thirds are cut towards zero, also where the form is larger than the screen.
QPoint FormPosition(QSize screen, QSize form);

}  // namespace app
