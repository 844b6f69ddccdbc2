#include "hosts/qt/event_pump_qt.h"

#include <QCoreApplication>

namespace kivu::hosts {

void QtEventPump::DoEvents() {
    constexpr int deepest = 16;
    constexpr int longest = 50;  // milliseconds
    if (!QCoreApplication::instance() || depth >= deepest) return;
    ++depth;
    QCoreApplication::processEvents(QEventLoop::AllEvents, longest);
    --depth;
}

}  // namespace kivu::hosts
