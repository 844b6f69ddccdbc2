#pragma once

#include <cstdint>
#include <string>

#include "core/busy_state.h"
#include "core/form1.h"
#include "core/hook.h"
#include "launch/prozess.h"
#include "platform/dialogs.h"
#include "platform/event_pump.h"
#include "platform/log.h"
#include "profile/ini.h"

namespace kivu::launch {

// Looks for the started emulator once a second, shows that it runs, ends it on request, and brings
// the list back when it has gone. The launcher holds no handle to it: its name is all there is.
class RunningWatch {
 public:
    struct Hooks {
        core::Hook<void()> CloseChoice;
        core::Hook<void()> WIthoutDoubles_GotFocus;
        core::Hook<void()> RefreshList;
        core::Hook<void()> Label1_Click;
        core::Hook<void()> Label2_Click;
        core::Hook<void(bool)> JoystickEnable;
        core::Hook<void()> SetToTop;
        core::Hook<void()> RestoreDisplayMode;
    };

    RunningWatch(core::Form1& form, profile::Ini& ini, Prozess& processes, core::BusyState& busy,
                 platform::EventPump& events, platform::Dialogs& dialogs, platform::Log& log)
        : form(form),
          ini(ini),
          processes(processes),
          busy(busy),
          events(events),
          dialogs(dialogs),
          log(log) {}

    void EmuActiveTimer_Timer();
    // The user ends the emulator.
    void AppRunningPicture_Click();
    void LoadingBtn_Click();
    void LoadingBtn_Change();
    // A list that another routine has brought up meanwhile goes again, while an emulator runs.
    void HideListsOfRunning();
    // The one look that a change of emulator takes; nothing to do until something has been started.
    void WatchOnce();

    Hooks hooks;

 private:
    void ShowRunning();
    void EndOfGame();
    void LogEnd();
    void Kill(std::int32_t id, const std::string& name);
    void EndEmulator();

    core::Form1& form;
    profile::Ini& ini;
    Prozess& processes;
    core::BusyState& busy;
    platform::EventPump& events;
    platform::Dialogs& dialogs;
    platform::Log& log;
    std::string seenRunning;  // what has come up, until it has gone
    bool looking = false;
};

}  // namespace kivu::launch
