#include "app/command_line.h"

#include <gtest/gtest.h>
#include <set>

#include "testing/memory_file_system.h"

namespace kivu::tests {
namespace {

std::string Text(std::vector<std::string> arguments, std::set<std::string> files) {
    return app::CommandLineText(std::move(arguments), "/home/u",
                                [=](const std::string& path) { return files.contains(path); });
}

TEST(CommandLine, IsEmptyWithoutArguments) {
    EXPECT_EQ(Text({}, {}), "");
}

TEST(CommandLine, JoinsArgumentsByBlanks) {
    EXPECT_EQ(Text({"/games/a", "b", "?"}, {}), "/games/a b ?");
}

TEST(CommandLine, MakesARelativeFileAbsolute) {
    EXPECT_EQ(Text({"My Game.adf"}, {"/home/u/My Game.adf"}), "/home/u/My Game.adf");
    EXPECT_EQ(Text({"missing.adf"}, {}), "missing.adf");
}

TEST(CommandLine, PutsAFileNameTogetherThatAShellHasSplit) {
    EXPECT_EQ(Text({"My", "Game.adf"}, {"/home/u/My Game.adf"}), "/home/u/My Game.adf");
}

using Words = std::vector<std::string>;

// What is left of the words stands in `words`.
app::Options Take(Words& words, std::set<std::string> files = {}) {
    return app::TakeOptions(words, [=](const std::string& path) { return files.contains(path); });
}
std::string Spoken(Words words, int status, bool isError, bool german = false) {
    const auto answer = app::AnswerTo(Take(words), "1.4.0", german);
    if (!answer) return "(none)";
    EXPECT_EQ(answer->status, status);
    EXPECT_EQ(answer->isError, isError);
    return answer->text;
}

TEST(CommandLine, LogOptionIsTakenFromTheFrontAndFromBehind) {
    for (const Words& given :
         {Words{"--log", "a", "b"}, Words{"a", "b", "--log"}, Words{"--log", "a", "b", "--log"}}) {
        Words words = given;
        EXPECT_TRUE(Take(words).log);
        EXPECT_EQ(words, (Words{"a", "b"}));
    }
    Words alone{"--log", "--log"};
    EXPECT_TRUE(Take(alone).log);
    EXPECT_EQ(alone, Words{});
}

TEST(CommandLine, WhatOnlyLooksLikeAnOptionIsPartOfAName) {
    for (const Words& given :
         {Words{}, Words{"a", "--log", "b.adf"}, Words{"./--log"}, Words{"-log"}, Words{""},
          Words{"?"}, Words{"-?"}, Words{"a.adf", "--version"}, Words{"a", "--data", "/d"},
          Words{"", "--help"}}) {
        Words words = given;
        const app::Options options = Take(words);
        EXPECT_FALSE(options.log);
        EXPECT_EQ(words, given);
        EXPECT_FALSE(app::AnswerTo(options, "1.4.0", false));
    }
}

TEST(CommandLine, AFileIsNoOptionWhateverItsName) {
    for (const char* name : {"--version", "--log", "--my game.adf", "--data"}) {
        Words words{name, "x"};
        const app::Options options = Take(words, {name});
        EXPECT_FALSE(app::AnswerTo(options, "1.4.0", false)) << name;
        EXPECT_TRUE(options.data.empty());
        EXPECT_EQ(words, (Words{name, "x"}));
    }
}

TEST(CommandLine, TheDirectoryOfTheRunIsTaken) {
    Words words{"--data", "/my data", "--log", "a", "b.adf"};
    const app::Options options = Take(words);
    EXPECT_EQ(options.data, "/my data");
    EXPECT_TRUE(options.log);
    EXPECT_EQ(words, (Words{"a", "b.adf"}));
    EXPECT_FALSE(app::AnswerTo(options, "1.4.0", false));
    Words alone{"--data", "--odd"};
    EXPECT_EQ(Take(alone).data, "--odd");
    EXPECT_EQ(alone, Words{});
}

TEST(CommandLine, TheVersionIsAnswered) {
    EXPECT_EQ(Spoken({"--version"}, 0, false), "Kivu 1.4.0\n");
    EXPECT_EQ(Spoken({"--data", "/d", "--version", "a"}, 0, false), "Kivu 1.4.0\n");
}

TEST(CommandLine, HelpNamesEveryOptionInBothLanguages) {
    for (const bool german : {false, true}) {
        const std::string help = Spoken({"--help"}, 0, false, german);
        for (const char* option : {"--data", "--log", "--help", "--version"})
            EXPECT_NE(help.find(option), std::string::npos) << option;
        EXPECT_EQ(help.starts_with("Aufruf"), german);
    }
}

TEST(CommandLine, WhatThereIsNotIsToldAsAnError) {
    EXPECT_EQ(Spoken({"--Log"}, 2, true),
              "Kivu: unknown option --Log\n\"Kivu --help\" shows what there is.\n");
    for (const Words& given :
         {Words{"--logs"}, Words{"--"}, Words{"--?"}, Words{"--data=/d"},
          Words{"--log", "--x", "a"}, Words{"--version", "--x"}, Words{"--data"},
          Words{"--data", ""}, Words{"--log", "--data"}, Words{"--keep-display", "x"}})
        EXPECT_TRUE(Spoken(given, 2, true).starts_with("Kivu: ")) << given[0];
    EXPECT_TRUE(Spoken({"--data"}, 2, true, true).starts_with("Kivu: --data ohne Verzeichnis"));
}

TEST(CommandLine, TheDirectoryOfTheRunIsWholeAndThere) {
    testing::MemoryFileSystem files;
    files.AddDirectory("/home/u");
    ASSERT_FALSE(files.ChangeDirectory("/home/u"));
    EXPECT_EQ(app::DataDirectory("/home/u/kivu//", files), "/home/u/kivu");
    EXPECT_TRUE(files.IsDirectory("/home/u/kivu"));
    EXPECT_EQ(app::DataDirectory("other", files), "/home/u/other");
    EXPECT_TRUE(files.IsDirectory("/home/u/other"));
    EXPECT_EQ(app::DataDirectory("/", files), "/");
}

TEST(CommandLine, TheDirectoryOfTheRunIsMadeWithThoseAboveIt) {
    testing::MemoryFileSystem files;
    files.AddDirectory("/home/u");
    ASSERT_FALSE(files.ChangeDirectory("/home/u"));
    EXPECT_EQ(app::DataDirectory("/missing/as//deep/", files), "/missing/as//deep");
    EXPECT_TRUE(files.IsDirectory("/missing/as/deep"));
    EXPECT_EQ(app::DataDirectory("a/b/c", files), "/home/u/a/b/c");
    EXPECT_TRUE(files.IsDirectory("/home/u/a/b/c"));
    testing::MemoryFileSystem drive{'\\'};
    EXPECT_EQ(app::DataDirectory("C:\\x\\y\\Kivu", drive), "C:\\x\\y\\Kivu");
    EXPECT_TRUE(drive.IsDirectory("C:\\x\\y\\Kivu"));
    // Of the drive of the moment.
    (void)app::DataDirectory("\\a\\b\\c", drive);
    EXPECT_TRUE(drive.IsDirectory("C:\\a\\b\\c"));
}

TEST(CommandLine, TheDirectoryOfTheRunStandsForItselfWhereItCannotBeMade) {
    testing::MemoryFileSystem files;
    files.AddDirectory("/home/u");
    files.SetReadOnly("/home/u");
    // The first screen says so.
    EXPECT_EQ(app::DataDirectory("/home/u/a/b", files), "/home/u/a/b");
    EXPECT_FALSE(files.IsDirectory("/home/u/a"));
}

TEST(CommandLine, TheDirectoryOfTheRunIsSpelledAsTheHostDoes) {
    testing::MemoryFileSystem files{'\\'};
    files.AddDirectory("C:\\Kivu");
    EXPECT_EQ(app::DataDirectory("C:\\Kivu\\", files), "C:\\Kivu");
    EXPECT_EQ(app::DataDirectory("C:\\", files), "C:\\");
}

TEST(CommandLine, LeavesAbsolutePathsAlone) {
    EXPECT_EQ(Text({"/a.adf"}, {"/home/u//a.adf"}), "/a.adf");
    EXPECT_EQ(Text({"C:\\a.adf"}, {"/home/u/C:\\a.adf"}), "C:\\a.adf");
}

}  // namespace
}  // namespace kivu::tests
