#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "hosts/linux/display_choice.h"
#include "hosts/linux/xcb_randr.h"

namespace kivu::hosts {

// The main screen of the X server that $DISPLAY names: its primary output, or the first one that
// shows something. Connected as long as this lives.
class X11Screen {
 public:
    // Null: there is no such server, or it cannot change modes. Under Wayland no program may, and
    // its X server would only pretend to.
    static std::unique_ptr<X11Screen> Open();
    ~X11Screen();
    X11Screen(const X11Screen&) = delete;
    X11Screen& operator=(const X11Screen&) = delete;

    // Empty: nothing is shown.
    std::optional<ScreenModes> Modes();
    // Sets one of the offered modes and leaves the other outputs where they are. False: refused,
    // and as it was.
    bool Set(std::uint32_t mode);

 private:
    struct Resources;
    struct Size {
        int width = 0, height = 0;
        bool operator==(const Size&) const = default;
    };

    X11Screen(const XcbRandr& x, xcb_connection_t* connection, xcb_screen_t* screen)
        : x(x), connection(connection), screen(screen) {}
    bool CanChange();
    bool Read(Resources& resources);
    bool TakeOutput(Resources& resources, xcb_randr_output_t output);
    Size SizeWith(const Resources& resources, Size ofOutput);
    bool SetScreenSize(Size size);

    const XcbRandr& x;
    xcb_connection_t* connection;
    xcb_screen_t* screen;
};

}  // namespace kivu::hosts
