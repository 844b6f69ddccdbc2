#pragma once

#include <string>

#include "core/form1.h"
#include "launch/emulator_setup.h"
#include "launch/game_launch.h"
#include "launch/uae_files.h"
#include "testing/memory_file_system.h"
#include "testing/quiet_ports.h"
#include "testing/scripted_host.h"

namespace kivu::launch {

// A missing file has no short name.
class LaunchDisk : public kivu::testing::MemoryFileSystem {
 public:
    using MemoryFileSystem::MemoryFileSystem;
    std::string ShortPathName(const std::string& path) const override {
        if (!FileExists(path) && !IsDirectory(path)) return {};
        return MemoryFileSystem::ShortPathName(path);
    }
};

// A launch with everything but the host's own programs.
struct LaunchRoom {
    LaunchRoom(char separator, const std::string& program, const std::string& emulatorName)
        : files(separator) {
        host.starter.usesShell = separator == '/';
        host.starter.startFileBytes = [this](std::string_view text) {
            return files.EncodeText(text);
        };
        form.AppDir = program;
        form.EXE = "Kivu";
        form.ConfigPath = program + "Config" + separator;
        form.StartPfad = form.ConfigPath + emulatorName + separator;
        form.BaseIniName = form.ConfigPath + "Kivu.ini";
        form.IniPath = form.StartPfad + "Kivu.ini";
        form.TmpBatName = form.StartPfad + "Kivu_tmp.bat";
        form.StartScriptName = form.StartPfad + "Kivu_StartScript.uaecfg";
        Profile("");
        uae.hooks.Add_CURRENT_PROGRAM_STARTED = [this](std::string& name) {
            launch.Add_CURRENT_PROGRAM_STARTED(name);
        };
    }

    void Profile(const std::string& settings) {
        files.AddFile(form.IniPath, "[Settings]\r\n" + settings);
    }
    void Emulator(const std::string& path) {
        files.AddFile(path, "MZ");
        form.txtWinUAEExe.SetText(path);
    }
    void Launch(const std::string& game, bool exists = true) {
        if (exists) files.AddFile(game, "x");
        launch.StartGame(game);
    }
    std::string StartFile() { return files.BytesOf(form.StartPfad + "Kivu_tmp.bat"); }
    std::string Companion() { return files.BytesOf(form.StartPfad + "Kivu_tmp_wine.bat"); }

    LaunchDisk files;
    kivu::testing::ScriptedHost host{files};
    core::Form1 form{forms::Toolkit{}};
    profile::Ini ini{files};
    core::EventPacer pacer{host.events, host.clock};
    core::BusyState busy{form, host.events};
    support::AlwaysOnTop alwaysOnTop{
        form, {form.AOT_Enabled, form.AOT_Disabled, form.AOT_MouseMove}, host.userStore};
    kivu::testing::QuietChoice choice;
    kivu::testing::QuietFront front;
    kivu::testing::QuietWatch watch;
    kivu::testing::QuietStartHelpers helpers;
    UaeFiles uae{form, files, host.log};
    GameLaunch launch{form,
                      ini,
                      busy,
                      pacer,
                      {files, host.starter, host.clock, host.dialogs, host.beeper, host.log},
                      {choice, front, alwaysOnTop, uae, helpers}};
    EmulatorSetup setup{
        form, ini, pacer, {files, host.starter, host.clock, host.dialogs, host.log}, watch};
};

}  // namespace kivu::launch
