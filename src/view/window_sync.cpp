#include "view/window_sync.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>
#include <utility>

#include "view/geometry.h"
#include "view/session.h"
#include "view/text.h"

namespace kivu::view {

namespace {

using forms::WindowState;

// Milliseconds in which a window manager answers a request; what it tells before may be older.
constexpr int patience = 400;

// Pixels below which the user's hand makes no window. What a profile or the program says is taken.
constexpr QSize least(240, 160);

// A place that no screen shows any more gives way to one that is seen.
QRect OnSomeScreen(QRect wanted) {
    const QScreen* primary = QGuiApplication::primaryScreen();
    if (!primary) return wanted;
    constexpr int grip = 48;  // so much must be in sight for the window to be dragged back
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QRect seen = wanted & screen->availableGeometry();
        if (seen.width() >= grip && seen.height() >= grip) return wanted;
    }
    wanted.moveCenter(primary->availableGeometry().center());
    const QPoint corner = primary->availableGeometry().topLeft();
    wanted.moveTo(std::max(wanted.left(), corner.x()), std::max(wanted.top(), corner.y()));
    return wanted;
}

WindowState StateOf(const QWidget& window) {
    if (window.isMinimized()) return WindowState::minimized;
    return window.isMaximized() || window.isFullScreen() ? WindowState::maximized
                                                         : WindowState::normal;
}

}  // namespace

WindowSync::WindowSync(forms::Form& form, FormSurface& window) : form(form), window(window) {
    answer.setSingleShot(true);
    answer.setInterval(patience);
    QObject::connect(&answer, &QTimer::timeout, &window, [this] { TakeGeometry(); });
    Apply(forms::Aspect::text);
    Apply(forms::Aspect::windowFrame);
    Apply(forms::Aspect::geometry);
}

void WindowSync::Apply(forms::Aspect aspect) {
    switch (aspect) {
        case forms::Aspect::text: {
            // "[*]" is the toolkit's place for a mark; doubled it is text.
            QString title = ToQt(form.Caption());
            window.setWindowTitle(title.replace(QLatin1String("[*]"), QLatin1String("[*][*]")));
            break;
        }
        case forms::Aspect::geometry:
            if (!shown || form.State() == WindowState::normal) RequestGeometry();
            break;
        case forms::Aspect::windowState:
            if (last == WindowState::normal) {
                normal = {form.Left(), form.Top(), form.Width(), form.Height()};
                normalPixels = known;
            }
            last = form.State();
            window.Renew();
            if (shown) ApplyState();
            break;
        case forms::Aspect::windowFrame:
            window.Renew();
            ApplyFrame();
            break;
        default:
            break;
    }
}

QRect WindowSync::Current() const {
    return QRect(window.pos(), window.size());
}

void WindowSync::RequestGeometry() {
    QRect wanted = PixelRect(form);
    if (wanted == known) return;
    if (!shown) wanted = OnSomeScreen(wanted);
    known = wanted;
    LimitHand(wanted.size());
    // Without a size of its own, be it the toolkit's default, a window fits itself to its controls.
    if (!shown || wanted.size() != window.size()) window.resize(wanted.size());
    if (ThisSession().placesWindows && wanted.topLeft() != window.pos())
        window.move(wanted.topLeft());
    LimitHand(wanted.size());
    if (shown) answer.start();
}

void WindowSync::Show() {
    RequestGeometry();
    shown = true;
    switch (form.State()) {
        case WindowState::minimized:
            window.showMinimized();
            break;
        case WindowState::maximized:
            window.showMaximized();
            break;
        case WindowState::normal:
            window.show();
            break;
    }
    // From now on the toolkit's window changes its flags without hiding itself.
    ApplyFrame();
    LimitHand(window.size());
}

void WindowSync::ApplyState() {
    if (StateOf(window) == form.State()) return;
    switch (form.State()) {
        case WindowState::minimized:
            window.setWindowState(window.windowState() | Qt::WindowMinimized);
            break;
        case WindowState::maximized:
            window.setWindowState(Qt::WindowMaximized);
            break;
        case WindowState::normal:
            window.setWindowState(Qt::WindowNoState);
            break;
    }
}

