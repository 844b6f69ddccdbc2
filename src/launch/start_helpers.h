#pragma once

#include <string>
#include <vector>

#include "core/busy_state.h"
#include "core/hook.h"
#include "core/passing_files.h"
#include "core/ports.h"
#include "launch/mount_file.h"
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

// What a launch runs beside the emulator: the tool that puts a CD image into its drive, and the
// user's script. The small files for them are written, run and taken away again.
class StartHelpers : public core::StartHelpers {
 public:
    struct Ports {
        core::Port<core::LoadingScreen> loading{"StartHelpers.loading"};
    };
    struct Services {
        platform::FileSystem& files;
        core::PassingFiles& passing;
        platform::ProgramStarter& starter;
        platform::Clock& clock;
        platform::Dialogs& dialogs;
        platform::Log& log;
        std::string runtimeDirectory;  // of the user; empty: there is none
    };

    StartHelpers(core::Form1& form, profile::Ini& ini, core::EventPacer& pacer, Services services)
        : form(form), ini(ini), pacer(pacer), services(std::move(services)) {}

    bool MountGameImage(const std::string& GamePath) override;
    void RunStartScript() override;
    void EditStartScript() override;
    const std::string& GetVBSFilename() const;

    Ports ports;

 private:
    std::string ToolSetting();
    void Mount(const std::string& game);
    MountFile MountFileFor(const std::string& tool, const std::string& game) const;
    void RunMountFile(const MountFile& file);
    // While events run. False: given up.
    bool RunToItsEnd(const platform::StartRequest& request);
    void TellOfRefusedName(const std::string& tool, const std::string& game);
    // The start file is there with this text, until it is deleted or the program ends. False: it is
    // not, and must not be run.
    bool WriteStartFile(const std::string& path, const std::string& text);
    // What runs a script on a host with a shell; empty: it is not installed, and the user knows.
    std::vector<std::string> RunnerWords(const std::string& script);
    platform::StartRequest Request() const;
    platform::StartRequest StartFileRequest(const std::string& path) const;

    core::Form1& form;
    profile::Ini& ini;
    core::EventPacer& pacer;
    Services services;
};

}  // namespace kivu::launch
