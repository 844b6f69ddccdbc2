#include "hosts/linux/x11_screen.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string_view>

namespace kivu::hosts {

namespace {

struct Free {
    void operator()(void* reply) const { std::free(reply); }
};
template <typename T>
using Reply = std::unique_ptr<T, Free>;

double RateOf(const xcb_randr_mode_info_t& mode) {
    double lines = mode.vtotal;
    if ((mode.mode_flags & XCB_RANDR_MODE_FLAG_DOUBLE_SCAN) != 0) lines *= 2;
    if ((mode.mode_flags & XCB_RANDR_MODE_FLAG_INTERLACE) != 0) lines /= 2;
    const double dots = mode.htotal * lines;
    return dots > 0 ? mode.dot_clock / dots : 0;
}

bool IsTurned(std::uint16_t rotation) {
    return (rotation & (XCB_RANDR_ROTATION_ROTATE_90 | XCB_RANDR_ROTATION_ROTATE_270)) != 0;
}

}  // namespace

// What the server tells of its outputs, and which of them is the main one.
struct X11Screen::Resources {
    Reply<xcb_randr_get_screen_resources_current_reply_t> all;
    Reply<xcb_randr_get_output_info_reply_t> output;
    Reply<xcb_randr_get_crtc_info_reply_t> crtc;  // what drives the output

