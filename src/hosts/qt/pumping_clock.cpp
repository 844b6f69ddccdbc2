#include "hosts/qt/pumping_clock.h"

#include <QEventLoop>
#include <QTimer>

namespace kivu::hosts {

void PumpingClock::Rest(std::chrono::milliseconds duration) {
    if (duration.count() <= 0) return;
    QEventLoop loop;
    QTimer::singleShot(duration, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

}  // namespace kivu::hosts
