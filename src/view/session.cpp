#include "view/session.h"

#include <QGuiApplication>

namespace kivu::view {

Session SessionOf(const QString& platform) {
    const bool wayland = platform.startsWith(QLatin1String("wayland"));
    return {.placesWindows = !wayland,
            .keepsOnTop = !wayland,
            .bypassesManager = platform == QLatin1String("xcb")};
}

Session ThisSession() {
    return SessionOf(QGuiApplication::platformName());
}

}  // namespace kivu::view
