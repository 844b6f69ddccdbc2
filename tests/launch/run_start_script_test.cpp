#include <gmock/gmock.h>

#include "launch/helpers_room.h"
#include "testing/md5.h"

namespace kivu::launch {
namespace {

using platform::WindowStyle;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct ScriptShell : ::testing::Test, HelpersRoom {
    ScriptShell() : HelpersRoom('/') { files.AddFile("/usr/bin/env", "x"); }
    void Script(const std::string& text) { files.AddFile(form.VBSFilename, text); }
};
struct ScriptCmd : ::testing::Test, HelpersRoom {
    ScriptCmd() : HelpersRoom('\\') {}
};

TEST_F(ScriptShell, ItsFirstLineSaysWhatRunsIt) {
    Script("#!/usr/bin/env python3\r\nprint()\r\n");
    helpers.RunStartScript();
    EXPECT_EQ(OnlyScript(), "'/usr/bin/env' 'python3' '/k/Config/A/Startscript.vbs'\n");
    const platform::StartRequest& run = OnlyRun().request;
    EXPECT_THAT(run.words, ElementsAre("/k/Config/A/Startscript.vbs.bat"));
    EXPECT_TRUE(run.startFile);
    EXPECT_FALSE(run.wait);
    EXPECT_FALSE(run.watched);
    EXPECT_EQ(run.style, WindowStyle::MinimizedNoFocus);
    EXPECT_FALSE(files.FileExists("/k/Config/A/Startscript.vbs.bat"));
    EXPECT_TRUE(files.FileExists(form.VBSFilename));
}

TEST_F(ScriptShell, VbscriptNeedsWine) {
    Script("WScript.Echo 1\r\n");
    helpers.RunStartScript();
    EXPECT_THAT(host.starter.runs, IsEmpty());
    EXPECT_EQ(form.LoadingBtn.Caption(), "Startscript.vbs: wine not found");
    EXPECT_EQ(host.log.lines.back(), "start script not run, not found: wine");
    host.starter.path["wine"] = "/usr/bin/wine";
    helpers.RunStartScript();
    EXPECT_EQ(OnlyScript(), "'wine' 'cscript' 'Z:\\k\\Config\\A\\Startscript.vbs'\n");
}

TEST_F(ScriptShell, AMissingInterpreterIsTold) {
    Script("#!/opt/gone -x\n");
    helpers.RunStartScript();
    EXPECT_THAT(host.starter.runs, IsEmpty());
    EXPECT_EQ(form.LoadingBtn.Caption(), "Startscript.vbs: /opt/gone not found");
}

TEST_F(ScriptShell, CapitalsOfItsNameDoNotMatter) {
    files.AddFile("/k/Config/A/STARTSCRIPT.vbs", "#!/usr/bin/env sh\n");
    helpers.RunStartScript();
    EXPECT_EQ(OnlyScript(), "'/usr/bin/env' 'sh' '/k/Config/A/STARTSCRIPT.vbs'\n");
}

TEST_F(ScriptShell, WithoutAScriptNothingIsRunAndNothingWaits) {
    const auto before = host.clock.Steady();
    helpers.RunStartScript();
    form.VBSFilename.clear();
    helpers.RunStartScript();
    EXPECT_THAT(host.starter.runs, IsEmpty());
    EXPECT_EQ(host.clock.Steady(), before);
}

TEST_F(ScriptShell, WhereNoRunnerCanBeWrittenTheWordsRunByThemselves) {
    Script("#!/usr/bin/env python3\n");
    files.SetReadOnly("/k/Config/A");
    helpers.RunStartScript();
    EXPECT_THAT(OnlyRun().request.words,
                ElementsAre("/usr/bin/env", "python3", "/k/Config/A/Startscript.vbs"));
    EXPECT_FALSE(OnlyRun().request.startFile);
}

// An emulator can be chosen in the second that is waited.
TEST_F(ScriptShell, TheRunnerIsTakenAwayByTheNameThatItWasWrittenUnder) {
    Script("#!/usr/bin/env python3\n");
    files.AddFile("/k/Config/B/Startscript.vbs.bat", "not ours");
    host.events.onEvents = [this] { form.VBSFilename = "/k/Config/B/Startscript.vbs"; };
    helpers.RunStartScript();
    EXPECT_FALSE(files.FileExists("/k/Config/A/Startscript.vbs.bat"));
    EXPECT_EQ(files.BytesOf("/k/Config/B/Startscript.vbs.bat"), "not ours");
}

TEST_F(ScriptShell, AnEndlessFirstLineIsReadInPart) {
    Script("#!/usr/bin/env " + std::string(1 << 20, 'x'));
    helpers.RunStartScript();
    EXPECT_LT(OnlyScript().size(), 5000U);
}

TEST_F(ScriptCmd, ItRunsByItsFileType) {
    files.AddFile(form.VBSFilename, "x");
    helpers.RunStartScript();
    EXPECT_EQ(OnlyScript(), "C:\\Kivu\\Config\\A\\Startscript.vbs\r\n");
    EXPECT_EQ(OnlyRun().request.command, "\"C:\\Kivu\\Config\\A\\Startscript.vbs.bat\"");
    EXPECT_FALSE(files.FileExists("C:\\Kivu\\Config\\A\\Startscript.vbs.bat"));
}

TEST_F(ScriptCmd, NoCharacterOfItsPathIsActedUpon) {
    form.VBSFilename = "C:\\R&D\\100% x\\Startscript.vbs";
    files.AddFile(form.VBSFilename, "x");
    helpers.RunStartScript();
    EXPECT_EQ(OnlyScript(), "\"C:\\R&D\\100%% x\\Startscript.vbs\"\r\n");
}

TEST_F(ScriptCmd, WhatTheCodePageLacksRunsDirectly) {
    files.AddFile(form.VBSFilename, "x");
    host.starter.startFileBytes = [](std::string_view) { return std::nullopt; };
    helpers.RunStartScript();
    EXPECT_EQ(OnlyRun().request.command, "wscript.exe \"C:\\Kivu\\Config\\A\\Startscript.vbs\"");
    EXPECT_FALSE(OnlyRun().request.startFile);
}

TEST_F(ScriptShell, AScriptIsMadeFromTheTemplateAndEdited) {
    form.txtWinUAEExe.SetText("/Emu/winuae.exe");
    helpers.EditStartScript();
    EXPECT_EQ(testing::Md5::Of(files.BytesOf(form.VBSFilename)),
              "36924967ff02bceb627e6572844c0ba9");
    EXPECT_TRUE(OnlyRun().edited);
    EXPECT_EQ(OnlyRun().request.command, form.VBSFilename);
    EXPECT_THAT(host.dialogs.shown, IsEmpty());
}

TEST_F(ScriptShell, AScriptThatIsThereIsOnlyEdited) {
    files.AddFile("/k/Config/A/StartScript.VBS", "mine");
    files.changes.clear();
    helpers.EditStartScript();
    EXPECT_EQ(OnlyRun().request.command, "/k/Config/A/StartScript.VBS");
    EXPECT_EQ(files.BytesOf("/k/Config/A/StartScript.VBS"), "mine");
    EXPECT_THAT(files.changes, IsEmpty());
}

TEST_F(ScriptShell, WhatCannotBeWrittenIsToldAndNotEdited) {
    files.SetReadOnly("/k/Config/A");
    helpers.EditStartScript();
    EXPECT_EQ(OnlyBox(), "This file could not be written:\r\r/k/Config/A/Startscript.vbs");
    EXPECT_THAT(host.starter.runs, IsEmpty());
}

TEST_F(ScriptShell, AnEditorThatCannotBeOpenedIsTold) {
    Script("mine");
    form.CurrentLanguage = 1;
    host.starter.result = std::make_error_code(std::errc::no_such_file_or_directory);
    helpers.EditStartScript();
    EXPECT_EQ(
        OnlyBox(),
        "Diese Datei konnte in keinem Editor geöffnet werden:\r\r/k/Config/A/Startscript.vbs");
}

TEST_F(ScriptShell, WithoutAnEmulatorThereIsNothingToEdit) {
    form.VBSFilename.clear();
    helpers.EditStartScript();
    EXPECT_THAT(host.starter.runs, IsEmpty());
    EXPECT_THAT(files.changes, IsEmpty());
}

TEST_F(ScriptCmd, TheTemplateIsInTheCodePageOfScripts) {
    form.txtWinUAEExe.SetText("C:\\Emu\\Gr\xC3\xBC\xC3\x9F.exe");
    helpers.EditStartScript();
    EXPECT_THAT(files.BytesOf(form.VBSFilename),
                ::testing::StartsWith("' === Startscript for Gr\xFC\xDF ===\r\n"));
}

}  // namespace
}  // namespace kivu::launch
