#pragma once

#include <string>

#include "core/busy_state.h"
#include "core/ports.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "platform/log.h"
#include "platform/program_starter.h"
#include "profile/ini.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::launch {

// Opens an emulator alone, without a game, to set it up.
class EmulatorSetup {
 public:
    struct Services {
        platform::FileSystem& files;
        platform::ProgramStarter& starter;
        platform::Clock& clock;
        platform::Dialogs& dialogs;
        platform::Log& log;
    };

    EmulatorSetup(core::Form1& form, profile::Ini& ini, core::EventPacer& pacer, Services services,
                  core::RunningEmulator& watch)
        : form(form), ini(ini), pacer(pacer), services(services), watch(watch) {}

    void StartEmulator(const std::string& EName, bool ConfirmationMessagebox);
    // The same with a program that is there, which is watched from then on. `what`: in the log.
    // Nothing happens while another one is being started.
    void StartProgram(const std::string& path, const std::string& what);

 private:
    std::string EmulatorOf(const std::string& name) const;
    void Start(const std::string& path, const std::string& what);
    void SayMissing(const std::string& name, const std::string& path);

    core::Form1& form;
    profile::Ini& ini;
    core::EventPacer& pacer;
    Services services;
    core::RunningEmulator& watch;
    bool starting = false;
};

}  // namespace kivu::launch
