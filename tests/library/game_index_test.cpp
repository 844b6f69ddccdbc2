#include "library/game_index.h"

#include <gtest/gtest.h>
#include <random>

#include "core/form1.h"
#include "library/find_game.h"
#include "library/first_rows.h"
#include "testing/memory_file_system.h"
#include "testing/scripted_host.h"

namespace kivu::library {
namespace {

std::string RandomText(std::mt19937& random, std::size_t most) {
    std::string text;
    for (std::size_t n = random() % (most + 1); n > 0; --n)
        text += "ab/.\xC3"[random() % 5];
    return text;
}

std::vector<int> FirstRows(const std::vector<std::string>& texts,
                           const std::vector<std::string>& rows) {
    return FirstRowsWith(
        texts, static_cast<int>(rows.size()),
        [&](int row) -> const std::string& { return rows[static_cast<std::size_t>(row)]; },
        [](int) { return true; });
}

TEST(FirstRows, AreThoseThatAWalkForEachTextGives) {
    std::mt19937 random(19);
    for (int round = 0; round < 300; ++round) {
        std::vector<std::string> rows, texts;
        for (std::size_t n = random() % 40; n > 0; --n)
            rows.push_back(RandomText(random, 12));
        for (std::size_t n = random() % 20; n > 0; --n)
            texts.push_back(RandomText(random, 7));
        const std::vector<int> found = FirstRows(texts, rows);
        ASSERT_EQ(found.size(), texts.size());
        for (std::size_t i = 0; i < texts.size(); ++i) {
            int first = -1;
            for (std::size_t row = 0; row < rows.size() && first < 0; ++row) {
                if (rows[row].find(texts[i]) != std::string::npos) first = static_cast<int>(row);
            }
            ASSERT_EQ(found[i], first) << texts[i];
        }
    }
}

TEST(FirstRows, OfManyTextsAtTheSameBytesEachHasItsOwn) {
    EXPECT_EQ(FirstRows({"game", "game 2", "the game 2", "e game", "game", "game 3"},
                        {"the gam", "the game 1", "a game 2", "the game 2"}),
              (std::vector<int>{1, 2, 3, 1, 1, -1}));
}

TEST(FirstRows, AStoppedSearchGivesNothing) {
    const std::string row = "x";
    const auto text = [&](int) -> const std::string& { return row; };
    EXPECT_TRUE(FirstRowsWith({"x"}, 1000, text, [](int at) { return at < 500; }).empty());
}

struct GameIndexTest : ::testing::Test {
    kivu::testing::MemoryFileSystem files;
    kivu::testing::ScriptedHost host{files};
    core::Form1 form{forms::Toolkit{}};
    core::EventPacer pacer{host.events, host.clock};
    core::BusyState busy{form, host.events};
    GameIndex games{form, busy, pacer};
};

TEST_F(GameIndexTest, GivesTheRowOfAWalkForTextsExpectedOrNot) {
    std::mt19937 random(20);
    for (int round = 0; round < 200; ++round) {
        form.UAE_FULL.Clear();
        for (int n = 0; n < 30; ++n)
            form.UAE_FULL.AddItem("/" + RandomText(random, 8));
        GameIndex index(form, busy, pacer);
        std::vector<std::string> texts;
        for (int n = 0; n < 20; ++n)
            texts.push_back(RandomText(random, 5));
        for (std::size_t i = 0; i < texts.size(); i += 2)
            index.Expect(texts[i]);
        for (const std::string& text : texts)
            ASSERT_EQ(index.Find(text), FindGameInFullList(form, busy, pacer, text)) << text;
    }
}

TEST_F(GameIndexTest, GameOfThatNameGoesBeforeOneThatOnlyContainsIt) {
    for (const char* path : {"/a/mspacman.zip", "/b/pacman.zip", "/c/pacman.zip"})
        form.UAE_FULL.AddItem(path);
    games.Expect("pacman.zip");
    games.Expect("man.zip");
    EXPECT_EQ(games.Find("pacman.zip"), 1);
    EXPECT_EQ(games.Find("/c/pacman.zip"), 2);
    EXPECT_EQ(games.Find("man.zip"), 0);
    EXPECT_EQ(games.Find("lost.zip"), -1);
}

TEST_F(GameIndexTest, ChangedListIsLookedAtAnew) {
    form.UAE_FULL.AddItem("/a");
    games.Expect("/b");
    EXPECT_EQ(games.Find("/b"), -1);
    form.UAE_FULL.AddItem("/b");
    EXPECT_EQ(games.Find("/b"), 1);
    EXPECT_EQ(games.Find("/a"), 0);
}

TEST_F(GameIndexTest, ListThatChangesWhileItLooksDoesNoHarm) {
    for (int n = 0; n < 2000; ++n)
        form.UAE_FULL.AddItem("/" + std::to_string(n));
    games.Expect("/1999");
    host.events.onEvents = [&] { form.UAE_FULL.AddItem("/more"); };
    form.SetCaption("title");
    EXPECT_EQ(form.UAE_FULL.List(games.Find("/1999")), "/1999");
    EXPECT_EQ(form.UAE_FULL.List(games.Find("/more")), "/more");
    EXPECT_EQ(form.Caption(), "title");
    EXPECT_EQ(form.LoadingBtn.Caption(), "title");
}

}  // namespace
}  // namespace kivu::library
