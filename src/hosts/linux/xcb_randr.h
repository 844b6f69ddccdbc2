#pragma once

#include <xcb/randr.h>
#include <xcb/xcb.h>

namespace kivu::hosts {

// The calls of libxcb and its RandR part that a change of the display mode takes. They are loaded
// when they are first needed, since most users never do. A member has the name of its function.
struct XcbRandr {
// NOLINTNEXTLINE(bugprone-macro-parentheses): the member is declared by it.
#define KIVU_CALL(name) decltype(&::xcb_##name) name = nullptr
    KIVU_CALL(connect);
    KIVU_CALL(connection_has_error);
    KIVU_CALL(disconnect);
    KIVU_CALL(get_setup);
    KIVU_CALL(setup_roots_iterator);
    KIVU_CALL(screen_next);
    KIVU_CALL(query_extension);
    KIVU_CALL(query_extension_reply);
    KIVU_CALL(request_check);
    KIVU_CALL(grab_server);
    KIVU_CALL(ungrab_server);
    KIVU_CALL(get_geometry);
    KIVU_CALL(get_geometry_reply);
    KIVU_CALL(randr_query_version);
    KIVU_CALL(randr_query_version_reply);
    KIVU_CALL(randr_get_screen_resources_current);
    KIVU_CALL(randr_get_screen_resources_current_reply);
    KIVU_CALL(randr_get_screen_resources_current_outputs);
    KIVU_CALL(randr_get_screen_resources_current_outputs_length);
    KIVU_CALL(randr_get_screen_resources_current_crtcs);
    KIVU_CALL(randr_get_screen_resources_current_crtcs_length);
    KIVU_CALL(randr_get_screen_resources_current_modes);
    KIVU_CALL(randr_get_screen_resources_current_modes_length);
    KIVU_CALL(randr_get_output_primary);
    KIVU_CALL(randr_get_output_primary_reply);
    KIVU_CALL(randr_get_output_info);
    KIVU_CALL(randr_get_output_info_reply);
    KIVU_CALL(randr_get_output_info_modes);
    KIVU_CALL(randr_get_output_info_modes_length);
    KIVU_CALL(randr_get_output_info_name);
    KIVU_CALL(randr_get_output_info_name_length);
    KIVU_CALL(randr_get_crtc_info);
    KIVU_CALL(randr_get_crtc_info_reply);
    KIVU_CALL(randr_get_crtc_info_outputs);
    KIVU_CALL(randr_get_crtc_info_outputs_length);
    KIVU_CALL(randr_set_screen_size_checked);
    KIVU_CALL(randr_set_crtc_config);
    KIVU_CALL(randr_set_crtc_config_reply);
#undef KIVU_CALL

    // Null: the libraries are not there.
    static const XcbRandr* Get();
};

}  // namespace kivu::hosts
