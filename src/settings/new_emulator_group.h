#pragma once

#include <string>

#include "core/hook.h"
#include "core/ports.h"
#include "forms/window_host.h"
#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "settings/settings_form.h"
#include "support/always_on_top.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::settings {

// The settings window's top row: which emulator it is about, and the way to one more.
class NewEmulatorGroup {
 public:
    struct Services {
        platform::FileSystem& files;
        platform::Dialogs& dialogs;
        core::EmulatorSwitching& emulators;
        core::RunningEmulator& watch;
        forms::WindowHost& windows;
        support::AlwaysOnTop& mainOnTop;
    };
    struct Hooks {
        // The window with the files of the emulator that is loaded now, as it opens. True: what
        // the user has typed stays in the controls, and is not saved.
        core::Hook<void(bool keepTyped)> LoadAnew{"NewEmulatorGroup.LoadAnew"};
    };

    NewEmulatorGroup(SettingsForm& form, core::Form1& main, Services services)
        : form(form), main(main), services(services) {}

    // The handler of NewEmuBtn.
    void JoinEvents();
    // The emulator's name, and whether another one can be made now, as the window opens. One that
    // is started out of it leaves the button on: the watch rests under the window, and a press
    // looks by itself.
    void ShowState();
    // In front of the main window, which what has been asked of it may have put on top of all.
    void ComeForward();

    void NewEmuBtn_Click();

    Hooks hooks;

 private:
    // While an emulator is watched or something is under way nothing can be switched.
    bool Rests() const;
    // Of what has been started out of the window; the user is told.
    bool StillRuns();
    bool MayLeaveValues();
    // Empty: the user has left the box.
    std::string AskForName();
    bool Make(const std::string& name);
    void AddToLists(const std::string& name);
    void Load(const std::string& name);

    SettingsForm& form;
    core::Form1& main;
    Services services;
};

}  // namespace kivu::settings
