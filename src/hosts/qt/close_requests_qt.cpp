#include "hosts/qt/close_requests_qt.h"

#include <QApplication>
#include <QWidget>
#include <cstdint>
#include <optional>

#include "hosts/qt/x11_requests.h"

namespace kivu::hosts {

namespace {

// The beginning of a Windows message.
struct WindowsMessage {
    void* window;
    unsigned number;
};
constexpr unsigned closeNumber = 0x10;  // WM_CLOSE

// X11's message of one client to another.
struct ClientMessage {
    std::uint8_t kind, format;
    std::uint16_t sequence;
    std::uint32_t window, type, values[5];
};

#if QT_CONFIG(xcb)

std::optional<WId> Closed(const ClientMessage& message) {
    constexpr std::uint8_t clientMessage = 33;
    constexpr std::uint8_t kinds = 0x7f;  // the highest bit tells that a client has sent it
    X11Requests* x11 = (message.kind & kinds) == clientMessage ? X11Requests::Instance() : nullptr;
    if (!x11 || message.format != 32) return {};
    // ICCCM: the window manager's request.
    static const std::uint32_t protocols = x11->Atom("WM_PROTOCOLS");
    static const std::uint32_t close = x11->Atom("WM_DELETE_WINDOW");
    if (message.type != protocols || message.values[0] != close) return {};
    return message.window;
}

#else

std::optional<WId> Closed(const ClientMessage&) {
    return {};
}

#endif

// The window that is to be closed.
std::optional<WId> Closed(const QByteArray& type, const void* message) {
    if (type == "windows_generic_MSG") {
        const auto& asked = *static_cast<const WindowsMessage*>(message);
        if (asked.number != closeNumber) return {};
        return reinterpret_cast<WId>(asked.window);
    }
    if (type != "xcb_generic_event_t") return {};
    return Closed(*static_cast<const ClientMessage*>(message));
}

void BringToFront(QWidget& window) {
    if (window.isMinimized()) window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.raise();
    window.activateWindow();
}

}  // namespace

CloseRequests::CloseRequests(QCoreApplication& application) : application(application) {
    application.installNativeEventFilter(this);
}

CloseRequests::~CloseRequests() {
    application.removeNativeEventFilter(this);
}

bool CloseRequests::nativeEventFilter(const QByteArray& type, void* message, qintptr*) {
    QWidget* modal = QApplication::activeModalWidget();
    const std::optional<WId> closed = modal ? Closed(type, message) : std::nullopt;
    // Its own request goes its own way, which begins here too.
    if (closed && *closed != modal->winId()) {
        const auto come = [modal] { BringToFront(*modal); };
        QMetaObject::invokeMethod(modal, come, Qt::QueuedConnection);
    }
    return false;
}

}  // namespace kivu::hosts
