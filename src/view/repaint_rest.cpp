#include "view/repaint_rest.h"

#include <QCoreApplication>
#include <QEvent>
#include <utility>

namespace kivu::view {

namespace {
constexpr int longest = 100;  // milliseconds
}

RepaintRest::RepaintRest(QWidget& window) : window(window) {
    limit.setSingleShot(true);
    limit.setInterval(longest);
    limit.setTimerType(Qt::PreciseTimer);
    QObject::connect(&limit, &QTimer::timeout, &window, [this] {
        spent = true;
        DrawHeld();
    });
}

bool RepaintRest::Holds() {
    if (running == 0 || spent) return false;
    if (!std::exchange(held, true)) limit.start();
    return true;
}

void RepaintRest::Left() {
    if (--running > 0) return;
    limit.stop();
    spent = false;
    DrawHeld();
}

void RepaintRest::DrawHeld() {
    if (!std::exchange(held, false)) return;
    // As the toolkit asks for it: behind everything else that waits.
    QCoreApplication::postEvent(&window, new QEvent(QEvent::UpdateRequest), Qt::LowEventPriority);
}

}  // namespace kivu::view
