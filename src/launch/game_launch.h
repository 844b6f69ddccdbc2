#pragma once

#include <string>
#include <vector>

#include "core/busy_state.h"
#include "core/hook.h"
#include "core/ports.h"
#include "launch/start_parameters.h"
#include "platform/beeper.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "platform/log.h"
#include "platform/program_starter.h"
#include "profile/ini.h"
#include "support/always_on_top.h"

namespace kivu::forms {
class Control;
}
namespace kivu::core {
struct Form1;
}

namespace kivu::launch {

class UaeFiles;

// From a chosen game to a running emulator: parameters, start file, start. Nothing waits for the
// emulator; from then on the watch knows about it by its name.
class GameLaunch : public core::Launching {
 public:
    struct Hooks {
        // The picture in its place, over which the signs of the launch show.
        core::Hook<void()> SetVorschau{"GameLaunch.SetVorschau"};
        core::Hook<void()> ShowLoadingInfo{"GameLaunch.ShowLoadingInfo"};
        core::Hook<void(bool)> JoystickEnable{"GameLaunch.JoystickEnable"};
        core::Hook<void()> WatchExitButton{"GameLaunch.WatchExitButton"};
    };

    struct Services {
        platform::FileSystem& files;
        platform::ProgramStarter& starter;
        platform::Clock& clock;
        platform::Dialogs& dialogs;
        platform::Beeper& beeper;
        platform::Log& log;
    };

    struct Routines {
        core::EmulatorChoice& choice;
        core::ListFront& front;
        support::AlwaysOnTop& alwaysOnTop;
        UaeFiles& uaeFiles;
        core::StartHelpers& helpers;
    };

    GameLaunch(core::Form1& form, profile::Ini& ini, core::BusyState& busy, core::EventPacer& pacer,
               Services services, Routines routines)
        : form(form), ini(ini), busy(busy), pacer(pacer), services(services), routines(routines) {}

    // The row of UAE_FULL at the selected row of UAE_Short.
    void LaunchBtn_Click() override;
    void StartGame(const std::string& GamePath) override;

    void SetCurrentRunninApplication(const std::string& NewAppPAth);
    // Appends one entry; the name becomes the short one that stands in the list.
    std::string Add_CURRENT_PROGRAM_STARTED(std::string& name);
    const std::string& Get_CURRENT_PROGRAM_STARTED() const;
    std::string FindStartFile(const std::string& path);

    Hooks hooks;

 private:
    // What one launch works out on its way; events run in between, and may change the window's
    // fields.
    struct Run {
        std::string path;      // of the game, plain
        std::string argument;  // the same as it goes on a command line
        std::string emulator;
        int useQuote = 0;
        bool useMasterConfig = false;
        bool windowsPaths = false;  // a Windows program on a POSIX host
        bool startFileFailed = false;
        bool direct = false;           // no start file can say it safely
        bool companionFailed = false;  // the batch file for a batch emulator is not there
        StartParameters parameters;
    };

    class Underway;

    void Prepare(Run& run);
    void BuildParameters(Run& run);
    void AppendGame(Run& run);
    bool GameExists(const Run& run);
    void LogRun(const Run& run) const;
    void LogRefusal(const Run& run) const;
    bool WriteStartFile(Run& run);
    bool WriteShellStartFile(Run& run, const std::string& directory);
    std::vector<std::string> HostWords(Run& run, bool& safe);
    std::string CompanionName() const;
    void TellOfMissingStartFile(const std::string& path);
    void EnterEmulatorDirectory(const Run& run);
    // False: the user has given the launch up meanwhile.
    bool ShowLoadingAndMount(const Run& run);
    void StartEmulatorProgram(Run& run);
    void FinishStart(const std::string& notedTitle);
    void RunScriptOfGame();
    void GiveUp(const Run& run, const std::string& notedTitle, forms::Control* focus);
    void ReturnToLists(forms::Control* focus);

    core::Form1& form;
    profile::Ini& ini;
    core::BusyState& busy;
    core::EventPacer& pacer;
    Services services;
    Routines routines;
    bool launching = false;
};

}  // namespace kivu::launch
