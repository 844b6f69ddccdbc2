#include "hosts/qt/compositing_qt.h"

#include <QGuiApplication>
#include <QLibrary>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace kivu::hosts {

#if QT_CONFIG(xcb)

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
using InternAtom = Request (*)(xcb_connection_t*, std::uint8_t onlyIfThere, std::uint16_t length,
                               const char* name);
using GetOwner = Request (*)(xcb_connection_t*, std::uint32_t selection);
using GetReply = Reply* (*)(xcb_connection_t*, Request, void** error);

struct Calls {
    QLibrary library{QStringLiteral("xcb"), 1};
    InternAtom internAtom = Find<InternAtom>("xcb_intern_atom");
    GetReply internAtomReply = Find<GetReply>("xcb_intern_atom_reply");
    GetOwner getOwner = Find<GetOwner>("xcb_get_selection_owner");
    GetReply getOwnerReply = Find<GetReply>("xcb_get_selection_owner_reply");

    template <typename Call>
    Call Find(const char* name) {
        return reinterpret_cast<Call>(library.resolve(name));
    }
    bool AreThere() const { return internAtom && internAtomReply && getOwner && getOwnerReply; }
};

std::uint32_t ValueOf(GetReply get, xcb_connection_t* connection, Request request) {
    Reply* reply = get(connection, request, nullptr);
    const std::uint32_t value = reply ? reply->value : 0;
    std::free(reply);
    return value;
}

}  // namespace

bool IsComposited() {
    // The toolkit without a screen serves this interface too, and has nobody behind it.
    const bool screen = QGuiApplication::platformName() == QLatin1String("xcb");
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!screen || !x11 || !x11->connection()) return true;
    static Calls calls;
    if (!calls.AreThere()) return true;
    // EWMH: whoever composites the first screen owns this selection.
    constexpr std::string_view name = "_NET_WM_CM_S0";
    xcb_connection_t* connection = x11->connection();
    const Request atom = calls.internAtom(connection, 0, name.size(), name.data());
    const std::uint32_t selection = ValueOf(calls.internAtomReply, connection, atom);
    const Request owner = calls.getOwner(connection, selection);
    return ValueOf(calls.getOwnerReply, connection, owner) != 0;
}

#else

bool IsComposited() {
    return true;
}

#endif

}  // namespace kivu::hosts
