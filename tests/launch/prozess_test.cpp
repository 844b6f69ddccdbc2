#include "launch/prozess.h"

#include <gtest/gtest.h>

namespace kivu::launch {
namespace {

class MadeUpProcesses : public platform::ProcessList {
 public:
    std::optional<std::vector<platform::ProcessEntry>> Snapshot() const override { return entries; }
    void Kill(std::int32_t id) override { killed.push_back(id); }

    std::optional<std::vector<platform::ProcessEntry>> entries{std::in_place};
    std::vector<std::int32_t> killed;
};

class ProzessTest : public ::testing::Test {
 protected:
    MadeUpProcesses list;
    Prozess prozess{list};
};

TEST_F(ProzessTest, FindsAnEqualNameWithoutRegardToCase) {
    list.entries->push_back({7, {"WinUAE64.exe"}});
    list.entries->push_back({8, {"WINUAE.EXE"}});
    EXPECT_EQ(prozess.FindProcessId("winuae.exe", Reach::nameOnly), 8);
    EXPECT_TRUE(prozess.IsProcessRunning("winuae.exe", Reach::nameOnly));
}

TEST_F(ProzessTest, FallsBackToTheLastNameThatContainsIt) {
    list.entries->push_back({7, {"winuae64.exe"}});
    list.entries->push_back({8, {"old-winuae.bin"}});
    list.entries->push_back({9, {"other"}});
    EXPECT_EQ(prozess.FindProcessId("winuae", Reach::nameOnly), 8);
    EXPECT_FALSE(prozess.IsProcessRunning("winuae", Reach::nameOnly))
        << "running means the exact name";
}

TEST_F(ProzessTest, LooksAtTheFileNameOfAPath) {
    list.entries->push_back({7, {"emu.exe"}});
    EXPECT_EQ(prozess.FindProcessId("C:\\Emus\\emu.exe", Reach::nameOnly), 7);
    EXPECT_TRUE(prozess.IsProcessRunning("/opt/emus/emu.exe", Reach::nameOnly));
}

TEST_F(ProzessTest, FindsNothingForAnEmptyName) {
    list.entries->push_back({7, {"emu"}});
    list.entries->push_back({8, {""}});
    EXPECT_EQ(prozess.FindProcessId("", Reach::andLaunch), 0);
    EXPECT_FALSE(prozess.IsProcessRunning("", Reach::andLaunch));
}

TEST_F(ProzessTest, NeverSeesTheLauncherNorOtherUsers) {
    platform::ProcessEntry own{7, {"Kivu"}};
    own.foreign = true;
    list.entries->push_back(own);
    EXPECT_EQ(prozess.FindProcessId("Kivu", Reach::andLaunch), 0);
    EXPECT_EQ(prozess.FindProcessId("iv", Reach::andLaunch), 0);
    EXPECT_FALSE(prozess.IsProcessRunning("Kivu", Reach::andLaunch));
}

TEST_F(ProzessTest, KnowsALaunchThatHasChangedItsName) {
    platform::ProcessEntry wrapped{7, {"bwrap"}};
    wrapped.ofLaunch = true;
    list.entries->push_back(wrapped);
    EXPECT_TRUE(prozess.IsProcessRunning("dosbox", Reach::andLaunch));
    EXPECT_EQ(prozess.FindProcessId("dosbox", Reach::andLaunch), 7);
    EXPECT_FALSE(prozess.IsProcessRunning("dosbox", Reach::nameOnly));
}

// A copy that was running before is not the one to end.
TEST_F(ProzessTest, FindsTheLaunchBeforeAnotherCopyOfItsName) {
    platform::ProcessEntry launched{9, {"dosbox"}};
    launched.ofLaunch = true;
    platform::ProcessEntry wrapper{8, {"bwrap"}};
    wrapper.ofLaunch = true;
    list.entries = {{{7, {"dosbox"}}, wrapper, launched}};
    EXPECT_EQ(prozess.FindProcessId("dosbox", Reach::andLaunch), 9);
    EXPECT_EQ(prozess.FindProcessId("dosbox", Reach::nameOnly), 7);
    EXPECT_EQ(prozess.FindProcessId("other", Reach::andLaunch), 8);
    list.entries = {{{7, {"dosbox"}}}};
    EXPECT_EQ(prozess.FindProcessId("dosbox", Reach::andLaunch), 7);
    EXPECT_TRUE(prozess.IsProcessRunning("dosbox", Reach::andLaunch));
}

TEST_F(ProzessTest, CountsAFailedSnapshotAsNotRunning) {
    list.entries.reset();
    EXPECT_EQ(prozess.FindProcessId("emu", Reach::andLaunch), 0);
    EXPECT_FALSE(prozess.IsProcessRunning("emu", Reach::andLaunch));
}

TEST_F(ProzessTest, PassesAKillOn) {
    prozess.KillProcess(42);
    EXPECT_EQ(list.killed, std::vector<std::int32_t>{42});
}

}  // namespace
}  // namespace kivu::launch
