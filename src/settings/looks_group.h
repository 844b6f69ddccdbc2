#pragma once

#include "platform/dialogs.h"
#include "platform/system_colors.h"
#include "profile/ini.h"
#include "ui/color_select.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::settings {

struct SettingsForm;

// The colours and the frame of the main window.
class LooksGroup {
 public:
    struct Services {
        profile::Ini& ini;
        platform::Dialogs& dialogs;
        const platform::SystemColors& systemColors;
    };

    // Joins the controls' events.
    LooksGroup(SettingsForm& form, core::Form1& main, ui::WindowColors& windowColors,
               Services services);
    LooksGroup(const LooksGroup&) = delete;
    LooksGroup& operator=(const LooksGroup&) = delete;

    // What the main window has, of which no handler is told.
    void Load();

    // The skin's colours into the picker, which comes or goes.
    void Command5_Click();
    void FensterRahmChk_Click();
    void Picture1_Click();

 private:
    SettingsForm& form;
    core::Form1& main;
    profile::Ini& ini;
    ui::ColorSelect colors;
};

}  // namespace kivu::settings
