#include "platform/qt/beeper_qt.h"

#include <QApplication>

namespace kivu::platform {

void QtBeeper::Beep() {
    QApplication::beep();
}

}  // namespace kivu::platform
