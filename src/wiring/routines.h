#pragma once

#include <functional>
#include <memory>

#include "core/busy_state.h"
#include "core/emulator_switch.h"
#include "core/form1.h"
#include "core/outside_links.h"
#include "core/passing_files.h"
#include "core/settings_loader.h"
#include "core/shut_down.h"
#include "core/start_up.h"
#include "core/window_keys.h"
#include "favourites/favoriten.h"
#include "favourites/favoriten_events.h"
#include "favourites/global_events.h"
#include "favourites/global_favoriten.h"
#include "favourites/repair_favoriten.h"
#include "forms/window_host.h"
#include "joystick/box_by_pad.h"
#include "joystick/button_actions.h"
#include "joystick/button_setup_opener.h"
#include "joystick/button_setup_window.h"
#include "joystick/exit_button.h"
#include "joystick/joystick.h"
#include "joystick/joystick_control.h"
#include "joystick/list_navigation.h"
#include "joystick/pad_events.h"
#include "launch/display_mode.h"
#include "launch/drive_slots.h"
#include "launch/emulator_setup.h"
#include "launch/game_launch.h"
#include "launch/handed_file.h"
#include "launch/prozess.h"
#include "launch/run_file.h"
#include "launch/running_watch.h"
#include "launch/start_helpers.h"
#include "launch/uae_files.h"
#include "library/emulator_box.h"
#include "library/file_scan_recursive.h"
#include "library/game_lists.h"
#include "library/global_search.h"
#include "library/list_events.h"
#include "library/list_search.h"
#include "library/marked_game.h"
#include "library/scan_source.h"
#include "platform/host.h"
#include "profile/ini.h"
#include "settings/settings_opener.h"
#include "support/always_on_top.h"
#include "ui/font_size.h"
#include "ui/hints.h"
#include "ui/layout.h"
#include "ui/panel_drag.h"
#include "ui/picture_loader.h"
#include "ui/preview_pictures.h"
#include "ui/skins.h"
#include "ui/window_colors.h"
#include "ui/window_surface.h"
#include "wiring/counted_dialogs.h"
#include "wiring/launcher.h"
#include "wiring/logged_host.h"
#include "wiring/windows.h"

namespace kivu::wiring {

// The user's language as the toolkit's sorted lists see it.
class TextOrder : public forms::Collation {
 public:
    int Compare(std::string_view a, std::string_view b) const override;
    std::uint64_t Rank(std::string_view text) const override;
};

// No screen and nobody to serve a window: a modal one is gone at once.
class NoWindows : public forms::WindowHost {
 public:
    forms::Size Room(const forms::Form*) const override { return {}; }

 protected:
    void Serve(forms::Form&, const std::function<bool()>&) override {}
};

// Every routine of the launcher, in the order in which they need one another.
struct Launcher::Routines {
    Routines(platform::Host hostServices, const forms::TextMeasure* measure,
             std::function<void()> end, forms::WindowHost* windowHost);

    LoggedHost logged;
    platform::Host host;  // its failures stand in the log
    NoWindows noWindows;
    forms::WindowHost& windows;
    CountedDialogs dialogs;
    TextOrder order;
    library::ScanSource scanSource;
    core::Form1 form;

    profile::Ini ini;
    core::EventPacer pacer;
    core::BusyState busy;
    support::AlwaysOnTop alwaysOnTop;
    ui::PictureLoader pictureLoader;

    core::PassingFiles passingFiles;
    core::ShutDown shutDown;
    core::SettingsLoader settingsLoader;
    core::EmulatorSwitch emulatorSwitch;
    core::StartUp startUp;
    core::WindowKeys windowKeys;
    core::OutsideLinks links;

    library::FileScanRecursive scanner;
    library::EmulatorBox emulatorBox;
    library::GameLists gameLists;
    library::MarkedGame markedGame;
    library::ListSearch listSearch;
    library::AllEmulatorsSearch globalSearch;
    library::ListEvents listEvents;

    favourites::Favoriten favoriten;
    favourites::GlobalFavoriten globalFavoriten;
    favourites::Repair repair;
    favourites::FavoritenEvents favoritenEvents;
    favourites::GlobalEvents globalEvents;

    launch::Prozess prozess;
    launch::RunningWatch watch;
    launch::UaeFiles uaeFiles;
    launch::ChangeScreenRes displayMode;
    launch::RunFile runFile;
    launch::StartHelpers startHelpers;
    launch::GameLaunch gameLaunch;
    launch::HandedFile handedFile;
    launch::EmulatorSetup emulatorSetup;
    launch::DriveSlots driveSlots;

    ui::Layout layout;
    ui::FontSize fontSize;
    ui::Skins skins;
    ui::WindowColors windowColors;
    ui::Hints hints;
    ui::WindowSurface surface;
    ui::PanelDrag panelDrag;
    ui::PreviewPictures previews;

    joystick::Joystick controllers;
    joystick::ListNavigation navigation;
    joystick::ButtonActions buttonActions;
    joystick::PadEvents padEvents;
    joystick::JoystickControl joystickControl;
    joystick::ExitButton exitButton;
    joystick::BoxByPad boxByPad;
    forms::OnDemand<joystick::ButtonSetupWindow> buttonSetupWindow;
    joystick::ButtonSetupOpener buttonSetup;

    Windows windowsBeside;
    settings::SettingsOpener settingsOpener;

 private:
    // One topic a file: what its events run, and what its routines ask of later ones.
    void JoinWindow();
    void JoinEmulators();
    void JoinLists();
    void JoinSearch();
    void JoinFavourites();
    void JoinLaunch();
    void JoinDrives();
    void JoinJoystick();
    void JoinSettings();
    std::unique_ptr<joystick::ButtonSetupWindow> MakeButtonSetup();
    settings::SettingsWindow::Routines SettingsRoutines();
};

}  // namespace kivu::wiring
