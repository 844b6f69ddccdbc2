// What comes in the middle of a mount, of the second in front of a script, of a download.
#include "scenarios/mounting.h"

namespace kivu::scenarios {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class StartMoments : public Mounting {
 protected:
    // Commands may be refused: they are what somebody tries.
    void Try(const Json& command) { interpreter->Execute(command); }
    std::string Cat() { return tree.Path("Roms/Beta/Cat (1992)(Maker).adf"); }
};

TEST_F(StartMoments, WhileItMountsNoWindowOpensAndNothingIsSearchedOrScanned) {
    UseTool("/Tools/mnt");
    tree.Write("Tools/mnt", "x");
    Start();
    Host().starter.looksWhileWaiting = 10;
    int looks = 0;
    Host().events.onEvents = [&] {
        if (Host().starter.runs.size() != 1 || ++looks > 5) return;
        for (const char* button : {"LoadBtn", "SettingsBtn", "SettingsShortBtn", "LaunchBtn"})
            Try(Json::array({"click", std::string("Form1.") + button}));
        Try(Json::array({"type", "Form1.SearchDblsTxt", "Bee"}));
        Try(Json::array({"summon", Cat()}));
        EXPECT_THAT(Do("windows")["value"], SizeIs(1)) << looks;
        EXPECT_TRUE(MountFileIsThere()) << looks;
    };
    LaunchBee();
    EXPECT_GT(looks, 5);
    const auto ran = Ran();
    ASSERT_THAT(ran, SizeIs(2));
    EXPECT_THAT(ran[0], HasSubstr("Bee (1991)"));
    EXPECT_THAT(ran[1], HasSubstr("alpha"));
    EXPECT_EQ(Get("CurrentRunninApplication"), "alpha");
    EXPECT_FALSE(MountFileIsThere());
}

TEST_F(StartMoments, ABatchToolThatHangsIsGivenUpLikeAnyOther) {
    options.windowsStartFiles = true;
    UseTool(tree.Write("Tools/mnt.bat", "x"));
    Start();
    Host().starter.looksWhileWaiting = 1000;
    int looks = 0;
    Host().events.onEvents = [&] {
        if (!Host().starter.runs.empty() && ++looks == 3) Do("key", "Form1", "Escape");
    };
    LaunchBee();
    EXPECT_GE(looks, 3);
    EXPECT_LT(looks, 20);
    EXPECT_THAT(Ran(), SizeIs(1));
    EXPECT_FALSE(MountFileIsThere());
    EXPECT_EQ(Get("GameIsRunning"), false);
}

TEST_F(StartMoments, TheBoxOfAMissingToolLiesAboveTheLoadingScreen) {
    UseTool("/Tools/gone");
    Profile({{"AutoMountDeamonTool", "1"}, {"SplashTimer", "6"}});
    Start();
    bool free = true;
    Host().dialogs.onShow = [&] { free = Do("get", "LoadingInfo.AboveAll")["value"] == true; };
    LaunchBee();
    EXPECT_FALSE(free);
    EXPECT_EQ(Do("get", "LoadingInfo.AboveAll")["value"], true);
    EXPECT_EQ(Do("boxes")["value"][0]["text"], "Deamon Tool not found!");
    EXPECT_THAT(Ran(), SizeIs(1));
    EXPECT_EQ(Get("GameIsRunning"), true);
}

// In the second in front of it everything is tried that would load another emulator.
TEST_F(StartMoments, TheScriptIsThatOfTheGamesEmulator) {
    options.windowsStartFiles = true;
    Profile({{"RunVBS_Script", "1"}});
    tree.Write("Config/Alpha/Startscript.vbs", "x");
    tree.Write("Config/Beta/Startscript.vbs", "x");
    Start();
    int rests = 0;
    Host().clock.onRest = [&] {
        if (++rests > 5) return;
        Try(Json::array({"dblclick", "Form1.EmuListbox", 1}));
        Try(Json::array({"dblclick", "Form1.EmulatorLongListbox", 1}));
        Try(Json::array({"summon", Cat()}));
        Try(Json::array({"key", "Form1", "Enter"}));
    };
    LaunchBee();
    EXPECT_GT(rests, 5);
    const auto ran = Ran();
    ASSERT_THAT(ran, SizeIs(2));
    EXPECT_THAT(ran[1], HasSubstr("Alpha"));
    EXPECT_THAT(ran[1], HasSubstr("Startscript.vbs"));
    EXPECT_EQ(Get("CurrentRunninApplication"), "alpha");
}

// The updater is on its way.
TEST_F(StartMoments, AProgramThatEndsInAnUpdateRunsNothing) {
    options.build.updateBase = "https://h";
    options.build.replacesItself = true;
    Start();
    Do("download", "serve", "https://h/Update.exe", "MZ");
    Do("meanwhile", "events", 1, Json::array({"signal"}));
    const Json answer = Do("call", "DownloadUpdateWithUpdater", "https://h/Kivu/Kivu.exe",
                           tree.Path("Kivu.exe"), tree.Path("Updater.exe"), "https://h/Update.exe");
    EXPECT_EQ(answer["ended"], true) << answer;
    EXPECT_THAT(Ran(), IsEmpty());
    EXPECT_EQ(Do("boxes")["value"], Json::array());
    EXPECT_FALSE(tree.Exists("Updater.exe"));
}

}  // namespace
}  // namespace kivu::scenarios
