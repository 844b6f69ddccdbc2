#pragma once

#include "core/busy_state.h"
#include "core/ports.h"
#include "forms/window_host.h"
#include "platform/beeper.h"
#include "platform/dialogs.h"
#include "platform/event_pump.h"
#include "platform/file_system.h"
#include "platform/log.h"
#include "platform/program_starter.h"
#include "platform/system_colors.h"
#include "platform/user_store.h"
#include "profile/ini.h"
#include "settings/known_group.h"
#include "settings/launch_group.h"
#include "settings/looks_group.h"
#include "settings/new_emulator_group.h"
#include "settings/paths_group.h"
#include "settings/program_group.h"
#include "settings/saving.h"
#include "settings/settings_form.h"
#include "settings/settings_store.h"
#include "settings/winuae_group.h"
#include "support/always_on_top.h"
#include "support/file_dialogs.h"

namespace kivu::core {
struct Form1;
class SettingsLoader;
}  // namespace kivu::core
namespace kivu::favourites {
class Repair;
}
namespace kivu::joystick {
class ButtonSetupOpener;
}
namespace kivu::launch {
class EmulatorSetup;
class GameLaunch;
class UaeFiles;
}  // namespace kivu::launch
namespace kivu::library {
class GameLists;
}
namespace kivu::ui {
class PictureLoading;
class WindowColors;
}  // namespace kivu::ui

namespace kivu::settings {

// The settings of the loaded emulator, and those of the whole program: opened with what the
// profiles hold, and written at once by SaveBtn.
class SettingsWindow {
 public:
    struct Services {
        profile::Ini& ini;
        platform::FileSystem& files;
        platform::ProgramStarter& starter;
        platform::Dialogs& dialogs;
        platform::Beeper& beeper;
        platform::EventPump& events;
        platform::UserStore& userStore;
        platform::Log& log;
        const platform::SystemColors& systemColors;
        forms::WindowHost& windows;
        support::FileDialogs& fileDialogs;
    };
    struct Routines {
        core::BusyState& busy;
        core::SettingsLoader& settings;
        library::GameLists& lists;
        favourites::Repair& repair;
        joystick::ButtonSetupOpener& buttons;
        ui::WindowColors& windowColors;
        ui::PictureLoading& pictures;
        support::AlwaysOnTop& mainOnTop;
        core::EmulatorSwitching& emulators;
        launch::EmulatorSetup& setup;
        launch::UaeFiles& uaeFiles;
        launch::GameLaunch& launch;
        core::StartHelpers& startHelpers;
        core::LoadingScreen& loadingScreen;
        core::RunningEmulator& watch;
        core::ProgramLinks& links;
    };

    SettingsWindow(core::Form1& main, forms::Toolkit toolkit, Services services, Routines routines);

    SettingsForm& GetForm() { return form; }

    void Form_Load();
    void Form_Unload();
    // Before it is shown.
    void ShowMainSettingsOnly(bool showIt);

    void SaveBtn_Click() { saving.SaveBtn_Click(); }
    void ExitBtn_Click();
    void LoadBtn_Click();
    void ReloadAllBtn_Click();
    void IniBtn_Click();
    void Form_KeyDown(forms::Key& key);
    void Form_KeyPress(forms::Character& character);
    void Form_QueryClose(bool& cancel);

    // The groups, for who calls one of their routines by its name.
    KnownGroup& Known() { return known; }
    PathsGroup& Paths() { return paths; }
    WinuaeGroup& Winuae() { return winuae; }

 private:
    void JoinEvents();
    void JoinPin();
    // The files of the emulator that is loaded.
    void TakeFiles();
    void LoadValues();
    void RunChangeHandlers(const SettingsValues& values);
    void ShowSkin();
    // Another emulator has been loaded; see NewEmulatorGroup::Hooks.
    void LoadAnew(bool keepTyped);
    // True: nothing is unsaved, or the user gives it up.
    bool MayDiscard();
    // Something is under way that the window must not be closed in.
    bool IsWorking() const;
    void SaveByKey();
    void CopyRomPath();
    void SetTitle(const std::string& title);
    void EditProfile(const std::string& path);

    core::Form1& main;
    Services services;
    Routines routines;
    SettingsForm form;
    SettingsStore store;
    support::AlwaysOnTop alwaysOnTop;
    WinuaeGroup winuae;
    KnownGroup known;
    NewEmulatorGroup newEmulator;
    PathsGroup paths;
    LaunchGroup launch;
    ProgramGroup program;
    LooksGroup looks;
    Saving saving;
    forms::Picture designPicture;
    bool heldDown = false;  // the key of the next character
};

}  // namespace kivu::settings
