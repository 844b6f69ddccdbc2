#pragma once

#include <functional>
#include <string>

#include "core/form1.h"
#include "launch/start_helpers.h"
#include "testing/memory_file_system.h"
#include "testing/quiet_ports.h"
#include "testing/scripted_host.h"

namespace kivu::launch {

// The user gives up once it says so.
struct GivenUpLoading : kivu::testing::QuietLoadingScreen {
    bool GivenUp() const override { return givenUp && givenUp(); }
    std::function<bool()> givenUp;
};

// The start helpers of an emulator "A" over a disk in memory.
struct HelpersRoom {
    explicit HelpersRoom(char separator)
        : files(separator), program(separator == '/' ? "/k/" : "C:\\Kivu\\") {
        host.starter.usesShell = separator == '/';
        host.starter.startFileBytes = [](std::string_view text) { return std::string(text); };
        form.AppDir = program;
        form.EXE = "Kivu";
        form.CurrentLanguage = 2;
        form.ConfigPath = program + "Config" + separator;
        form.StartPfad = form.ConfigPath + "A" + separator;
        form.BaseIniName = form.ConfigPath + "Kivu.ini";
        form.IniPath = form.StartPfad + "Kivu.ini";
        form.VBSFilename = form.StartPfad + "Startscript.vbs";
        files.AddDirectory(form.StartPfad);
        files.AddFile(form.BaseIniName, "[Settings]\r\n");
        files.AddFile(form.IniPath, "[Settings]\r\n");
        helpers.ports.loading = loading;
    }

    void Tool(const std::string& path) {
        files.AddFile(path, "x");
        files.AddFile(form.BaseIniName, "[Settings]\r\nDeamonToolPath=" + path + "\r\n");
    }
    std::string MountFileName() const { return form.StartPfad + "MountDeamon.bat"; }
    const kivu::testing::ScriptedStarter::Start& OnlyRun() {
        EXPECT_EQ(host.starter.runs.size(), 1U);
        if (host.starter.runs.empty()) host.starter.runs.emplace_back();
        return host.starter.runs[0];
    }
    std::string OnlyScript() { return OnlyRun().script.value_or("(none)"); }
    std::string OnlyBox() {
        EXPECT_EQ(host.dialogs.shown.size(), 1U);
        return host.dialogs.shown.empty() ? "" : host.dialogs.shown[0].text;
    }
    std::vector<std::string> Commands() {
        std::vector<std::string> commands;
        for (const auto& start : host.starter.runs)
            commands.push_back(start.request.command);
        return commands;
    }

    kivu::testing::MemoryFileSystem files;
    const std::string program;
    kivu::testing::ScriptedHost host{files};
    core::Form1 form{forms::Toolkit{}};
    profile::Ini ini{files};
    core::PassingFiles passing{files};
    core::EventPacer pacer{host.events, host.clock};
    GivenUpLoading loading;
    StartHelpers helpers{
        form,
        ini,
        pacer,
        {files, passing, host.starter, host.clock, host.dialogs, host.log, "/run/user/1000"}};
};

}  // namespace kivu::launch
