#include "view/alt_key.h"

#include <QGuiApplication>
#include <QKeyEvent>

namespace kivu::view {

namespace {
constexpr std::chrono::milliseconds onItsWay{500};
}

void AltKey::See(const QEvent& event) {
    const bool isKey = event.type() == QEvent::KeyPress || event.type() == QEvent::KeyRelease;
    if (!isKey || !clock) return;
    if (static_cast<const QKeyEvent&>(event).key() == Qt::Key_Alt) {
        moved = clock();
    } else if (event.type() == QEvent::KeyPress) {
        // Alt was for that one.
        moved.reset();
    }
}

bool AltKey::IsHeld() const {
    if (QGuiApplication::queryKeyboardModifiers() & Qt::AltModifier) return true;
    return moved && clock() - *moved <= onItsWay;
}

}  // namespace kivu::view
