#pragma once

#include <cstdint>
#include <string>

#include "core/busy_state.h"
#include "core/hook.h"
#include "core/ports.h"
#include "launch/prozess.h"
#include "platform/dialogs.h"
#include "platform/event_pump.h"
#include "platform/log.h"
#include "profile/ini.h"
#include "support/always_on_top.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::launch {

// Looks for the started emulator once a second, shows that it runs, ends it on request, and brings
// the list back when it has gone. The launcher holds no handle to it: its name is all there is.
class RunningWatch : public core::RunningEmulator {
 public:
    struct Hooks {
        core::Hook<void(bool)> JoystickEnable{"RunningWatch.JoystickEnable"};
        // The picture in its place, not over the sign that something runs.
        core::Hook<void()> SetVorschau{"RunningWatch.SetVorschau"};
        core::Hook<void()> RestoreDisplayMode{"RunningWatch.RestoreDisplayMode"};
        // Buttons of the controller that are still held from the game.
        core::Hook<void()> HoldButtonsBack{"RunningWatch.HoldButtonsBack"};
    };
    struct Routines {
        core::EmulatorChoice& choice;
        core::ListFront& front;
        support::AlwaysOnTop& alwaysOnTop;
    };

    RunningWatch(core::Form1& form, profile::Ini& ini, Prozess& processes, core::BusyState& busy,
                 platform::EventPump& events, platform::Dialogs& dialogs, platform::Log& log,
                 Routines routines)
        : form(form),
          ini(ini),
          processes(processes),
          busy(busy),
          events(events),
          dialogs(dialogs),
          log(log),
          routines(routines) {}

    // The timer's tick: a look, unless a switch, a rescan or a launch is under way. The end of a
    // game would bring lists back that it is filling.
    void Tick();
    void EmuActiveTimer_Timer() override;
    void AppRunningPicture_Click() override;
    void LoadingBtn_Click();
    void LoadingBtn_Change();
    void HideListsOfRunning() override;
    void WatchOnce() override;
    void KillRunning() override;

    Hooks hooks;

 private:
    void ShowRunning();
    void EndOfGame();
    void LogEnd();
    void Kill(std::int32_t id, const std::string& name);
    void EndEmulator();
    // What a launch that is under way would still do for its game is not done.
    void StopLaunch();

    core::Form1& form;
    profile::Ini& ini;
    Prozess& processes;
    core::BusyState& busy;
    platform::EventPump& events;
    platform::Dialogs& dialogs;
    platform::Log& log;
    Routines routines;
    std::string seenRunning;  // what has come up, until it has gone
    bool looking = false;
};

}  // namespace kivu::launch
