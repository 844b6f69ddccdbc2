#pragma once

#include <string>

#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "settings/settings_form.h"
#include "support/file_dialogs.h"

namespace kivu::core {
struct Form1;
}
namespace kivu::launch {
class EmulatorSetup;
}

namespace kivu::settings {

class KnownGroup;
class NewEmulatorGroup;
class WinuaeGroup;

// The settings window's fields for the emulator's program and for the directory of its games: what
// happens as they are typed, chosen and left.
class PathsGroup {
 public:
    struct Services {
        platform::FileSystem& files;
        platform::Dialogs& dialogs;
        support::FileDialogs& fileDialogs;
        launch::EmulatorSetup& setup;
    };
    struct Routines {
        KnownGroup& known;
        WinuaeGroup& winuae;
        NewEmulatorGroup& newEmulator;
    };

    PathsGroup(SettingsForm& form, core::Form1& main, Services services, Routines routines)
        : form(form), main(main), services(services), routines(routines) {}

    // The handlers of the two fields, of their buttons and of FehlerIcon 0 and 1.
    void JoinEvents();
    // With the values of an opening window. `usesTemplate`: the profile starts its program as
    // WinUAE is started, whatever that is called, and keeps WinUAE's values.
    void RunChangeHandlers(bool usesTemplate = false);

    void txtWinUAEExe_Change();
    void txtWinUAEExe_GotFocus();
    void txtWinUAEExe_LostFocus();
    void TxtRomPath_Change();
    void TxtRomPath_LostFocus();
    // Looks for the emulator's program.
    void Command2_Click();
    void BrowseDir_Click();
    // Starts the emulator without a game.
    void LaunchButton_Click();

 private:
    void ShowProgramFault();
    void ShowRomPathFault();
    bool IsUsable(const std::string& romPath) const;
    // A directory that the user has chosen gives way to none that is guessed, unless the program
    // is another one.
    bool MayGuessGames() const;
    void GuessGames();

    SettingsForm& form;
    core::Form1& main;
    Services services;
    Routines routines;
};

}  // namespace kivu::settings
