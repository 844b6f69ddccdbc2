#include "hosts/qt/beeper_qt.h"

#include <QApplication>

namespace kivu::hosts {

void QtBeeper::Beep() {
    QApplication::beep();
}

}  // namespace kivu::hosts
