#pragma once

#include <string>

#include "core/ports.h"
#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "platform/log.h"
#include "platform/program_starter.h"
#include "settings/master_text.h"
#include "settings/settings_form.h"
#include "support/file_dialogs.h"

namespace kivu::core {
struct Form1;
}
namespace kivu::launch {
class GameLaunch;
class UaeFiles;
}  // namespace kivu::launch

namespace kivu::settings {

// The settings window's panel for WinUAE: its fields, and the master configuration, which all
// profiles of it share.
class WinuaeGroup {
 public:
    struct Services {
        platform::FileSystem& files;
        platform::ProgramStarter& starter;
        platform::Dialogs& dialogs;
        support::FileDialogs& fileDialogs;
        platform::Log& log;
        core::LoadingScreen& loadingScreen;
        launch::UaeFiles& uaeFiles;
        launch::GameLaunch& launch;
    };

    WinuaeGroup(SettingsForm& form, core::Form1& main, Services services)
        : form(form), main(main), services(services), master(services.files) {}

    // The handlers of the panel's controls, of WinUAEBtn and of FehlerIcon 2.
    void JoinEvents();
    // With the values of an opening window.
    void RunChangeHandlers();

    // The master's text into its box, as the window opens.
    void LoadMaster();
    // The master of an emulator that has been loaded under what the window shows: a text that has
    // been typed stays.
    void TakeMaster();
    // The box into the master, or the master into the box where another program has written it and
    // the user has not. False: it could not be written, and the user knows.
    bool SaveMaster();

    // The program is another one: WinUAE's button for it, or none of WinUAE's values.
    void TakeProgram(const std::string& path);
    // TxtMasterConfig, as another emulator's defaults have it: the file stays.
    void EmptyMasterText();

    void WinUAEBtn_Click();
    void UseMasterConfig_Click();
    void TxtKickstartRomFile_Change();
    void TxtKickstartRomFile_LostFocus();
    void BrowseKickromBtn_Click();
    void TxtMasterConfig_DblClick();
    // Takes over a configuration that WinUAE has saved.
    void Command1_Click();
    // Starts WinUAE with the master as it is on the disk.
    void Command3_Click();

 private:
    void EnableMasterControls();
    void ShowKickstartFault();
    // The master's path, of a file that is there; empty where the emulator has none.
    std::string PathOfMaster();
    void StartWith(const std::string& masterPath);
    bool WriteMaster(const std::string& path);

    SettingsForm& form;
    core::Form1& main;
    Services services;
    MasterText master;
};

}  // namespace kivu::settings
