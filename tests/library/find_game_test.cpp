#include "library/find_game.h"

#include <gtest/gtest.h>

#include "core/form1.h"
#include "testing/memory_file_system.h"
#include "testing/scripted_host.h"

namespace kivu::library {
namespace {

using Texts = std::vector<std::string>;

TEST(RowOfGame, WholePathOrFileNameGoesBeforeAPart) {
    const Texts paths{"/g/mspacman.zip", "/g/old/pacman.zip", "/g/pacman.zip", "/g/pacman.zip.bak"};
    EXPECT_EQ(RowOfGame(paths, "/g/pacman.zip"), 2);
    EXPECT_EQ(RowOfGame(paths, "pacman.zip"), 1);
    EXPECT_EQ(RowOfGame(paths, "acman.zip"), 0);
    EXPECT_EQ(RowOfGame(paths, "old/pacman.zip"), 1);
    EXPECT_EQ(RowOfGame(paths, "Pacman.zip"), -1);
    EXPECT_EQ(RowOfGame({}, "pacman.zip"), -1);
}

TEST(RowOfGame, BackslashesPartWindowsPaths) {
    const Texts paths{"C:\\g\\mspacman.zip", "C:\\g\\pacman.zip"};
    EXPECT_EQ(RowOfGame(paths, "pacman.zip"), 1);
    EXPECT_EQ(RowOfGame(paths, "man.zip"), 0);
}

class FindGame : public ::testing::Test {
 protected:
    int Find(const std::string& text) { return FindGameInFullList(form, busy, pacer, text); }

    testing::MemoryFileSystem disk;
    testing::ScriptedHost host{disk};
    core::Form1 form{forms::Toolkit{}};
    core::EventPacer pacer{host.events, host.clock};
    core::BusyState busy{form, host.events};
};

TEST_F(FindGame, LooksThroughTheWholeListForTheGameOfTheName) {
    for (int i = 0; i < 2000; ++i)
        form.UAE_FULL.AddItem("/g/" + std::to_string(10000 + i) + " Zool.adf");
    form.UAE_FULL.AddItem("/g/Zool.adf");
    form.SetCaption("Kivu");
    EXPECT_EQ(Find("Zool.adf"), 2000);
    EXPECT_EQ(Find("ool.adf"), 0);
    EXPECT_EQ(form.Caption(), "Kivu");
}

TEST_F(FindGame, RowSeenInAListThatHasGoneSinceIsNoResult) {
    for (int i = 0; i < 2000; ++i)
        form.UAE_FULL.AddItem("/g/" + std::to_string(10000 + i) + " Zool.adf");
    host.clock.perLook = std::chrono::milliseconds(50);
    int turns = 0;
    host.events.onEvents = [&] {
        if (++turns == 2) form.UAE_FULL.Clear();
    };
    EXPECT_EQ(Find("Zool.adf"), -1);
    EXPECT_EQ(turns, 2);
}

}  // namespace
}  // namespace kivu::library
