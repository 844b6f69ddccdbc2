#pragma once

#include "core/form1.h"
#include "core/hook.h"
#include "platform/dialogs.h"
#include "profile/ini.h"

namespace kivu::ui {

// The window's own title and frame: what a platform's title bar would do.
class WindowSurface {
 public:
    struct Hooks {
        core::Hook<void(const std::string&)> MeCaption;
        core::Hook<void()> ApplyAlwaysOnTop;
        core::Hook<void()> OpenProjectPage;
    };

    WindowSurface(core::Form1& form, profile::Ini& ini, platform::Dialogs& dialogs)
        : form(form), ini(ini), dialogs(dialogs) {}

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
};

}  // namespace kivu::ui
