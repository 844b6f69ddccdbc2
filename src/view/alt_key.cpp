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
    const bool pressed = event.type() == QEvent::KeyPress;
    if (static_cast<const QKeyEvent&>(event).key() == Qt::Key_Alt) {
        if (pressed) used = false;
        if (!used) moved = clock();
    } else if (pressed) {
        // Alt was for that one, and is let go after it.
        used = true;
        moved.reset();
    }
}

void AltKey::Use() {
    used = true;
    moved.reset();
}

bool AltKey::IsHeld() const {
    if (QGuiApplication::queryKeyboardModifiers() & Qt::AltModifier) return true;
    return moved && clock() - *moved <= onItsWay;
}

}  // namespace kivu::view
