#include "text/stored_paths.h"

#include <gtest/gtest.h>
#include <random>

#include "text/text.h"

namespace kivu::text {
namespace {

using std::string;
using std::string_view;

constexpr string_view kWindowsBase = "C:\\Kivu";
constexpr string_view kPosixBase = "/opt/kivu";

TEST(WindowsPaths, BelowTheBaseBeginWithASeparator) {
    EXPECT_EQ(MakeRelativePath(kWindowsBase, "C:\\Kivu\\Config\\x.adf"), "\\Config\\x.adf");
    EXPECT_EQ(MakeAbsolutePath(kWindowsBase, "\\Config\\x.adf"), "C:\\Kivu\\Config\\x.adf");
    EXPECT_EQ(MakeAbsolutePath(kWindowsBase, "Config\\x.adf"), "C:\\Kivu\\Config\\x.adf");
}

TEST(WindowsPaths, GoUpOneStepPerDirectory) {
    EXPECT_EQ(MakeRelativePath(kWindowsBase, "C:\\Roms\\x.adf"), "..\\Roms\\x.adf");
    EXPECT_EQ(MakeRelativePath("C:\\Emus\\Front\\Kivu", "C:\\Roms\\x"), "..\\..\\..\\Roms\\x");
    EXPECT_EQ(MakeAbsolutePath(kWindowsBase, "..\\Roms\\x.adf"), "C:\\Roms\\x.adf");
    EXPECT_EQ(MakeAbsolutePath("C:\\Emus\\Front\\Kivu", "..\\..\\..\\Roms\\x"), "C:\\Roms\\x");
}

TEST(WindowsPaths, CompareWithoutRegardToCase) {
    EXPECT_EQ(MakeRelativePath("C:\\KIVU", "c:\\kivu\\x.adf"), "\\x.adf");
    EXPECT_EQ(MakeRelativePath("C:\\MÄRCHEN", "C:\\märchen\\Über.adf"), "\\Über.adf");
    EXPECT_EQ(MakeRelativePath("C:\\ẞ", "C:\\ß\\x"), "\\x");
}

TEST(WindowsPaths, StayWholeOnAnotherDrive) {
    EXPECT_EQ(MakeRelativePath(kWindowsBase, "D:\\Roms\\x.adf"), "D:\\Roms\\x.adf");
    EXPECT_EQ(MakeRelativePath(kWindowsBase, "D:\\Roms\\"), "D:\\Roms");
    EXPECT_EQ(MakeAbsolutePath(kWindowsBase, "D:\\Roms\\x.adf"), "D:\\Roms\\x.adf");
    EXPECT_EQ(MakeAbsolutePath(kWindowsBase, "name:stream"), "name:stream");
}

TEST(WindowsPaths, AreCutByCharactersWhereDirectoriesBeginAlike) {
    const string relative = MakeRelativePath("D:\\Emu\\Old", "D:\\Emu\\Older\\x");
    EXPECT_EQ(relative, "er\\x");
    EXPECT_EQ(MakeAbsolutePath("D:\\Emu\\Old", relative), "D:\\Emu\\Old\\er\\x");
    EXPECT_EQ(MakeRelativePath("D:\\Emu\\Older", "D:\\Emu\\Old\\x"), "\\x");
}

TEST(WindowsPaths, NeverHaveTheirLastCharacterCompared) {
    EXPECT_EQ(MakeRelativePath(kWindowsBase, "C:\\Kivu"), "u");
    EXPECT_EQ(MakeRelativePath(kWindowsBase, "C:\\Kivu\\"), "u");
    EXPECT_EQ(MakeRelativePath(kWindowsBase, "C:\\K"), "..\\K");
    EXPECT_EQ(MakeRelativePath(kWindowsBase, "C"), "C");
    EXPECT_EQ(MakeRelativePath(kWindowsBase, ""), "");
}

TEST(WindowsPaths, TakeASeparatorAtTheEndOfTheBaseForNothingWhenMadeRelative) {
    EXPECT_EQ(MakeRelativePath("C:\\Kivu\\", "C:\\Kivu\\x.adf"), "\\x.adf");
    EXPECT_EQ(MakeRelativePath("C:/Kivu/", "C:/Kivu/x.adf"), "/x.adf");
    EXPECT_EQ(MakeRelativePath("C:/Kivu", "C:/Roms/x.adf"), "..\\Roms/x.adf");
}

TEST(WindowsPaths, TakeASeparatorAtTheEndOfTheBaseForALevelWhenMadeAbsolute) {
    EXPECT_EQ(MakeAbsolutePath("C:\\Kivu\\", "..\\Roms"), "C:\\Kivu\\Roms");
    EXPECT_EQ(MakeAbsolutePath("C:\\Kivu\\", "\\Roms"), "C:\\Kivu\\\\Roms");
}

TEST(WindowsPaths, GiveTheBaseForTheEmptyText) {
    EXPECT_EQ(MakeAbsolutePath(kWindowsBase, ""), "C:\\Kivu\\");
}

TEST(WindowsPaths, StopGoingUpAtTheDrive) {
    EXPECT_EQ(MakeAbsolutePath(kWindowsBase, "..\\..\\..\\Roms"), "C:\\..\\Roms");
    EXPECT_EQ(MakeAbsolutePath("C:\\", "..\\Roms"), "C:\\\\Roms");
}

TEST(WindowsPaths, HaveEveryStepUpRemovedWhereverItStands) {
    EXPECT_EQ(MakeAbsolutePath("C:\\a\\b", "\\x\\..\\y"), "C:\\a\\x\\y");
}

TEST(WindowsPaths, LoseALeadingSeparatorOfTheBaseButNotThatOfAShare) {
    EXPECT_EQ(MakeAbsolutePath("\\Kivu", "x"), "Kivu\\x");
    EXPECT_EQ(MakeAbsolutePath("\\\\server\\kivu", "\\x"), "\\\\server\\kivu\\x");
}

TEST(WindowsPaths, KeepABareNameWhole) {
    EXPECT_EQ(MakeRelativePath(kWindowsBase, "winuae.exe"), "winuae.exe");
}

TEST(WindowsPaths, ComeBackWhenNoDirectoryBeginsLikeTheBase) {
    std::mt19937 random(5);
    const string_view names[] = {"Roms", "Spiele", "x.adf", "Ärger", "a b"};
    for (int i = 0; i < 2000; ++i) {
        string base = "C:\\Kivu";
        for (auto n = random() % 3; n > 0; --n)
            base += "\\emu";
        string path = random() % 2 == 0 ? "C:" : base;
        for (auto n = random() % 4 + 1; n > 0; --n) {
            path += '\\';
            path += names[random() % std::size(names)];
        }
        ASSERT_EQ(MakeAbsolutePath(base, MakeRelativePath(base, path)), path) << base;
    }
}

struct PosixCase {
    string_view absolute;
    string_view relative;
};

TEST(PosixPaths, HaveTheirRelativeFormAndComeBack) {
    constexpr PosixCase kCases[] = {
        {"/opt/kivu/Config/x", "/Config/x"},
        {"/opt/roms", "../roms"},
        {"/opt/kivu2/a", "../kivu2/a"},
        {"/mnt/roms", "../../mnt/roms"},
        {"/", "../../"},
        {"/opt/kivu", "/"},
        {"/opt/Kivu/x", "../Kivu/x"},
        {"/opt", "../"},
        {"/opt/kiv", "../kiv"},
        {"/opt/kivu/a:b", "/a:b"},
        {"/opt/c:x", "../c:x"},
    };
    for (const PosixCase& one : kCases) {
        EXPECT_EQ(MakeRelativePath(kPosixBase, one.absolute), one.relative);
        EXPECT_EQ(MakeAbsolutePath(kPosixBase, one.relative), one.absolute);
        EXPECT_EQ(MakeRelativePath("/opt/kivu/", one.absolute), one.relative);
        EXPECT_EQ(MakeAbsolutePath("/opt/kivu/", one.relative), one.absolute);
    }
}

TEST(PosixPaths, LoseOneClosingSeparator) {
    EXPECT_EQ(MakeRelativePath(kPosixBase, "/opt/roms/"), "../roms");
    EXPECT_EQ(MakeRelativePath(kPosixBase, "/opt/kivu/"), "/");
}

TEST(PosixPaths, WithoutALeadingSeparatorStayAsTheyAre) {
    EXPECT_EQ(MakeRelativePath(kPosixBase, "roms/x"), "roms/x");
    EXPECT_EQ(MakeRelativePath(kPosixBase, "C:\\Roms\\x"), "C:\\Roms\\x");
    EXPECT_EQ(MakeRelativePath(kPosixBase, ""), "");
    EXPECT_EQ(MakeAbsolutePath(kPosixBase, "roms/x"), "/opt/kivu/roms/x");
}

TEST(PosixPaths, GiveTheBaseForTheEmptyText) {
    EXPECT_EQ(MakeAbsolutePath(kPosixBase, ""), "/opt/kivu");
    EXPECT_EQ(MakeAbsolutePath(kPosixBase, "/"), "/opt/kivu");
    EXPECT_EQ(MakeAbsolutePath("/", ""), "/");
    EXPECT_EQ(MakeAbsolutePath("/", "/"), "/");
    EXPECT_EQ(MakeRelativePath("/", "/"), "/");
}

TEST(PosixPaths, NeverGoAboveTheRoot) {
    EXPECT_EQ(MakeAbsolutePath(kPosixBase, "../../../../roms"), "/roms");
    EXPECT_EQ(MakeAbsolutePath("/", "../roms"), "/roms");
}

TEST(PosixPaths, KnowADriveOnlyAtItsPlace) {
    EXPECT_EQ(MakeAbsolutePath(kPosixBase, "C:\\Roms\\x"), "C:\\Roms\\x");
    EXPECT_EQ(MakeAbsolutePath(kPosixBase, "/a:b"), "/opt/kivu/a:b");
    EXPECT_EQ(MakeAbsolutePath(kPosixBase, "/:b"), "/opt/kivu/:b");
    EXPECT_EQ(MakeAbsolutePath(kPosixBase, "ab:c"), "/opt/kivu/ab:c");
    EXPECT_EQ(MakeAbsolutePath(kPosixBase, "../a:b"), "/opt/a:b");
}

TEST(PosixPaths, WrittenOnWindowsHaveTheirBackslashesTurned) {
    EXPECT_EQ(MakeAbsolutePath(kPosixBase, "\\Config\\x"), "/opt/kivu/Config/x");
    EXPECT_EQ(MakeAbsolutePath(kPosixBase, "..\\Roms\\x"), "/opt/Roms/x");
    EXPECT_EQ(MakeAbsolutePath(kPosixBase, "..\\..\\Roms"), "/Roms");
    EXPECT_EQ(MakeAbsolutePath(kPosixBase, "\\"), "/opt/kivu");
}

TEST(PosixPaths, KeepABackslashInAName) {
    EXPECT_EQ(MakeRelativePath(kPosixBase, "/opt/kivu/odd\\name"), "/odd\\name");
    EXPECT_EQ(MakeAbsolutePath(kPosixBase, "/odd\\name"), "/opt/kivu/odd\\name");
    EXPECT_EQ(MakeAbsolutePath(kPosixBase, "../odd\\..\\name"), "/opt/odd\\..\\name");
}

TEST(PosixPaths, ComeBackFromEveryRandomBase) {
    std::mt19937 random(6);
    const string_view elements[] = {"a", "b",    "ab",   "A",  "..", ".",
                                    "",  "x\\y", "..\\", "c:", "ä",  "\xE4"};
    const auto randomPath = [&](unsigned longest) {
        string path;
        for (auto n = random() % longest; n > 0; --n) {
            path += '/';
            path += elements[random() % std::size(elements)];
        }
        return path.empty() ? string("/") : path;
    };
    for (int i = 0; i < 200000; ++i) {
        const string base = randomPath(5);
        string path = random() % 3 == 0 ? base + randomPath(3) : randomPath(6);
        while (path.size() > 1 && path.ends_with('/'))
            path.pop_back();
        const string relative = MakeRelativePath(base, path);
        ASSERT_EQ(MakeAbsolutePath(base, relative), path) << base << " / " << relative;
    }
}

TEST(StoredPath, IsTheAbsolutePathOnTheHostThatWroteIt) {
    EXPECT_EQ(StoredPath(kWindowsBase, "\\Roms\\x.adf"), "C:\\Kivu\\Roms\\x.adf");
    EXPECT_EQ(StoredPath(kWindowsBase, "..\\Roms\\x.adf"), "C:\\Roms\\x.adf");
    EXPECT_EQ(StoredPath(kWindowsBase, "D:\\Roms\\x.adf"), "D:\\Roms\\x.adf");
    EXPECT_EQ(StoredPath(kWindowsBase, ""), "C:\\Kivu\\");
    EXPECT_EQ(StoredPath(kPosixBase, "/roms/x\\y"), "/opt/kivu/roms/x\\y");
    EXPECT_EQ(StoredPath(kPosixBase, "../roms/x"), "/opt/roms/x");
    EXPECT_EQ(StoredPath(kPosixBase, ""), "/opt/kivu");
}

TEST(StoredPath, TurnsWhatTheOtherHostWrote) {
    EXPECT_EQ(StoredPath(kWindowsBase, "/Roms/x.adf"), "C:\\Kivu\\Roms\\x.adf");
    EXPECT_EQ(StoredPath(kWindowsBase, "../Roms/Sub/x.adf"), "C:\\Roms\\Sub\\x.adf");
    EXPECT_EQ(StoredPath(kWindowsBase, "Roms/x.adf"), "C:\\Kivu\\Roms\\x.adf");
    EXPECT_EQ(StoredPath(kWindowsBase, "/"), "C:\\Kivu\\");
    EXPECT_EQ(StoredPath(kWindowsBase, "D:/Roms/x.adf"), "D:\\Roms\\x.adf");
    EXPECT_EQ(StoredPath(kPosixBase, "\\roms\\x"), "/opt/kivu/roms/x");
    EXPECT_EQ(StoredPath(kPosixBase, "..\\roms\\x"), "/opt/roms/x");
}

TEST(StoredPath, OnANetworkShareComesBack) {
    const string share = "\\\\server\\roms\\x.adf";
    EXPECT_EQ(MakeRelativePath(kWindowsBase, share), share);
    EXPECT_EQ(StoredPath(kWindowsBase, share), share);
    EXPECT_EQ(StoredPath(kWindowsBase, "//server/roms/x.adf"), share);
    EXPECT_EQ(StoredPath(kWindowsBase, "\\\\\\x"), "C:\\Kivu\\\\\\x");
    EXPECT_EQ(StoredPath("\\\\server\\kivu", "\\x"), "\\\\server\\kivu\\x");
    EXPECT_EQ(StoredPath("\\\\server\\kivu", "..\\roms\\x.adf"), share);
}

TEST(PathToStore, IsTheRelativeFormWhereThatLeadsBack) {
    EXPECT_EQ(PathToStore(kWindowsBase, "C:\\Kivu\\Roms\\x.adf"), "\\Roms\\x.adf");
    EXPECT_EQ(PathToStore(kWindowsBase, "c:\\KIVU\\Roms\\x.adf"), "\\Roms\\x.adf");
    EXPECT_EQ(PathToStore(kWindowsBase, "C:\\Kivu/Roms/x.adf"), "/Roms/x.adf");
    EXPECT_EQ(PathToStore(kWindowsBase, "C:\\Roms\\x.adf"), "..\\Roms\\x.adf");
    EXPECT_EQ(PathToStore(kWindowsBase, "D:\\Roms\\x.adf"), "D:\\Roms\\x.adf");
    EXPECT_EQ(PathToStore(kPosixBase, "/opt/kivu/roms/x"), "/roms/x");
    EXPECT_EQ(PathToStore(kPosixBase, "/opt/kivu2/roms/x"), "../kivu2/roms/x");
}

TEST(PathToStore, IsThePathAsItStandsWhereTheRelativeFormLeadsElsewhere) {
    const string besides = "C:\\Kivu2\\Roms\\a.adf";
    EXPECT_NE(StoredPath(kWindowsBase, MakeRelativePath(kWindowsBase, besides)), besides);
    for (const string& path : {besides, string("C:\\Ki\\a.adf"), string("C:\\Kivu\\Wait..\\a.adf"),
                               string("C:\\KI\xC3\x84\\a.adf")}) {
        EXPECT_EQ(StoredPath(kWindowsBase, PathToStore(kWindowsBase, path)), path);
    }
    const string share = "\\\\server\\kivu2\\x.adf";
    EXPECT_EQ(PathToStore("\\\\server\\kivu", share), share);
    EXPECT_EQ(StoredPath("\\\\server\\kivu", share), share);
}

TEST(PathToStore, ComesBackFromEveryRandomWindowsBase) {
    std::mt19937 random(9);
    const auto randomPath = [&](int most) {
        string path = "C:";
        for (int elements = 1 + static_cast<int>(random() % most); elements > 0; --elements) {
            path += '\\';
            for (int letters = 1 + static_cast<int>(random() % 3); letters > 0; --letters)
                path += "aB."[random() % 3];
        }
        return path;
    };
    for (int i = 0; i < 50000; ++i) {
        const string base = randomPath(4);
        const string path =
            (random() % 2 == 0 ? base + randomPath(2).substr(2) : randomPath(5)) + "\\x";
        const string stored = PathToStore(base, path);
        ASSERT_TRUE(EqualsNoCase(StoredPath(base, stored), path)) << base << " / " << stored;
    }
}

TEST(ProfilePath, TakesAHandWrittenPathFromTheRoot) {
    const auto exists = [](string_view only) {
        return [only](const string& path) { return path == only; };
    };
    EXPECT_EQ(ProfilePath(kPosixBase, "/mnt/roms", exists("/mnt/roms")), "/mnt/roms");
    EXPECT_EQ(ProfilePath(kPosixBase, "/mnt/roms", exists("/opt/kivu/mnt/roms")),
              "/opt/kivu/mnt/roms");
    EXPECT_EQ(ProfilePath(kPosixBase, "/mnt/roms", exists("/elsewhere")), "/opt/kivu/mnt/roms");
    EXPECT_EQ(ProfilePath(kPosixBase, "/mnt/roms", nullptr), "/opt/kivu/mnt/roms");
}

TEST(ProfilePath, PrefersWhatLiesBelowTheBase) {
    const PathTest everything = [](const string&) { return true; };
    EXPECT_EQ(ProfilePath(kPosixBase, "/mnt/roms", everything), "/opt/kivu/mnt/roms");
}

TEST(ProfilePath, AsksOnlyAboutPathsFromTheRoot) {
    const PathTest fail = [](const string& path) {
        ADD_FAILURE() << path;
        return true;
    };
    EXPECT_EQ(ProfilePath(kPosixBase, "../roms", fail), "/opt/roms");
    EXPECT_EQ(ProfilePath(kPosixBase, "", fail), "/opt/kivu");
    EXPECT_EQ(ProfilePath(kWindowsBase, "/roms", fail), "C:\\Kivu\\roms");
    EXPECT_EQ(ProfilePath(kWindowsBase, "", fail), "C:\\Kivu\\");
}

}  // namespace
}  // namespace kivu::text
