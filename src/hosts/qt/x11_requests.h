#pragma once

#include <QGuiApplication>
#include <cstdint>
#include <string_view>

#if QT_CONFIG(xcb)

namespace kivu::hosts {

// The few requests to an X server that the toolkit has no call for. Without a server, and without
// what it takes to ask one, all answers are 0.
class X11Requests {
 public:
    // Null: the toolkit shows its windows by other means.
    static X11Requests* Instance();

    std::uint32_t Atom(std::string_view name);
    // Of a selection.
    std::uint32_t Owner(std::uint32_t selection);
    // A property of the first screen's root that is a window.
    std::uint32_t RootWindowProperty(std::uint32_t property);

 private:
    explicit X11Requests(xcb_connection_t* connection) : connection(connection) {}

    xcb_connection_t* connection;
};

}  // namespace kivu::hosts

#endif
