#pragma once

#include "core/busy_state.h"
#include "forms/types.h"
#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "profile/ini.h"
#include "support/always_on_top.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::ui {

// The window's own title and frame: what a platform's title bar would do.
class WindowSurface {
 public:
    struct Services {
        platform::Dialogs& dialogs;
        platform::FileSystem& files;
    };

    WindowSurface(core::Form1& form, profile::Ini& ini, Services services, core::BusyState& busy,
                  support::AlwaysOnTop& alwaysOnTop)
        : form(form), ini(ini), services(services), busy(busy), alwaysOnTop(alwaysOnTop) {}

    void MyCaptionLabel_DblClick();
    // The surface follows the mouse.
    void Surface_MouseDown(const forms::Mouse& mouse);
    void Form_DblClick();
    void Form_Click();
    void NormalMaxCapt_Click();

 private:
    core::Form1& form;
    profile::Ini& ini;
    Services services;
    core::BusyState& busy;
    support::AlwaysOnTop& alwaysOnTop;
};

}  // namespace kivu::ui
