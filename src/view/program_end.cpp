#include "view/program_end.h"

#include <QEvent>
#include <QGuiApplication>
#include <QSessionManager>
#include <utility>

namespace kivu::view {

ProgramEnd::ProgramEnd(std::function<void()> store, std::function<void()> end)
    : store(std::move(store)), end(std::move(end)) {
    connect(qApp, &QGuiApplication::commitDataRequest, this,
            [this](QSessionManager&) { this->store(); });
    qApp->installEventFilter(this);
}

// The toolkit would ask each window to close, which might ask the user.
bool ProgramEnd::eventFilter(QObject* object, QEvent* event) {
    if (event->type() != QEvent::Quit || object != qApp) return false;
    end();
    return true;
}

}  // namespace kivu::view
