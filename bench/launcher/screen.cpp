#include "screen.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <optional>
#include <set>
#include <stdexcept>
#include <thread>
#include <vector>
#include <xcb/xcb.h>

namespace kivu::bench {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto patience = 30s;
constexpr auto betweenLooks = 500us;
// Smaller windows are the toolkit's own, and never seen.
constexpr int leastWidth = 300, leastHeight = 200;
constexpr int stripWidth = 16;
// Text is smoothed: one word alone has more colours.
constexpr std::size_t paintedColours = 6;

template <typename Reply>
std::unique_ptr<Reply, decltype(&std::free)> Owned(Reply* reply) {
    return {reply, &std::free};
}

// A display number that nobody uses.
std::string FreeDisplay() {
    for (int number = 90; number < 200; ++number) {
        const std::string digits = std::to_string(number);
        if (!std::filesystem::exists("/tmp/.X11-unix/X" + digits) &&
            !std::filesystem::exists("/tmp/.X" + digits + "-lock")) {
            return ":" + digits;
        }
    }
    throw std::runtime_error("no display number is free");
}

struct Place {
    xcb_window_t window = 0;
    int width = 0;
    int height = 0;
};

}  // namespace

struct Screen::Connection {
    explicit Connection(xcb_connection_t* opened) : xcb(opened) {
        const xcb_setup_t* setup = xcb_get_setup(xcb);
        root = xcb_setup_roots_iterator(setup).data->root;
    }
    ~Connection() { xcb_disconnect(xcb); }

    // The first window on the screen that is large enough to be meant for the user.
    std::optional<Place> FindWindow() const {
        const auto tree = Owned(xcb_query_tree_reply(xcb, xcb_query_tree(xcb, root), nullptr));
        if (!tree) return std::nullopt;
        const xcb_window_t* windows = xcb_query_tree_children(tree.get());
        for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
            const auto shown = Owned(xcb_get_window_attributes_reply(
                xcb, xcb_get_window_attributes(xcb, windows[i]), nullptr));
            if (!shown || shown->map_state != XCB_MAP_STATE_VIEWABLE) continue;
            const auto size =
                Owned(xcb_get_geometry_reply(xcb, xcb_get_geometry(xcb, windows[i]), nullptr));
            if (!size || size->width < leastWidth || size->height < leastHeight) continue;
            return Place{windows[i], size->width, size->height};
        }
        return std::nullopt;
    }

    // A strip from top to bottom through the left part of the window, where both programs have
    // their list.
    bool IsPainted(const Place& place) const {
        const auto image = Owned(xcb_get_image_reply(
            xcb,
            xcb_get_image(xcb, XCB_IMAGE_FORMAT_Z_PIXMAP, place.window,
                          static_cast<std::int16_t>(place.width / 8), 0, stripWidth,
                          static_cast<std::uint16_t>(place.height), ~0U),
            nullptr));
        if (!image) return false;
        const std::uint8_t* bytes = xcb_get_image_data(image.get());
        const auto size = static_cast<std::size_t>(xcb_get_image_data_length(image.get()));
        std::set<std::uint32_t> colours;
        for (std::size_t at = 0; at + 4 <= size && colours.size() < paintedColours; at += 4) {
            std::uint32_t pixel = 0;
            std::memcpy(&pixel, bytes + at, 4);
            colours.insert(pixel & 0xFFFFFF);
        }
        return colours.size() >= paintedColours;
    }

    xcb_connection_t* xcb;
    xcb_window_t root = 0;
};

Screen::Screen() : name(FreeDisplay()) {
    server = std::make_unique<ChildProcess>(
        std::vector<std::string>{"Xvfb", name, "-screen", "0", "1280x1024x24", "-br", "-nolisten",
                                 "tcp"},
        std::vector<std::string>{});
    for (const auto end = Clock::now() + patience; Clock::now() < end && server->Runs();) {
        xcb_connection_t* opened = xcb_connect(name.c_str(), nullptr);
        if (xcb_connection_has_error(opened) == 0) {
            connection = std::make_unique<Connection>(opened);
            return;
        }
        xcb_disconnect(opened);
        std::this_thread::sleep_for(20ms);
    }
    throw std::runtime_error("Xvfb does not answer");
}

Screen::~Screen() = default;

bool Screen::WaitForFirstFrame(const std::function<bool()>& runs) {
    const auto end = Clock::now() + patience;
    while (Clock::now() < end && runs()) {
        if (const auto place = connection->FindWindow(); place && connection->IsPainted(*place))
            return true;
        std::this_thread::sleep_for(betweenLooks);
    }
    return false;
}

void Screen::WaitUntilEmpty() {
    const auto end = Clock::now() + patience;
    while (Clock::now() < end && connection->FindWindow())
        std::this_thread::sleep_for(betweenLooks);
}

}  // namespace kivu::bench
