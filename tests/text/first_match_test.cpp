#include "text/first_match.h"

#include <gtest/gtest.h>

namespace kivu::text {
namespace {

TEST(FirstMatch, KnowsPicturesByTheirEndings) {
    for (const char* name : {"a.png", "a.JPG", "a.jpeg", ".gif", "a.b.bmp", "a.ico", "a.WebP"})
        EXPECT_TRUE(HasPictureEnding(name)) << name;
    for (const char* name : {"", "png", "a.png.", "a.nfo", "a.pngx", "."})
        EXPECT_FALSE(HasPictureEnding(name)) << name;
}

TEST(FirstMatch, AStemHasNoEnding) {
    EXPECT_EQ(StemOf("Turrican.png"), "Turrican");
    EXPECT_EQ(StemOf("a.b.c"), "a.b");
    EXPECT_EQ(StemOf(".profile"), ".profile");
    EXPECT_EQ(StemOf("plain"), "plain");
}

TEST(FirstMatch, PicturesThenTheSameStemThenTheOrderOfNames) {
    EXPECT_TRUE(ComesFirst("Turrican.png", "Turrican II.png", "turrican", ""));
    EXPECT_FALSE(ComesFirst("Turrican II.png", "Turrican.png", "turrican", ""));
    EXPECT_TRUE(ComesFirst("Turrican II.png", "Turrican.png", "T", "other"));
    EXPECT_TRUE(ComesFirst("Zool.jpg", "Apidya.nfo", "Apidya", "Apidya"));
    EXPECT_TRUE(ComesFirst("turrican.jpg", "Turrican.png", "Turrican", ""));
    EXPECT_FALSE(ComesFirst("a.png", "a.png", "a", "a"));
}

TEST(FirstMatch, StemThatWasLookedForComesBeforeTheFilesOwn) {
    EXPECT_TRUE(ComesFirst("Tetris.png", "Tetris 2.png", "Tetri", "tetris"));
    EXPECT_TRUE(ComesFirst("Game.png", "Game (Disk 1).png", "Game", "Game (Disk 1)"));
    EXPECT_FALSE(ComesFirst("Game (Disk 1).png", "Game.png", "Game", "Game (Disk 1)"));
}

TEST(FirstMatch, BeginsAndEndsWithoutRegardToCase) {
    EXPECT_TRUE(MatchesAround("ünder.PNG", "Ünder", ".png"));
    EXPECT_TRUE(MatchesAround("Game", "game", ""));
    EXPECT_TRUE(MatchesAround("Game II.gif", "Game", ".gif"));
    EXPECT_FALSE(MatchesAround("Game.bmp", "Game", ".gif"));
    EXPECT_FALSE(MatchesAround("aXbc.gif", "a*b", ".gif"));
    EXPECT_FALSE(MatchesAround("a.png", "a.png", ".png")) << "the two overlap";
}

}  // namespace
}  // namespace kivu::text
