#include "hosts/qt/background_qt.h"

#include <QMetaObject>
#include <utility>

namespace kivu::hosts {

QtBackground::QtBackground() {
    pool.setMaxThreadCount(1);
}

QtBackground::~QtBackground() {
    pool.clear();
    pool.waitForDone();
}

void QtBackground::Run(std::function<void()> work, std::function<void()> done) {
    pool.start([this, work = std::move(work), done = std::move(done)]() mutable {
        work();
        QMetaObject::invokeMethod(&windowThread, std::move(done), Qt::QueuedConnection);
    });
}

}  // namespace kivu::hosts
