#include "view/open_to_hands.h"

#include <QApplication>
#include <QWidget>
#include <QWindow>

namespace kivu::view {

bool IsOpenToHands(const QWidget& widget) {
    if (const QWidget* popup = QApplication::activePopupWidget())
        return popup == widget.window() || popup->parentWidget() == &widget;
    const QWidget* modal = QApplication::activeModalWidget();
    if (!modal) return true;
    // What stands over the modal one is reached, too.
    const QWindow* window = widget.window()->windowHandle();
    while (window && window != modal->windowHandle())
        window = window->transientParent();
    return window != nullptr;
}

}  // namespace kivu::view
