#include "view/window_drag.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWindow>
#include <algorithm>
#include <utility>

namespace kivu::view {

namespace {

constexpr int thickness = 5;     // pixels of an edge that can be gripped
constexpr int cornerDepth = 8;   // and of a corner, from its round line on
constexpr int leastCorner = 16;  // pixels along its edges

class EdgeGrip : public QWidget {
 public:
    EdgeGrip(QWidget& window, WindowSync& sync, Qt::Edges edges)
        : QWidget(&window), sync(sync), edges(edges) {
        setFocusPolicy(Qt::NoFocus);
        setAttribute(Qt::WA_NoMousePropagation);
        setCursor(Shape());
    }

    void Place() {
        const QRect all = window()->rect();
        // To where the straight edges begin, and a little on.
        corner = std::max(leastCorner, sync.CornerRadius() + thickness);
        QRect place = all.adjusted(corner, corner, -corner, -corner);
        if (edges & Qt::LeftEdge) place.setLeft(0), place.setWidth(Extent());
        if (edges & Qt::RightEdge) {
            place.setRight(all.right());
            place.setLeft(all.right() - Extent() + 1);
        }
        if (edges & Qt::TopEdge) place.setTop(0), place.setHeight(Extent());
        if (edges & Qt::BottomEdge) {
            place.setBottom(all.bottom());
            place.setTop(all.bottom() - Extent() + 1);
        }
        setGeometry(place);
        if (IsCorner()) setMask(CornerShape(all).translated(-place.topLeft()));
    }

 protected:
    void mousePressEvent(QMouseEvent* event) override {
        if (event->button() != Qt::LeftButton) return;
        dragging = true;
        pressedAt = event->globalPosition().toPoint();
        before = window()->geometry();
    }

    void mouseMoveEvent(QMouseEvent* event) override {
        // A window manager that is asked with the button already up would never let go.
        dragging = dragging && (event->buttons() & Qt::LeftButton);
        if (!dragging) return;
        QWindow* native = window()->windowHandle();
        if (native && native->startSystemResize(edges)) {
            dragging = false;
            return;
        }
        const QPoint by = event->globalPosition().toPoint() - pressedAt;
        const QSize least = WindowSync::LeastSize(before.size());
        QRect now = before;
        if (edges & Qt::LeftEdge) {
            now.setLeft(std::min(now.left() + by.x(), now.right() - least.width()));
        }
        if (edges & Qt::RightEdge) {
            now.setRight(std::max(now.right() + by.x(), now.left() + least.width()));
        }
        if (edges & Qt::TopEdge) {
            now.setTop(std::min(now.top() + by.y(), now.bottom() - least.height()));
        }
        if (edges & Qt::BottomEdge) {
            now.setBottom(std::max(now.bottom() + by.y(), now.top() + least.height()));
        }
        window()->setGeometry(now);
        sync.TakeGeometry();
    }

    void mouseReleaseEvent(QMouseEvent*) override { dragging = false; }

 private:
    // What lies behind its round line in the square of the corner belongs to the window's controls.
    QRegion CornerShape(const QRect& all) const {
        const int inner = std::max(0, sync.CornerRadius() - cornerDepth);
        const QSize rest = all.size() - QSize(2 * cornerDepth, 2 * cornerDepth);
        if (rest.isEmpty()) return all;
        return QRegion(all) - RoundedRegion(rest, inner).translated(cornerDepth, cornerDepth);
    }
    bool IsCorner() const {
        return (edges & (Qt::LeftEdge | Qt::RightEdge)) && (edges & (Qt::TopEdge | Qt::BottomEdge));
    }
    int Extent() const { return IsCorner() ? corner : thickness; }
    Qt::CursorShape Shape() const {
        if (!IsCorner()) {
            return edges & (Qt::LeftEdge | Qt::RightEdge) ? Qt::SizeHorCursor : Qt::SizeVerCursor;
        }
        const bool falling =
            edges == (Qt::LeftEdge | Qt::TopEdge) || edges == (Qt::RightEdge | Qt::BottomEdge);
        return falling ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor;
    }

    WindowSync& sync;
    Qt::Edges edges;
    int corner = leastCorner;
    bool dragging = false;
    QPoint pressedAt;
    QRect before;
};

}  // namespace

WindowDrag::WindowDrag(QWidget& window, WindowSync& sync) : window(window), sync(sync) {
}

void WindowDrag::ArrangeEdges() {
    if (edges.empty() && sync.HasEdges()) {
        for (const Qt::Edges edge :
             {Qt::Edges(Qt::LeftEdge), Qt::Edges(Qt::RightEdge), Qt::Edges(Qt::TopEdge),
              Qt::Edges(Qt::BottomEdge), Qt::LeftEdge | Qt::TopEdge, Qt::RightEdge | Qt::TopEdge,
              Qt::LeftEdge | Qt::BottomEdge, Qt::RightEdge | Qt::BottomEdge}) {
            edges.push_back(new EdgeGrip(window, sync, edge));
        }
    }
    for (QWidget* edge : edges) {
        static_cast<EdgeGrip*>(edge)->Place();
        edge->setVisible(sync.HasEdges());
        edge->raise();
    }
}

void WindowDrag::Arm(QPoint at) {
    if (window.isMaximized()) return;
    phase = Phase::armed;
    pressedAt = at;
    windowAt = window.pos();
}

void WindowDrag::Disarm() {
    phase = Phase::idle;
}

bool WindowDrag::Moved(QPoint to) {
    const bool far = (to - pressedAt).manhattanLength() >= QApplication::startDragDistance();
    if (phase == Phase::armed && far) {
        QWindow* native = window.windowHandle();
        const bool taken = native && native->startSystemMove();
        phase = taken ? Phase::idle : Phase::moving;
        if (taken) return true;
    }
    if (phase != Phase::moving) return false;
    window.move(windowAt + to - pressedAt);
    sync.TakeGeometry();
    return true;
}

}  // namespace kivu::view
