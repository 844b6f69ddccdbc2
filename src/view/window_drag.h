#pragma once

#include <QPoint>
#include <QPointer>
#include <QWidget>
#include <vector>

#include "view/window_sync.h"

namespace kivu::view {

// Moves a window by its surface and resizes it by its edges, through the window manager where there
// is one that can, else by itself.
class WindowDrag {
 public:
    WindowDrag(QWidget& window, WindowSync& sync);

    // The window is to follow the mouse that went down at this place of the screen, once it has
    // moved past the distance of a drag: a click or a double click must stay one.
    void Arm(QPoint pressedAt);
    void Disarm();
    // True: the mouse now moves the window and nothing else.
    bool Moved(QPoint to);

    // Edges on top of everything, where the window has any.
    void ArrangeEdges();

 private:
    enum class Phase { idle, armed, moving };

    QWidget& window;
    WindowSync& sync;
    std::vector<QWidget*> edges;
    Phase phase = Phase::idle;
    QPoint pressedAt;
    QPoint windowAt;
};

}  // namespace kivu::view
