#include "scenarios/launches.h"

namespace kivu::scenarios {
namespace {

using ::testing::HasSubstr;

// A later instance of the program hands over the file that it was given.
class HandedFile : public Launch {
 protected:
    Json Runs() { return Do("runs")["value"]; }
    int Beeps() { return Do("beeps")["value"].get<int>(); }
};

TEST_F(HandedFile, StartsWithTheLoadedEmulatorAndTheLauncherStaysOpen) {
    Start();
    const Json answer = Do("summon", Bee());
    EXPECT_FALSE(answer.contains("ended"));
    EXPECT_THAT(StartFile(), HasSubstr("alpha' '" + Bee() + "'"));
    EXPECT_EQ(Runs().size(), 1U);
    EXPECT_EQ(Get("GameIsRunning"), true);
    EXPECT_EQ(Beeps(), 0);
    // And the end of the game brings the list back.
    Do("tick", "Form1.EmuActiveTimer", 3);
    EXPECT_TRUE(Visible("WIthoutDoubles"));
    EXPECT_EQ(Get("GameIsRunning"), false);
}

TEST_F(HandedFile, ACallWithoutOneStartsNothing) {
    Start();
    Do("summon");
    EXPECT_EQ(Runs(), Json::array());
    EXPECT_EQ(Beeps(), 0);
}

TEST_F(HandedFile, WhatIsNoPathOfOneFileIsNotTaken) {
    Start();
    for (const char* text : {"relative.adf", "?", "/roms/what?.adf", "-x /a", "\n/a"}) {
        Do("summon", text);
        EXPECT_EQ(Runs(), Json::array()) << text;
        EXPECT_EQ(Do("boxes")["value"], Json::array()) << text;
    }
}

TEST_F(HandedFile, AMissingOneIsTold) {
    Start();
    Do("summon", tree.Path("Roms/gone.adf"));
    EXPECT_EQ(Do("boxes")["value"][0]["title"], "Game - File not found!");
    EXPECT_EQ(Runs(), Json::array());
}

TEST_F(HandedFile, WhileAGameRunsThereIsABeepAndNothingElse) {
    Start();
    LaunchBee();
    EXPECT_EQ(Runs().size(), 1U);
    Do("summon", tree.Path("Roms/Beta/Cat (1992)(Maker).adf"));
    EXPECT_EQ(Beeps(), 1);
    EmulatorComesUp();
    Do("tick", "Form1.EmuActiveTimer", 5);
    Do("summon", tree.Path("Roms/Beta/Cat (1992)(Maker).adf"));
    EXPECT_EQ(Beeps(), 1);
    EXPECT_EQ(Runs(), Json::array());
}

TEST_F(HandedFile, WithNothingLoadedThereIsABeepAndNothingElse) {
    tree.WriteProgramProfile({{"LastEmulator", "Gone"}});
    Start();
    Do("summon", Bee());
    EXPECT_EQ(Beeps(), 1);
    EXPECT_EQ(Runs(), Json::array());
}

TEST_F(HandedFile, BehindAnOpenBoxThereIsABeepAndNothingElse) {
    Start();
    int asked = 0;
    Host().dialogs.onShow = [&] {
        if (asked++ == 0) session->Program().StartHandedFile(Bee());
    };
    Do("answer", "Cancel");
    Do("key", "Form1", "Escape");
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(Beeps(), 1);
    EXPECT_EQ(Runs(), Json::array());
    Do("summon", Bee());
    EXPECT_EQ(Runs().size(), 1U);
}

TEST_F(HandedFile, OutOfTheOpenChoiceTheLoadedEmulatorStartsIt) {
    Start();
    Do("click", "Form1.EmuListbox");
    Do("select", "Form1.EmulatorLongListbox", 1);
    Do("summon", Bee());
    EXPECT_THAT(StartFile(), HasSubstr("alpha' '" + Bee() + "'"));
    Do("tick", "Form1.EmuActiveTimer", 3);
    EXPECT_EQ(Get("EmuListbox.ListIndex"), Get("CurrentEmuIndex"));
    EXPECT_TRUE(Visible("WIthoutDoubles"));
}

TEST_F(HandedFile, TheLaterInstanceGivesAnAbsolutePath) {
    prepare = [](driver::Session& run) { run.Host().instance.earlierRuns = true; };
    const auto handed = [this](const std::string& commandLine) {
        options.commandLine = commandLine;
        EXPECT_EQ(Start()["ended"], true);
        return Host().instance.handedOver;
    };
    std::filesystem::current_path(tree.Path("Roms"));
    EXPECT_EQ(handed(""), "");
    EXPECT_EQ(handed("  "), "");
    EXPECT_EQ(handed(" \"" + Bee() + "\" "), Bee());
    EXPECT_EQ(handed("my game.adf"), tree.Path("Roms/my game.adf"));
    EXPECT_EQ(handed("-? x"), "");
    EXPECT_EQ(handed("/a/b?.adf"), "");
}

}  // namespace
}  // namespace kivu::scenarios
