#include "hosts/linux/xcb_randr.h"

#include <dlfcn.h>
#include <optional>
#include <string>

namespace kivu::hosts {

namespace {

std::optional<XcbRandr> Load() {
    void* xcb = ::dlopen("libxcb.so.1", RTLD_NOW | RTLD_LOCAL);
    void* randr = ::dlopen("libxcb-randr.so.0", RTLD_NOW | RTLD_LOCAL);
    if (xcb == nullptr || randr == nullptr) return std::nullopt;
    XcbRandr calls;
    bool complete = true;
    const auto take = [&](auto& call, const char* name) {
        void* library = std::string(name).starts_with("xcb_randr_") ? randr : xcb;
        call = reinterpret_cast<std::remove_reference_t<decltype(call)>>(::dlsym(library, name));
        complete = complete && call != nullptr;
    };
#define KIVU_TAKE(name) take(calls.name, "xcb_" #name)
    KIVU_TAKE(connect);
    KIVU_TAKE(connection_has_error);
    KIVU_TAKE(disconnect);
    KIVU_TAKE(get_setup);
    KIVU_TAKE(setup_roots_iterator);
    KIVU_TAKE(screen_next);
    KIVU_TAKE(query_extension);
    KIVU_TAKE(query_extension_reply);
    KIVU_TAKE(request_check);
    KIVU_TAKE(grab_server);
    KIVU_TAKE(ungrab_server);
    KIVU_TAKE(get_geometry);
    KIVU_TAKE(get_geometry_reply);
    KIVU_TAKE(randr_query_version);
    KIVU_TAKE(randr_query_version_reply);
    KIVU_TAKE(randr_get_screen_resources_current);
    KIVU_TAKE(randr_get_screen_resources_current_reply);
    KIVU_TAKE(randr_get_screen_resources_current_outputs);
    KIVU_TAKE(randr_get_screen_resources_current_outputs_length);
    KIVU_TAKE(randr_get_screen_resources_current_crtcs);
    KIVU_TAKE(randr_get_screen_resources_current_crtcs_length);
    KIVU_TAKE(randr_get_screen_resources_current_modes);
    KIVU_TAKE(randr_get_screen_resources_current_modes_length);
    KIVU_TAKE(randr_get_output_primary);
    KIVU_TAKE(randr_get_output_primary_reply);
    KIVU_TAKE(randr_get_output_info);
    KIVU_TAKE(randr_get_output_info_reply);
    KIVU_TAKE(randr_get_output_info_modes);
    KIVU_TAKE(randr_get_output_info_modes_length);
    KIVU_TAKE(randr_get_output_info_name);
    KIVU_TAKE(randr_get_output_info_name_length);
    KIVU_TAKE(randr_get_crtc_info);
    KIVU_TAKE(randr_get_crtc_info_reply);
    KIVU_TAKE(randr_get_crtc_info_outputs);
    KIVU_TAKE(randr_get_crtc_info_outputs_length);
    KIVU_TAKE(randr_set_screen_size_checked);
    KIVU_TAKE(randr_set_crtc_config);
    KIVU_TAKE(randr_set_crtc_config_reply);
#undef KIVU_TAKE
    if (!complete) return std::nullopt;
    return calls;
}

}  // namespace

const XcbRandr* XcbRandr::Get() {
    static const std::optional<XcbRandr> calls = Load();
    return calls ? &*calls : nullptr;
}

}  // namespace kivu::hosts
