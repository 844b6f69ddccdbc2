#pragma once

#include <functional>
#include <utility>

#include "platform/beeper.h"
#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "profile/ini.h"

namespace kivu::core {
struct Form1;
class SettingsLoader;
}  // namespace kivu::core
namespace kivu::ui {
class WindowColors;
}

namespace kivu::settings {

class SettingsStore;
struct SettingsForm;

// Writes what the settings window shows, and lets the main window work with it. Where something
// could not be written the button stays on.
class Saving {
 public:
    struct Services {
        profile::Ini& ini;
        platform::Dialogs& dialogs;
        platform::Beeper& beeper;
    };
    struct Routines {
        core::SettingsLoader& settings;
        ui::WindowColors& windowColors;
        // WinUAE's master configuration. False: it could not be written, and the user knows.
        std::function<bool()> saveMaster;
        // What the profile now says of the controllers.
        std::function<void(int)> takeJoystick;
    };

    Saving(SettingsForm& form, core::Form1& main, SettingsStore& store, Services services,
           Routines routines)
        : form(form), main(main), store(store), services(services), routines(std::move(routines)) {}

    void SaveBtn_Click();

 private:
    bool Write();
    void RefuseSeconds();
    void LoadSettings();
    void ColorWindows();

    SettingsForm& form;
    core::Form1& main;
    SettingsStore& store;
    Services services;
    Routines routines;
    bool saving = false;
};

}  // namespace kivu::settings
