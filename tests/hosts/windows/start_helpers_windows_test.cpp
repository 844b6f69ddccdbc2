// The tool for CD images and the start script, run by the real command processor.

#include <gmock/gmock.h>
#include <utility>

#include "core/form1.h"
#include "hosts/windows/file_system_windows.h"
#include "hosts/windows/program_starter_windows.h"
#include "hosts/windows/started_program.h"
#include "launch/start_helpers.h"
#include "testing/quiet_ports.h"
#include "testing/scripted_host.h"

namespace kivu::launch {
namespace {

using hosts::Wide;
using kivu::testing::CurrentDirectoryKeeper;
using kivu::testing::Eventually;
using kivu::testing::ScratchDirectory;
using kivu::testing::StartedPrograms;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

class RealHelpers : public ::testing::Test {
 protected:
    RealHelpers() {
        StartedPrograms::Instance();
        disk.MakeDirectory("Config");
        disk.MakeDirectory("Config\\R&D 100%");
        form.AppDir = disk.Path("");
        form.ConfigPath = disk.Path("Config\\");
        form.StartPfad = form.ConfigPath + "R&D 100%\\";
        form.BaseIniName = form.ConfigPath + "Kivu.ini";
        form.IniPath = form.StartPfad + "Kivu.ini";
        form.VBSFilename = form.StartPfad + "Startscript.vbs";
        helpers.ports.loading = loading;
    }
    ~RealHelpers() override { StartedPrograms::Instance().Kill(); }

    void UseTool(const std::string& path) {
        const std::string profile = "[Settings]\r\nDeamonToolPath=" + path + "\r\n";
        EXPECT_FALSE(files.WriteFile(form.BaseIniName, profile));
    }
    // The last of the tool's two calls, once both have ended.
    std::vector<std::string> Mount(const std::string& game) {
        EXPECT_TRUE(helpers.MountGameImage(game));
        EXPECT_TRUE(telling.HasTold()) << "was not waited for: " << game;
        const auto told = telling.Wait();
        EXPECT_FALSE(files.FileExists(form.StartPfad + "MountDeamon.bat"));
        return told ? told->words : std::vector<std::string>();
    }

    CurrentDirectoryKeeper keeper;
    ScratchDirectory disk;
    kivu::testing::Telling telling;
    hosts::WindowsFileSystem files;
    core::PassingFiles passing{files};
    hosts::WindowsProgramStarter starter;
    kivu::testing::ScriptedClock clock;
    kivu::testing::ScriptedDialogs dialogs;
    kivu::testing::ScriptedEvents events;
    kivu::testing::ScriptedLog log;
    core::Form1 form{forms::Toolkit{}};
    profile::Ini ini{files};
    core::EventPacer pacer{events, clock};
    kivu::testing::QuietLoadingScreen loading;
    StartHelpers helpers{form, ini, pacer, {files, passing, starter, clock, dialogs, log, ""}};
};

TEST_F(RealHelpers, TheToolGetsTheImageWhateverItsName) {
    const std::string tool = disk.Path("my & tool 100%.exe");
    telling.Install(tool);
    UseTool(tool);
    for (const char* name : {"plain.iso", "two words.iso", "A & B.iso", "A&B.iso", "100%.cue",
                             "x^y.iso", "wow! (x).iso", "it's.iso"}) {
        const std::string game = disk.Path(name);
        EXPECT_THAT(Mount(game), ElementsAre("-mount", "0,", game));
    }
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(RealHelpers, WhatTheCodePageLacksIsMountedToo) {
    const std::string tool = disk.Path("tool.exe");
    telling.Install(tool);
    UseTool(tool);
    const std::string game = disk.Path("\xE6\x97\xA5\xE6\x9C\xAC.iso");
    EXPECT_THAT(Mount(game), ElementsAre("-mount", "0,", game));
}

// Its second line would never run.
TEST_F(RealHelpers, ABatchToolIsCalledTwice) {
    const std::string record = disk.Path("record");
    UseTool(disk.Write("tool.bat", "@echo %*>>\"" + record + "\"\r\n"));
    EXPECT_TRUE(helpers.MountGameImage(disk.Path("a.iso")));
    const std::string text = disk.Read("record");
    EXPECT_THAT(text, HasSubstr("-unmount 0"));
    EXPECT_THAT(text, HasSubstr("-mount 0, " + disk.Path("a.iso")));
}

TEST_F(RealHelpers, TheSystemsEditorOpensATextAndNeverRunsIt) {
    const std::string program = disk.Path("a b.exe");
    telling.Install(program);
    EXPECT_FALSE(starter.EditText(program));
    EXPECT_FALSE(telling.HasTold());
    for (const std::string& none : {std::string(), std::string("C:\\a\" b"), std::string("a\0", 2)})
        EXPECT_TRUE(starter.EditText(none)) << none;
}

// The script's file type, for this user, until the end of the test. Wine has none of its own.
class RealScript : public RealHelpers {
 protected:
    RealScript() {
        telling.Install(disk.Path("host.exe"));
        SetValue(L".kivuvbs", L"KivuTestScript");
        SetValue(L"KivuTestScript\\shell\\open\\command",
                 L"\"" + Wide(disk.Path("host.exe")) + L"\" opened \"%1\" %*");
    }
    ~RealScript() override {
        for (const wchar_t* key : {L".kivuvbs", L"KivuTestScript"}) {
            ::RegDeleteTreeW(HKEY_CURRENT_USER,
                             (L"Software\\Classes\\" + std::wstring(key)).c_str());
            ::RegDeleteTreeW(HKEY_CLASSES_ROOT, key);
        }
    }
    static void SetValue(const std::wstring& key, const std::wstring& text) {
        const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
        for (const auto& [root, path] : {std::pair(HKEY_CURRENT_USER, L"Software\\Classes\\" + key),
                                         std::pair(HKEY_CLASSES_ROOT, key)})
            EXPECT_EQ(::RegSetKeyValueW(root, path.c_str(), nullptr, REG_SZ, text.c_str(), size),
                      ERROR_SUCCESS);
    }
};

TEST_F(RealScript, ItRunsByItsFileTypeAndTheRunnerGoes) {
    if (kivu::testing::IsWine())
        GTEST_SKIP() << "Wine's command processor runs no document by its file type";
    form.VBSFilename = form.StartPfad + "Startscript.kivuvbs";
    EXPECT_FALSE(files.WriteFile(form.VBSFilename, "x"));
    // The second that it is given is as long as it takes.
    std::optional<kivu::testing::Told> told;
    bool asked = false;
    clock.onRest = [&] {
        if (!std::exchange(asked, true)) told = telling.Wait();
    };
    helpers.RunStartScript();
    ASSERT_TRUE(told);
    ASSERT_EQ(told->words.size(), 2U);
    EXPECT_EQ(told->words[1], form.VBSFilename);
    EXPECT_TRUE(Eventually([] { return StartedPrograms::Instance().HaveEnded(); }));
    EXPECT_FALSE(files.FileExists(form.VBSFilename + ".bat"));
}

}  // namespace
}  // namespace kivu::launch
