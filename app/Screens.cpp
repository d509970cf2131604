#include "app/Screens.h"

namespace app {

QPoint FormPosition(QSize screen, QSize form) {
  return {(screen.width() - form.width()) / 2, (screen.height() - form.height()) / 3};
}

}  // namespace app
