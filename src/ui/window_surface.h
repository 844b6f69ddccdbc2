#pragma once

#include <string>
#include <utility>

#include "core/busy_state.h"
#include "forms/types.h"
#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "platform/program_starter.h"
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
        platform::ProgramStarter& starter;
        platform::FileSystem& files;
    };

    // `projectPage`: the address of the project's page, empty while it has none.
    WindowSurface(core::Form1& form, profile::Ini& ini, Services services, core::BusyState& busy,
                  support::AlwaysOnTop& alwaysOnTop, std::string projectPage)
        : form(form),
          ini(ini),
          services(services),
          busy(busy),
          alwaysOnTop(alwaysOnTop),
          projectPage(std::move(projectPage)) {}

    void MyCaptionLabel_DblClick();
    // The surface follows the mouse.
    void Surface_MouseDown(const forms::Mouse& mouse);
    void Form_DblClick();
    void Form_Click();
    void NormalMaxCapt_Click();
    // Opens the project's page in the browser.
    void TitleStr_Click();

 private:
    core::Form1& form;
    profile::Ini& ini;
    Services services;
    core::BusyState& busy;
    support::AlwaysOnTop& alwaysOnTop;
    std::string projectPage;
};

}  // namespace kivu::ui
