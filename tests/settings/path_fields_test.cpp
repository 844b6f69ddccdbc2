#include "settings/path_fields.h"

#include <gtest/gtest.h>

#include "testing/memory_file_system.h"

namespace kivu::settings {
namespace {

core::ProgramFiles At(const std::string& directory) {
    core::ProgramFiles program;
    program.AppDir = directory;
    return program;
}

const core::ProgramFiles windows = At("C:\\Kivu\\");
const core::ProgramFiles posix = At("/opt/kivu/");

TEST(PathsForProfile, OfWindowsAreRelativeWhereThatLeadsBack) {
    EXPECT_EQ(OwnPathForProfile(windows, "C:\\Kivu\\"), "");
    EXPECT_EQ(OwnPathForProfile(windows, "c:\\KIVU"), "");
    EXPECT_EQ(OwnPathForProfile(windows, "C:\\Kivu\\Roms\\"), "\\Roms");
    EXPECT_EQ(OwnPathForProfile(windows, "C:\\Emu\\WinUAE\\winuae.exe"),
              "..\\Emu\\WinUAE\\winuae.exe");
    EXPECT_EQ(OwnPathForProfile(windows, "D:\\Roms\\Amiga\\"), "D:\\Roms\\Amiga");
    EXPECT_EQ(OwnPathForProfile(windows, ""), "");
}

TEST(PathsForProfile, OfWindowsStandAsTheyAreWhereTheRuleWouldCutThem) {
    for (const char* path : {"C:\\", "D:\\", "C:\\Kivu2\\Roms", "C:\\Kiv\\x", "snes9x.exe",
                             "config\\x.rom", "\\\\server\\roms", "C:\\K"}) {
        // "..\\K" leads back.
        const std::string expected = std::string(path) == "C:\\K" ? "..\\K" : path;
        EXPECT_EQ(OwnPathForProfile(windows, path), expected);
    }
    EXPECT_EQ(OwnPathForProfile(windows, "C:\\Kivu2\\Roms\\"), "C:\\Kivu2\\Roms");
    // A ROM is a file; only the two other fields stand on the own directory by themselves.
    EXPECT_EQ(PathForProfile(windows, "C:\\Kivu\\"), "C:\\Kivu");
    EXPECT_EQ(PathForProfile(windows, ""), "");
}

TEST(PathsForProfile, OfPosixHosts) {
    EXPECT_EQ(OwnPathForProfile(posix, "/opt/kivu/"), "");
    EXPECT_EQ(OwnPathForProfile(posix, "/opt/kivu"), "");
    EXPECT_EQ(OwnPathForProfile(posix, "/opt/Kivu/"), "../Kivu");
    EXPECT_EQ(OwnPathForProfile(posix, "/usr/games/stella"), "../../usr/games/stella");
    EXPECT_EQ(OwnPathForProfile(posix, "stella"), "stella");
    EXPECT_EQ(OwnPathForProfile(posix, "/"), "../../");
    EXPECT_EQ(OwnPathForProfile(posix, "/opt/roms\\"), "../roms\\");
}

TEST(PathsForProfile, ComeBackAsTheyWereShown) {
    testing::MemoryFileSystem drive('\\');
    for (const char* path : {"C:\\", "D:\\", "C:\\Kivu2\\Roms\\", "C:\\Kiv\\x\\", "D:\\Roms\\",
                             "C:\\Kivu\\", "C:\\Kivu\\Roms\\", "\\\\server\\roms\\"})
        EXPECT_EQ(ShownRomPath(windows, drive, OwnPathForProfile(windows, path)), path);
    testing::MemoryFileSystem root('/');
    for (const char* path : {"/", "/opt/kivu/", "/opt/kivu/roms/", "/mnt/a b/", "/opt/kivu2/"})
        EXPECT_EQ(ShownRomPath(posix, root, OwnPathForProfile(posix, path)), path);
    for (const char* path : {"stella", "/usr/games/stella", "/opt/kivu/emu"})
        EXPECT_EQ(ShownEmulatorPath(posix, root, OwnPathForProfile(posix, path)), path);
}

TEST(ShownPaths, AreTheLaunchersDirectoryWhereNothingIsStored) {
    testing::MemoryFileSystem drive('\\');
    EXPECT_EQ(ShownRomPath(windows, drive, ""), "C:\\Kivu\\");
    EXPECT_EQ(ShownEmulatorPath(windows, drive, ""), "C:\\Kivu");
    EXPECT_EQ(ShownFilePath(windows, drive, ""), "");
    testing::MemoryFileSystem root('/');
    EXPECT_EQ(ShownRomPath(posix, root, ""), "/opt/kivu/");
    EXPECT_EQ(ShownEmulatorPath(posix, root, ""), "/opt/kivu");
    EXPECT_TRUE(IsAppDirectory(posix, ShownEmulatorPath(posix, root, "")));
    EXPECT_TRUE(IsAppDirectory(windows, ShownEmulatorPath(windows, drive, "")));
    EXPECT_FALSE(IsAppDirectory(windows, ""));
}

TEST(ShownPaths, HealDoubledSeparatorsOfADrive) {
    testing::MemoryFileSystem drive('\\');
    EXPECT_EQ(ShownRomPath(windows, drive, "D:\\\\Roms\\\\Amiga"), "D:\\Roms\\Amiga\\");
    EXPECT_EQ(ShownEmulatorPath(windows, drive, "D:\\\\Emu\\\\e.exe"), "D:\\Emu\\e.exe");
    EXPECT_EQ(ShownRomPath(windows, drive, "\\\\server\\roms"), "\\\\server\\roms\\");
}

TEST(ShownPaths, ABareNameOfPosixStaysUnlessTheFileIsThere) {
    testing::MemoryFileSystem root('/');
    EXPECT_EQ(ShownEmulatorPath(posix, root, "dosbox"), "dosbox");
    root.AddFile("/opt/kivu/dosbox", "x");
    EXPECT_EQ(ShownEmulatorPath(posix, root, "dosbox"), "/opt/kivu/dosbox");
    testing::MemoryFileSystem drive('\\');
    EXPECT_EQ(ShownEmulatorPath(windows, drive, "e.exe"), "C:\\Kivu\\e.exe");
}

TEST(TypedPaths, LoseQuotesAndBlanksAndFindTheirWayHome) {
    EXPECT_EQ(TypedPath(" \"C:\\My Games\\a.exe\" ", ""), "C:\\My Games\\a.exe");
    EXPECT_EQ(TypedPath("~/roms", "/home/u"), "/home/u/roms");
    EXPECT_EQ(TypedPath("\"~/my roms\"", "/home/u"), "/home/u/my roms");
    EXPECT_EQ(TypedPath("~", "/home/u"), "/home/u");
    EXPECT_EQ(TypedPath("~/roms", ""), "~/roms");
    EXPECT_EQ(TypedPath("~other/roms", "/home/u"), "~other/roms");
    EXPECT_EQ(TypedPath("/a/~/b", "/home/u"), "/a/~/b");
    EXPECT_EQ(TypedPath("", "/home/u"), "");
    EXPECT_EQ(TypedPath("\"", "/home/u"), "\"");
}

TEST(PathFields, AShareIsAskedOnLeaving) {
    EXPECT_TRUE(IsTestedOnLeaving("\\\\server\\roms"));
    EXPECT_TRUE(IsTestedOnLeaving("\\\\"));
    EXPECT_FALSE(IsTestedOnLeaving("\\roms"));
    EXPECT_FALSE(IsTestedOnLeaving("//roms"));
}

TEST(PathFields, NameAFileByItsExactText) {
    testing::MemoryFileSystem files('/');
    files.AddFile("/opt/kivu/sub/a.rom", "x");
    files.AddFile("/roms/a.rom", "x");
    EXPECT_TRUE(NamesFile(posix, files, "/roms/a.rom"));
    EXPECT_TRUE(NamesFile(posix, files, "sub/a.rom"));
    EXPECT_TRUE(NamesFile(posix, files, "../../roms/a.rom"));
    EXPECT_FALSE(NamesFile(posix, files, "/sub/a.rom"));
    for (const char* text : {"", "/roms", "/roms/*.rom", "/roms/?.rom", "/roms/b.rom"})
        EXPECT_FALSE(NamesFile(posix, files, text)) << text;
    testing::MemoryFileSystem drive('\\');
    drive.AddFile("C:\\Kivu\\deamon.exe", "MZ");
    EXPECT_TRUE(NamesFile(windows, drive, "deamon.exe"));
    EXPECT_TRUE(NamesFile(windows, drive, "C:\\Kivu\\deamon.exe"));
    EXPECT_FALSE(NamesFile(windows, drive, "D:\\deamon.exe"));
}

TEST(PathFields, NameAProgramByTheSearchPathOfPosix) {
    testing::MemoryFileSystem files('/');
    const auto find = [](const std::string& name) {
        return name == "stella" ? std::string("/usr/games/stella") : std::string();
    };
    EXPECT_TRUE(NamesProgram(posix, files, find, "stella"));
    EXPECT_FALSE(NamesProgram(posix, files, find, "hatari"));
    EXPECT_FALSE(NamesProgram(posix, files, find, "./stella"));
    EXPECT_FALSE(NamesProgram(posix, files, find, ""));
    testing::MemoryFileSystem drive('\\');
    EXPECT_FALSE(NamesProgram(windows, drive, find, "stella"));
}

}  // namespace
}  // namespace kivu::settings
