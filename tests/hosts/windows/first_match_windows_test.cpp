#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "hosts/windows/file_system_windows.h"
#include "hosts/windows/scratch_directory.h"

namespace kivu::hosts {
namespace {

using Found = std::optional<std::string>;

class FirstMatchWindows : public ::testing::Test {
 protected:
    void Write(const std::vector<std::string>& names) {
        for (const std::string& name : names)
            directory.Write(name, "x");
    }
    Found First(std::string_view prefix, std::string_view ending = "",
                std::string_view stem = "") const {
        return files.FirstMatch(directory.Root(), prefix, ending, stem);
    }

    const testing::CurrentDirectoryKeeper keeper;
    testing::ScratchDirectory directory;
    WindowsFileSystem files;
};

TEST_F(FirstMatchWindows, PicturesThenTheSameStemThenTheOrderOfNames) {
    Write({"Turrican II.png", "Turrican.nfo"});
    EXPECT_EQ(First("turrican"), "Turrican II.png");
    Write({"Turrican.png"});
    EXPECT_EQ(First("TURRICAN"), "Turrican.png");
    Write({"Turrican.jpg"});
    EXPECT_EQ(First("Turrican"), "Turrican.jpg");
    EXPECT_EQ(First("Turrican", ".png"), "Turrican.png");
    EXPECT_EQ(First("Turrican", ".gif"), std::nullopt);
    EXPECT_EQ(First("Turrican", ".nfo"), "Turrican.nfo");
    EXPECT_EQ(First("Turrican3"), std::nullopt);
    Write({"Tetris 2.png", "Tetris.png"});
    EXPECT_EQ(First("Tetri", "", "Tetris"), "Tetris.png");
}

TEST_F(FirstMatchWindows, NameWithoutAPointIsFoundAndAnEndingIsNotCutIntoAName) {
    Write({"Game"});
    EXPECT_EQ(First("Game"), "Game");
    EXPECT_EQ(First("Gam"), "Game");
    Write({"a.png"});
    EXPECT_EQ(First("a.png", ".png"), std::nullopt);
    EXPECT_EQ(First("a.", ".png"), std::nullopt) << "the point is one of the two's";
}

TEST_F(FirstMatchWindows, ShortNamesCountForNothing) {
    Write({"A long name of a picture.jpeg"});
    for (const char* prefix : {"ALONGN", "ALONGN~1"})
        EXPECT_EQ(First(prefix), std::nullopt) << prefix;
    // The short form of that one ends in ".JPE".
    EXPECT_EQ(First("A long", ".jpe"), std::nullopt);
    EXPECT_EQ(First("A long", ".jpeg"), "A long name of a picture.jpeg");
}

TEST_F(FirstMatchWindows, CharactersOfPatternsAreInNoName) {
    Write({"axb.png"});
    for (const char* prefix : {"a*", "a?b", "*", "?", "a<", "a>", "a\"", "..\\a", "a:b", "sub/a"})
        EXPECT_EQ(First(prefix), std::nullopt) << prefix;
    Write({"Game [a] (b).png", "'&;$.png"});
    EXPECT_EQ(First("Game [a]"), "Game [a] (b).png");
    EXPECT_EQ(First("'&;$"), "'&;$.png");
}

TEST_F(FirstMatchWindows, RegularFilesAlone) {
    directory.MakeDirectory("Game.png");
    EXPECT_EQ(First("Game"), std::nullopt);
    Write({"Game.bmp", "Hidden.png"});
    EXPECT_EQ(First("Game"), "Game.bmp");
    if (directory.SetAttributes("Hidden.png", FILE_ATTRIBUTE_HIDDEN)) {
        EXPECT_EQ(First("Hidden"), std::nullopt);
    }
    EXPECT_EQ(files.FirstMatch(directory.Path("none"), "a", "", ""), std::nullopt);
    EXPECT_EQ(files.FirstMatch("", "a", "", ""), std::nullopt);
}

TEST_F(FirstMatchWindows, LettersBeyondAscii) {
    Write({"\xC3\xBCnder.PNG"});
    EXPECT_EQ(First("\xC3\x9Cnder", ".png"), "\xC3\xBCnder.PNG");
}

TEST_F(FirstMatchWindows, DirectoryInAnyCase) {
    directory.MakeDirectory("pictures");
    EXPECT_TRUE(files.FindDirectory(directory.Root(), "Pictures"));
    EXPECT_TRUE(files.FindDirectory(directory.Root() + "\\", "PICTURES"));
    Write({"Skin"});
    EXPECT_EQ(files.FindDirectory(directory.Root(), "Skin"), std::nullopt);
    EXPECT_EQ(files.FindDirectory(directory.Root(), "snap"), std::nullopt);
}

}  // namespace
}  // namespace kivu::hosts
