#pragma once

#include <string>

#include "core/hook.h"
#include "core/ports.h"
#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "profile/ini.h"

namespace kivu::core {

struct Form1;

// Brings the emulator's profile, and what of the program's belongs to the window, into the
// controls.
class SettingsLoader {
 public:
    struct Hooks {
        Hook<void()> SetColors{"SettingsLoader.SetColors"};
        Hook<void(bool)> JoystickEnable{"SettingsLoader.JoystickEnable"};
        Hook<int()> JoystickCount{"SettingsLoader.JoystickCount"};
    };
    struct Ports {
        Port<WindowLayout> layout{"SettingsLoader.layout"};
    };

    SettingsLoader(Form1& form, profile::Ini& ini, const platform::FileSystem& files,
                   platform::Dialogs& dialogs)
        : form(form), ini(ini), files(files), dialogs(dialogs) {}

    void LoadSettings();
    // Of it, the font size and the colours.
    void LoadLook();
    // Of it, which button of the controller does what.
    void LoadButtons();
    // The drives stand where this profile has them, or where the user has moved them since.
    bool DrivesAreOf(const std::string& profile) const { return profile == drivesOf; }

    Hooks hooks;
    Ports ports;

 private:
    // A stored path as an absolute one. A path written by hand may be absolute already.
    std::string AbsolutePath(const std::string& stored) const;
    std::string EmulatorPath(const std::string& stored) const;
    void LoadPaths();
    void LoadDrivesPanel();
    void LoadJoystick();

    Form1& form;
    profile::Ini& ini;
    const platform::FileSystem& files;
    platform::Dialogs& dialogs;
    std::string drivesOf;  // the profile that they were placed by
};

}  // namespace kivu::core