Qt::WindowFlags WindowSync::Flags() const {
    // A tool window has no place in the task bar.
    Qt::WindowFlags flags = form.IsToolWindow() ? Qt::Tool : Qt::Window;
    if (!form.HasFrame()) flags |= Qt::FramelessWindowHint;
    if (IsOnTop()) flags |= Qt::WindowStaysOnTopHint;
    // Where windows are stacked by a manager, a fullscreen one lies above those that stay on top.
    if (form.IsAboveAll() && ThisSession().bypassesManager) flags |= Qt::BypassWindowManagerHint;
    return flags;
}

void WindowSync::SetAboveTopmost(bool value) {
    if (std::exchange(aboveTopmost, value) != value) ApplyFrame();
}

void WindowSync::ApplyFrame() {
    window.setAttribute(Qt::WA_ShowWithoutActivating, !form.Activates());
    QWindow* native = window.windowHandle();
    if (!native) {
        window.setWindowFlags(Flags());
        return;
    }
    // Whether a manager cares for a window is settled when it comes onto the screen.
    const bool unmanaged = Flags().testFlag(Qt::BypassWindowManagerHint);
    const bool again =
        window.isVisible() && native->flags().testFlag(Qt::BypassWindowManagerHint) != unmanaged;
    if (again) window.hide();
    // The widget's own setter would hide the window to change them.
    for (const Qt::WindowType flag :
         {Qt::FramelessWindowHint, Qt::WindowStaysOnTopHint, Qt::BypassWindowManagerHint}) {
        const bool on = Flags().testFlag(flag);
        if (native->flags().testFlag(flag) != on) native->setFlag(flag, on);
    }
    if (native->type() != (Flags() & Qt::WindowType_Mask)) native->setFlags(Flags());
    window.overrideWindowFlags(Flags());
    if (again) window.show();
}

void WindowSync::Observe(const QEvent& event) {
    if (!shown) return;
    switch (event.type()) {
        case QEvent::Move:
        case QEvent::Resize:
            // The answer to a request of ours changes nothing, and what comes before it is stale.
            if (Current() == known) answer.stop();
            if (event.spontaneous() && !answer.isActive()) TakeGeometry();
            break;
        case QEvent::WindowStateChange:
            ObserveState();
            break;
        default:
            break;
    }
}

void WindowSync::ObserveState() {
    const WindowState now = StateOf(window);
    if (form.State() == now) return;
    form.SetState(now);
}

void WindowSync::TakeGeometry() {
    if (window.isMinimized() || form.State() == WindowState::minimized) return;
    ObserveState();
    const QRect now = Current();
    const bool placed = ThisSession().placesWindows;
    Place place{form.Left(), form.Top(), form.Width(), form.Height()};
    if (form.State() == WindowState::normal && now == normalPixels && now != known) {
        // Back from maximised: the twips that led to these pixels.
        place = normal;
    } else {
        if (placed && now.x() != known.x()) place.left = ToTwips(now.x());
        if (placed && now.y() != known.y()) place.top = ToTwips(now.y());
        if (now.width() != known.width()) place.width = ToTwips(now.width());
        if (now.height() != known.height()) place.height = ToTwips(now.height());
    }
    known = now;
    LimitHand(now.size());
    form.Move(place.left, place.top, place.width, place.height);
}

// The native window's alone: the widget's own would hold for the program too. Nothing above the
// size that it has, or the toolkit would make it larger there and then.
void WindowSync::LimitHand(QSize size) {
    QWindow* native = window.windowHandle();
    if (!native || !form.IsResizable()) return;
    const QSize limit = LeastSize(size).boundedTo(native->size());
    if (native->minimumSize() != limit) native->setMinimumSize(limit);
}

QSize WindowSync::LeastSize(QSize now) {
    return least.boundedTo(now);
}

int WindowSync::CornerRadius() const {
    return form.State() == WindowState::normal ? form.CornerRadius() : 0;
}

bool WindowSync::HasEdges() const {
    return !form.HasFrame() && form.IsResizable() && form.State() == WindowState::normal;
}

}  // namespace kivu::view
