// A CD image is put into its drive before the game starts.
#include "scenarios/mounting.h"

namespace kivu::scenarios {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

TEST_F(Mounting, TheMountIsOverBeforeTheEmulatorStarts) {
    UseTool("/Tools/mnt");
    tree.Write("Tools/mnt", "x");
    Start();
    LaunchBee();
    const Json runs = Do("runs")["value"];
    ASSERT_EQ(runs.size(), 2U);
    EXPECT_THAT(runs[0]["script"].get<std::string>(), HasSubstr("Bee (1991)(Maker).adf"));
    EXPECT_EQ(runs[0]["wait"], true);
    EXPECT_EQ(runs[0]["style"], "MinimizedNoFocus");
    EXPECT_EQ(runs[0]["watched"], false);
    EXPECT_EQ(runs[1]["wait"], false);
    EXPECT_EQ(runs[1]["watched"], true);
    EXPECT_FALSE(MountFileIsThere());
    // The next launch finds it gone, and writes it anew.
    Do("tick", "Form1.EmuActiveTimer", 4);
    LaunchBee();
    EXPECT_THAT(Ran(), ::testing::SizeIs(2));
    EXPECT_FALSE(MountFileIsThere());
}

TEST_F(Mounting, MeanwhileTheWindowSaysSo) {
    UseTool("/Tools/mnt");
    tree.Write("Tools/mnt", "x");
    Start();
    std::vector<std::string> captions;
    Host().events.onEvents = [&] {
        if (!Host().starter.runs.empty()) captions.push_back(Form().LoadingBtn.Caption());
    };
    LaunchBee();
    ASSERT_FALSE(captions.empty());
    EXPECT_EQ(captions[0], "Deamon Tools..");
    EXPECT_EQ(Get("LoadingBtn.Caption"), "Spiel Läuft");
}

TEST_F(Mounting, WithoutTheToolThereIsABoxAndTheGameStarts) {
    UseTool("/Tools/gone");
    Start();
    LaunchBee();
    const Json boxes = Do("boxes")["value"];
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0]["text"], "Deamon Tool not found!");
    EXPECT_EQ(boxes[0]["title"], "Kivu 1.4b");
    EXPECT_THAT(Ran(), ::testing::SizeIs(1));
    EXPECT_EQ(Get("GameIsRunning"), true);
}

TEST_F(Mounting, OffTheToolIsNotEvenLookedFor) {
    UseTool("/Tools/gone");
    Profile({{"AutoMountDeamonTool", "0"}});
    Start();
    LaunchBee();
    EXPECT_EQ(Do("boxes")["value"], Json::array());
    EXPECT_THAT(Ran(), ::testing::SizeIs(1));
}

// A tool that hangs, with no loading screen.
TEST_F(Mounting, EscapeGivesTheWaitAndTheLaunchUp) {
    UseTool("/Tools/mnt");
    tree.Write("Tools/mnt", "x");
    Start();
    Do("click", "Form1.Label3");
    Host().starter.looksWhileWaiting = 1000;
    const std::string title = Text("Caption");
    int looks = 0;
    Host().events.onEvents = [&] {
        if (!Host().starter.runs.empty() && ++looks == 3) Do("key", "Form1", "Escape");
    };
    Do("dblclick", "Form1.UAE_Short", 2);
    EXPECT_GE(looks, 3);
    EXPECT_LT(looks, 20);
    EXPECT_THAT(Ran(), ::testing::SizeIs(1));
    EXPECT_EQ(Do("boxes")["value"], Json::array());
    EXPECT_FALSE(MountFileIsThere());
    EXPECT_EQ(Get("GameIsRunning"), false);
    EXPECT_EQ(Get("CurrentRunninApplication"), "");
    EXPECT_EQ(Get("EmuActiveTimer.Enabled"), false);
    EXPECT_TRUE(Visible("UAE_Short"));
    EXPECT_FALSE(Visible("LoadingBtn"));
    EXPECT_EQ(Text("Caption"), title);
    EXPECT_EQ(Get("Focus"), "Form1.UAE_Short");
    // The next launch is one again.
    Host().events.onEvents = nullptr;
    Host().starter.looksWhileWaiting = 1;
    LaunchBee();
    EXPECT_THAT(Ran(), ::testing::SizeIs(2));
}

TEST_F(Mounting, TheLoadingScreensButtonGivesItUpToo) {
    UseTool("/Tools/mnt");
    tree.AddEmulator("Alpha", {{"EmulatorPath", "/Emu/alpha"},
                               {"WinUAE_UseMasterConfig", "0"},
                               {"AutoMountDeamonTool", "1"},
                               {"SplashTimer", "6"}});
    tree.Write("Tools/mnt", "x");
    Start();
    Host().starter.looksWhileWaiting = 1000;
    bool clicked = false;
    Host().events.onEvents = [&] {
        if (clicked || Host().starter.runs.empty()) return;
        clicked = true;
        Do("click", "LoadingInfo.Command1");
    };
    LaunchBee();
    EXPECT_TRUE(clicked);
    EXPECT_THAT(Ran(), ::testing::SizeIs(1));
    EXPECT_EQ(Get("GameIsRunning"), false);
    EXPECT_EQ(Do("kills")["value"], Json::array());
    EXPECT_EQ(Do("windows")["value"].size(), 1U);
}

