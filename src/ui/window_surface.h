#pragma once

#include "core/busy_state.h"
#include "core/hook.h"
#include "forms/types.h"
#include "platform/dialogs.h"
#include "profile/ini.h"
#include "support/always_on_top.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::ui {

// The window's own title and frame: what a platform's title bar would do.
class WindowSurface {
 public:
    struct Hooks {
        core::Hook<void()> OpenProjectPage{"WindowSurface.OpenProjectPage"};
    };

    WindowSurface(core::Form1& form, profile::Ini& ini, platform::Dialogs& dialogs,
                  core::BusyState& busy, support::AlwaysOnTop& alwaysOnTop)
        : form(form), ini(ini), dialogs(dialogs), busy(busy), alwaysOnTop(alwaysOnTop) {}

    void MyCaptionLabel_DblClick();
    // The surface follows the mouse.
    void Surface_MouseDown(const forms::Mouse& mouse);
    void Form_DblClick();
    void Form_Click();
    void NormalMaxCapt_Click();
    void TitleStr_Click();

    Hooks hooks;

 private:
    core::Form1& form;
    profile::Ini& ini;
    platform::Dialogs& dialogs;
    core::BusyState& busy;
    support::AlwaysOnTop& alwaysOnTop;
};

}  // namespace kivu::ui