    // As the user sees it.
    OfferedMode Offered(const xcb_randr_mode_info_t& mode) const {
        OfferedMode offered{mode.id, mode.width, mode.height, RateOf(mode)};
        if (IsTurned(crtc->rotation)) std::swap(offered.width, offered.height);
        return offered;
    }
};

std::unique_ptr<X11Screen> X11Screen::Open() {
    const XcbRandr* x = XcbRandr::Get();
    if (x == nullptr) return nullptr;
    int number = 0;
    xcb_connection_t* connection = x->connect(nullptr, &number);
    if (x->connection_has_error(connection) != 0) {
        x->disconnect(connection);
        return nullptr;
    }
    auto screens = x->setup_roots_iterator(x->get_setup(connection));
    while (number-- > 0 && screens.rem > 1)
        x->screen_next(&screens);
    std::unique_ptr<X11Screen> opened(new X11Screen(*x, connection, screens.data));
    return opened->CanChange() ? std::move(opened) : nullptr;
}

X11Screen::~X11Screen() {
    x.disconnect(connection);
}

bool X11Screen::CanChange() {
    const auto has = [&](std::string_view name) {
        const Reply<xcb_query_extension_reply_t> reply(x.query_extension_reply(
            connection,
            x.query_extension(connection, static_cast<std::uint16_t>(name.size()), name.data()),
            nullptr));
        return reply && reply->present != 0;
    };
    if (!has("RANDR") || has("XWAYLAND")) return false;
    const Reply<xcb_randr_query_version_reply_t> version(
        x.randr_query_version_reply(connection, x.randr_query_version(connection, 1, 3), nullptr));
    return version && (version->major_version > 1 || version->minor_version >= 3);
}

// False: the output shows nothing.
bool X11Screen::TakeOutput(Resources& resources, xcb_randr_output_t output) {
    const auto time = resources.all->config_timestamp;
    resources.output.reset(x.randr_get_output_info_reply(
        connection, x.randr_get_output_info(connection, output, time), nullptr));
    const auto* info = resources.output.get();
    if (info == nullptr || info->crtc == XCB_NONE) return false;
    const std::string_view name(
        reinterpret_cast<const char*>(x.randr_get_output_info_name(info)),
        static_cast<std::size_t>(x.randr_get_output_info_name_length(info)));
    // The name of every output of servers that do not tell it by an extension yet.
    if (name.starts_with("XWAYLAND")) return false;
    resources.crtc.reset(x.randr_get_crtc_info_reply(
        connection, x.randr_get_crtc_info(connection, info->crtc, time), nullptr));
    return resources.crtc && resources.crtc->mode != XCB_NONE;
}

bool X11Screen::Read(Resources& resources) {
    resources.all.reset(x.randr_get_screen_resources_current_reply(
        connection, x.randr_get_screen_resources_current(connection, screen->root), nullptr));
    if (!resources.all) return false;
    const Reply<xcb_randr_get_output_primary_reply_t> primary(x.randr_get_output_primary_reply(
        connection, x.randr_get_output_primary(connection, screen->root), nullptr));
    if (primary && primary->output != XCB_NONE && TakeOutput(resources, primary->output))
        return true;
    const auto* outputs = x.randr_get_screen_resources_current_outputs(resources.all.get());
    const int count = x.randr_get_screen_resources_current_outputs_length(resources.all.get());
    return std::any_of(outputs, outputs + count,
                       [&](xcb_randr_output_t output) { return TakeOutput(resources, output); });
}

std::optional<ScreenModes> X11Screen::Modes() {
    Resources resources;
    if (!Read(resources)) return std::nullopt;
    ScreenModes modes;
    modes.current = resources.crtc->mode;
    modes.depth = screen->root_depth;
    const auto* known = x.randr_get_screen_resources_current_modes(resources.all.get());
    const int knownCount = x.randr_get_screen_resources_current_modes_length(resources.all.get());
    const auto* offered = x.randr_get_output_info_modes(resources.output.get());
    const int offeredCount = x.randr_get_output_info_modes_length(resources.output.get());
    // In the order in which the output prefers them.
    for (int at = 0; at < offeredCount; ++at) {
        const auto* mode = std::find_if(known, known + knownCount, [&](const auto& candidate) {
            return candidate.id == offered[at];
        });
        if (mode != known + knownCount) modes.offered.push_back(resources.Offered(*mode));
    }
    return modes;
}

// What holds all outputs, the main one at a new size.
X11Screen::Size X11Screen::SizeWith(const Resources& resources, Size ofOutput) {
    Size size{resources.crtc->x + ofOutput.width, resources.crtc->y + ofOutput.height};
    const auto* crtcs = x.randr_get_screen_resources_current_crtcs(resources.all.get());
    const int count = x.randr_get_screen_resources_current_crtcs_length(resources.all.get());
    for (int at = 0; at < count; ++at) {
        if (crtcs[at] == resources.output->crtc) continue;
        const Reply<xcb_randr_get_crtc_info_reply_t> other(x.randr_get_crtc_info_reply(
            connection,
            x.randr_get_crtc_info(connection, crtcs[at], resources.all->config_timestamp),
            nullptr));
        if (!other || other->mode == XCB_NONE) continue;
        size.width = std::max(size.width, other->x + other->width);
        size.height = std::max(size.height, other->y + other->height);
    }
    return size;
}

bool X11Screen::SetScreenSize(Size size) {
    const auto millimetres = [](int pixels, int ofScreen, int itsPixels) {
        return static_cast<std::uint32_t>(std::max(1, pixels * ofScreen / std::max(1, itsPixels)));
    };
    const auto cookie = x.randr_set_screen_size_checked(
        connection, screen->root, static_cast<std::uint16_t>(size.width),
        static_cast<std::uint16_t>(size.height),
        millimetres(size.width, screen->width_in_millimeters, screen->width_in_pixels),
        millimetres(size.height, screen->height_in_millimeters, screen->height_in_pixels));
    const Reply<xcb_generic_error_t> error(x.request_check(connection, cookie));
    return !error;
}

bool X11Screen::Set(std::uint32_t mode) {
    Resources resources;
    if (!Read(resources)) return false;
    const auto modes = Modes();
    if (!modes) return false;
    const auto found = std::find_if(modes->offered.begin(), modes->offered.end(),
                                    [&](const OfferedMode& offered) { return offered.id == mode; });
    if (found == modes->offered.end()) return false;
    // Other programs see one change and not its steps.
    x.grab_server(connection);
    const Reply<xcb_get_geometry_reply_t> root(
        x.get_geometry_reply(connection, x.get_geometry(connection, screen->root), nullptr));
    const Size before = root ? Size{root->width, root->height} : Size{};
    const Size after = SizeWith(resources, {found->width, found->height});
    // The screen must hold its outputs before and after.
    const Size both{std::max(before.width, after.width), std::max(before.height, after.height)};
    bool done = root && (both == before || SetScreenSize(both));
    if (done) {
        const auto* crtc = resources.crtc.get();
        const Reply<xcb_randr_set_crtc_config_reply_t> reply(x.randr_set_crtc_config_reply(
            connection,
            x.randr_set_crtc_config(
                connection, resources.output->crtc, XCB_CURRENT_TIME,
                resources.all->config_timestamp, crtc->x, crtc->y, mode, crtc->rotation,
                static_cast<std::uint32_t>(x.randr_get_crtc_info_outputs_length(crtc)),
                x.randr_get_crtc_info_outputs(crtc)),
            nullptr));
        done = reply && reply->status == XCB_RANDR_SET_CONFIG_SUCCESS;
        const Size wanted = done ? after : before;
        if (wanted != both) SetScreenSize(wanted);
    }
    x.ungrab_server(connection);
    // Waits until all of it has been done.
    return Modes() && done;
}

}  // namespace kivu::hosts
