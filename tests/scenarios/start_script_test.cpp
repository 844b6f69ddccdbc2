// The user's script that runs after a start.
#include "scenarios/mounting.h"
#include "testing/md5.h"

namespace kivu::scenarios {
namespace {

using ::testing::HasSubstr;

class StartScript : public Mounting {
 protected:
    StartScript() { Profile({{"RunVBS_Script", "1"}}); }
    void Script(const std::string& text) { tree.Write("Config/Alpha/Startscript.vbs", text); }
    bool RunnerIsThere() { return tree.Exists("Config/Alpha/Startscript.vbs.bat"); }
};

TEST_F(StartScript, ItRunsASecondAfterTheGame) {
    options.windowsStartFiles = true;
    Script("WScript.Echo 1\r\n");
    Start();
    LaunchBee();
    const Json runs = Do("runs")["value"];
    ASSERT_EQ(runs.size(), 2U);
    EXPECT_EQ(runs[0]["watched"], true);
    const std::string script = tree.Path("Config/Alpha/Startscript.vbs");
    EXPECT_THAT(runs[1]["script"].get<std::string>(), HasSubstr(script));
    EXPECT_EQ(runs[1]["command"], "\"" + script + ".bat\"");
    EXPECT_EQ(runs[1]["style"], "MinimizedNoFocus");
    EXPECT_EQ(runs[1]["wait"], false);
    EXPECT_EQ(runs[1]["watched"], false);
    EXPECT_FALSE(RunnerIsThere());
    EXPECT_EQ(Get("LoadingBtn.Caption"), "Running Startscript.vbs");
    EXPECT_EQ(Call("GetVBSFilename"), script);
}

TEST_F(StartScript, WithoutAScriptOrOffNothingRuns) {
    Start();
    LaunchBee();
    EXPECT_THAT(Ran(), ::testing::SizeIs(1));
    Script("x");
    Profile({{"RunVBS_Script", "0"}});
    Start();
    LaunchBee();
    EXPECT_THAT(Ran(), ::testing::SizeIs(1));
}

TEST_F(StartScript, VbscriptWithoutWineIsTold) {
    Script("WScript.Echo 1\r\n");
    Start();
    LaunchBee();
    EXPECT_THAT(Ran(), ::testing::SizeIs(1));
    EXPECT_EQ(Get("LoadingBtn.Caption"), "Startscript.vbs: wine not found");
    EXPECT_FALSE(RunnerIsThere());
}

// Another emulator is chosen in the second in which the script is let run.
TEST_F(StartScript, TheRunnerIsTakenAwayWhereItWasWritten) {
    options.windowsStartFiles = true;
    Script("x");
    tree.Write("Config/Beta/Startscript.vbs.bat", "the user's");
    Start();
    Host().starter.onRun = [this](const platform::StartRequest& request) {
        if (!request.watched)
            Do("set", "Form1.VBSFilename", tree.Path("Config/Beta/Startscript.vbs"));
    };
    LaunchBee();
    EXPECT_THAT(Ran(), ::testing::SizeIs(2));
    EXPECT_FALSE(RunnerIsThere());
    EXPECT_EQ(tree.Read("Config/Beta/Startscript.vbs.bat"), "the user's");
}

TEST_F(StartScript, ANewOneIsMadeFromTheTemplateAndAnOldOneNeverTouched) {
    Start();
    Do("set", "Form1.txtWinUAEExe.Text", "/Emu/winuae.exe");
    Call("EditStartScript");
    EXPECT_EQ(testing::Md5::Of(tree.Read("Config/Alpha/Startscript.vbs")),
              "36924967ff02bceb627e6572844c0ba9");
    Json runs = Do("runs")["value"];
    ASSERT_EQ(runs.size(), 1U);
    EXPECT_EQ(runs[0]["edited"], true);
    EXPECT_EQ(runs[0]["opened"], false);
    EXPECT_EQ(runs[0]["command"], tree.Path("Config/Alpha/Startscript.vbs"));
    Script("mine");
    Call("EditStartScript");
    EXPECT_EQ(tree.Read("Config/Alpha/Startscript.vbs"), "mine");
}

TEST_F(StartScript, WhatCannotBeMadeOrOpenedIsTold) {
    Start();
    Do("disk", "read-only", "Startscript");
    Call("EditStartScript");
    Do("disk", "fine");
    Host().starter.result = std::make_error_code(std::errc::no_such_file_or_directory);
    Call("EditStartScript");
    const Json boxes = Do("boxes")["value"];
    ASSERT_EQ(boxes.size(), 2U);
    const std::string script = tree.Path("Config/Alpha/Startscript.vbs");
    EXPECT_EQ(boxes[0]["text"], "This file could not be written:\r\r" + script);
    EXPECT_EQ(boxes[1]["text"], "No editor could be started for this file:\r\r" + script);
}

}  // namespace
}  // namespace kivu::scenarios
