#include "hosts/qt/x11_requests.h"

#if QT_CONFIG(xcb)

#include <QLibrary>
#include <cstdlib>

namespace kivu::hosts {

namespace {

// The few calls that this takes, of a library that the toolkit has loaded by then: no header and no
// package more for them. A request gives a number, by which its reply is asked for.
struct Request {
    unsigned sequence;
};
struct Reply {
    std::uint8_t kind, padding;
    std::uint16_t sequence;
    std::uint32_t length;
    std::uint32_t value;  // the atom, or the window
};
struct PropertyReply {
    std::uint8_t kind, format;
    std::uint16_t sequence;
    std::uint32_t length;
    std::uint32_t type, bytesLeft, values;
    std::uint8_t padding[12];
    std::uint32_t value;  // the first one, if there are any
};
struct Screens {
    const std::uint32_t* root;  // the first number of a screen's description
    int rest, index;
};
using GetSetup = const void* (*)(xcb_connection_t*);
using GetScreens = Screens (*)(const void* setup);
using InternAtom = Request (*)(xcb_connection_t*, std::uint8_t onlyIfThere, std::uint16_t length,
                               const char* name);
using GetOwner = Request (*)(xcb_connection_t*, std::uint32_t selection);
using GetProperty = Request (*)(xcb_connection_t*, std::uint8_t remove, std::uint32_t window,
                                std::uint32_t property, std::uint32_t type, std::uint32_t offset,
                                std::uint32_t length);
using GetReply = Reply* (*)(xcb_connection_t*, Request, void** error);
using GetPropertyReply = PropertyReply* (*)(xcb_connection_t*, Request, void** error);

struct Calls {
    QLibrary library{QStringLiteral("xcb"), 1};
    GetSetup getSetup = Find<GetSetup>("xcb_get_setup");
    GetScreens getScreens = Find<GetScreens>("xcb_setup_roots_iterator");
    InternAtom internAtom = Find<InternAtom>("xcb_intern_atom");
    GetReply internAtomReply = Find<GetReply>("xcb_intern_atom_reply");
    GetOwner getOwner = Find<GetOwner>("xcb_get_selection_owner");
    GetReply getOwnerReply = Find<GetReply>("xcb_get_selection_owner_reply");
    GetProperty getProperty = Find<GetProperty>("xcb_get_property");
    GetPropertyReply getPropertyReply = Find<GetPropertyReply>("xcb_get_property_reply");

    template <typename Call>
    Call Find(const char* name) {
        return reinterpret_cast<Call>(library.resolve(name));
    }
    bool AreThere() const {
        return getSetup && getScreens && internAtom && internAtomReply && getOwner &&
               getOwnerReply && getProperty && getPropertyReply;
    }
};

Calls& X11() {
    static Calls calls;
    return calls;
}

std::uint32_t ValueOf(Reply* reply) {
    const std::uint32_t value = reply ? reply->value : 0;
    std::free(reply);
    return value;
}

constexpr std::uint32_t windowType = 33;  // the atom that stands for it in the protocol

}  // namespace

X11Requests* X11Requests::Instance() {
    // The toolkit without a screen serves this interface too, and has nobody behind it.
    const bool screen = QGuiApplication::platformName() == QLatin1String("xcb");
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!screen || !x11 || !x11->connection() || !X11().AreThere()) return nullptr;
    static X11Requests requests(x11->connection());
    return &requests;
}

std::uint32_t X11Requests::Atom(std::string_view name) {
    const Request request =
        X11().internAtom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    return ValueOf(X11().internAtomReply(connection, request, nullptr));
}

std::uint32_t X11Requests::Owner(std::uint32_t selection) {
    const Request request = X11().getOwner(connection, selection);
    return ValueOf(X11().getOwnerReply(connection, request, nullptr));
}

std::uint32_t X11Requests::RootWindowProperty(std::uint32_t property) {
    const Screens screens = X11().getScreens(X11().getSetup(connection));
    if (screens.rest < 1 || !screens.root) return 0;
    const Request request =
        X11().getProperty(connection, 0, *screens.root, property, windowType, 0, 1);
    PropertyReply* reply = X11().getPropertyReply(connection, request, nullptr);
    const bool there = reply && reply->format == 32 && reply->values > 0;
    const std::uint32_t value = there ? reply->value : 0;
    std::free(reply);
    return value;
}

}  // namespace kivu::hosts

#endif