// Lists, tabs, other emulators and a second game wait until it is over.
TEST_F(Mounting, NothingElseIsStartedOrChosenMeanwhile) {
    UseTool("/Tools/mnt");
    tree.Write("Tools/mnt", "x");
    Start();
    Host().starter.looksWhileWaiting = 20;
    int looks = 0;
    Host().events.onEvents = [&] {
        if (Host().starter.runs.empty() || ++looks > 10) return;
        Form().EmuListbox.SetListIndex(1);
        Call("StartGame", tree.Path("Roms/Beta/Cat (1992)(Maker).adf"));
        Call("LaunchBtn_Click");
        for (const char* key : {"Enter", "Down", "F2"})
            interpreter->Execute(Json::array({"key", "Form1", key}));
    };
    LaunchBee();
    const auto ran = Ran();
    ASSERT_THAT(ran, ::testing::SizeIs(2));
    EXPECT_THAT(ran[1], HasSubstr("alpha"));
    EXPECT_EQ(Text("IniPath"), tree.Path("Config/Alpha/Kivu.ini"));
    EXPECT_EQ(Get("CurrentRunninApplication"), "alpha");
}

TEST_F(Mounting, InAReadOnlyDirectoryTheLastGamesFileIsNotRun) {
    UseTool("/Tools/mnt");
    tree.Write("Tools/mnt", "x");
    tree.Write("Config/Alpha/MountDeamon.bat", "the last game\n");
    Start();
    Do("disk", "read-only", "MountDeamon");
    LaunchBee();
    const Json runs = Do("runs")["value"];
    ASSERT_EQ(runs.size(), 3U);
    EXPECT_EQ(runs[0]["words"], Json::array({tree.Path("Tools/mnt"), "-unmount", "0"}));
    EXPECT_EQ(runs[1]["words"], Json::array({tree.Path("Tools/mnt"), "-mount", "0,", Bee()}));
    EXPECT_EQ(runs[1]["wait"], true);
    EXPECT_EQ(tree.Read("Config/Alpha/MountDeamon.bat"), "the last game\n");
}

TEST_F(Mounting, ForCmdTheFileHasTheTwoToldLines) {
    options.windowsStartFiles = true;
    UseTool("\"" + tree.Write("Tools/my tool.exe", "MZ") + "\"");
    Start();
    LaunchBee();
    const std::string tool = "\"" + tree.Path("Tools/my tool.exe") + "\"";
    EXPECT_EQ(Ran()[0], tool + " -unmount 0\r\n" + tool + "   -mount 0, \"" + Bee() + "\"\r\n");
}

TEST_F(Mounting, ABatchToolGetsNoNameThatIsActedUpon) {
    options.windowsStartFiles = true;
    UseTool(tree.Write("Tools/mnt.bat", "x"));
    tree.Write("Roms/Alpha/A&B 100%.adf", "x");
    Start();
    Call("StartGame", tree.Path("Roms/Alpha/A&B 100%.adf"));
    const Json boxes = Do("boxes")["value"];
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0]["text"], "This name cannot be given to a batch file safely:\r" +
                                    tree.Path("Roms/Alpha/A&B 100%.adf"));
    EXPECT_THAT(Ran(), ::testing::SizeIs(1));
    EXPECT_FALSE(MountFileIsThere());
}

TEST_F(Mounting, TheLogSaysWhatWasRun) {
    UseTool("/Tools/mnt");
    tree.Write("Tools/mnt", "x");
    Start();
    Do("log");
    LaunchBee();
    const Json log = Do("log")["value"];
    ASSERT_FALSE(log.empty());
    EXPECT_THAT(log[0].get<std::string>(), ::testing::StartsWith("run to its end: "));
    EXPECT_THAT(log[0].get<std::string>(), HasSubstr("MountDeamon.bat"));
}

TEST_F(Mounting, RoutinesOfFilesAreCalledByTheirNames) {
    tree.MakeDirectory("tmp");
    options.temporaryDirectory = tree.Path("tmp");
    Start();
    Host().starter.executables[Bee()] = "/usr/bin/xdg-open";
    Host().starter.executables[tree.Path("tmp/zzzzzzzTemp_gone.htm")] = "/usr/bin/browser";
    EXPECT_EQ(Call("FindExecutableOf", Bee()), "/usr/bin/xdg-open");
    EXPECT_EQ(Call("FindExecutableOf", tree.Path("gone")), "");
    EXPECT_EQ(Call("FindAssociatedProgram", tree.Path("gone.xyz")), "");
    EXPECT_EQ(Call("FindAssociatedProgram", tree.Path("gone.htm")), "/usr/bin/browser");
    EXPECT_TRUE(std::filesystem::is_empty(testing::PathOf(tree.Path("tmp"))));
    EXPECT_FALSE(tree.Exists("gone.xyz"));
    Call("ShellAndWait", "\"/a b/c\" -d", 6);
    const Json runs = Do("runs")["value"];
    ASSERT_EQ(runs.size(), 1U);
    EXPECT_EQ(runs[0]["style"], "MinimizedNoFocus");
    EXPECT_EQ(runs[0]["wait"], true);
    EXPECT_EQ(runs[0]["words"], Json::array({"/a b/c", "-d"}));
    EXPECT_TRUE(Refused("call", "ShellAndWait", "x", 5));
}

}  // namespace
}  // namespace kivu::scenarios
