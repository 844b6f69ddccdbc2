#include "support/file_dialog_paths.h"

#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace kivu::support {
namespace {

TEST(FileDialogPaths, MaskIsKnownByItsSigns) {
    for (const char* mask : {"*.exe", "a?.adf", "*", "C:\\Emu\\*.*", "\\\\?\\C:\\*.adf"})
        EXPECT_TRUE(HasWildcard(mask)) << mask;
    for (const char* name : {"", "a.exe", "\\\\?\\C:\\a.exe", "[x].adf"})
        EXPECT_FALSE(HasWildcard(name)) << name;
}

TEST(FileDialogPaths, ShareBeginsWithTwoSeparators) {
    EXPECT_TRUE(IsNetworkPath("\\\\nas\\roms", false));
    EXPECT_TRUE(IsNetworkPath("//nas/roms", false));
    EXPECT_TRUE(IsNetworkPath("\\\\nas\\roms", true));
    EXPECT_FALSE(IsNetworkPath("//nas/roms", true));
    EXPECT_FALSE(IsNetworkPath("\\roms", false));
    EXPECT_FALSE(IsNetworkPath("C:\\roms", false));
}

TEST(FileDialogPaths, IsJoinedByThePathsOwnSeparator) {
    EXPECT_EQ(JoinedPath("C:\\Emu", "a.exe"), "C:\\Emu\\a.exe");
    EXPECT_EQ(JoinedPath("C:\\", "a.exe"), "C:\\a.exe");
    EXPECT_EQ(JoinedPath("C:/Emu", "a.exe"), "C:/Emu/a.exe");
    EXPECT_EQ(JoinedPath("/", "a"), "/a");
    EXPECT_EQ(JoinedPath("/usr", ""), "/usr/");
    EXPECT_EQ(JoinedPath("", "a"), "a");
    EXPECT_EQ(JoinedPath("/odd\\", "a"), "/odd\\/a");
}

TEST(FileDialogPaths, PointsLeadUpAndNeverAboveTheRoot) {
    const std::vector<std::pair<const char*, const char*>> posix{
        {"/a/b/..", "/a"},         {"/a/./b", "/a/b"}, {"/..", "/"}, {"/a/../../b", "/b"},
        {"/a//b", "/a/b"},         {"/a/b/", "/a/b/"}, {"//", "//"}, {"/a/..b/...", "/a/..b/..."},
        {"/a\\..\\b", "/a\\..\\b"}};
    for (const auto& [given, left] : posix)
        EXPECT_EQ(WithoutDots(given, true), left) << given;
    const std::vector<std::pair<const char*, const char*>> windows{
        {"C:\\a\\..\\b", "C:\\b"},        {"C:\\..\\..", "C:\\"}, {"C:/a/../b", "C:/b"},
        {"\\\\nas\\roms\\..", "\\\\nas"}, {"C:\\a\\", "C:\\a\\"}, {"C:", "C:"}};
    for (const auto& [given, left] : windows)
        EXPECT_EQ(WithoutDots(given, false), left) << given;
}

struct Typed {
    const char *text, *path;
};

TEST(FileDialogPaths, TypedTextBecomesAWholePath) {
    const TypedFrom from{"/roms", "/home/me", true};
    const std::vector<Typed> table{
        {"", ""},
        {"   ", ""},
        {"a.adf", "/roms/a.adf"},
        {"  a.adf ", "/roms/a.adf"},
        {"\"/my games/a.adf\"", "/my games/a.adf"},
        {"sub/a.adf", "/roms/sub/a.adf"},
        {"..", "/"},
        {"../x", "/x"},
        {"~", "/home/me"},
        {"~/", "/home/me"},
        {"~/games", "/home/me/games"},
        {"\"~/my games\"", "/home/me/my games"},
        {"~other", "/roms/~other"},
        {"/abs", "/abs"},
        {"//x", "//x"},
        {"\\\\nas\\roms", "\\\\nas\\roms"},
        {"C:\\a", "/roms/C:\\a"},
        {"*.adf", "/roms/*.adf"},
        {"\"\"", ""},
        {"\"  \"", ""},
        {"\r\n", ""},
        {"/home/me/a.adf\n", "/home/me/a.adf"},
        {"\r\na.adf\r\nb.adf", "/roms/a.adf"},
    };
    for (const Typed& one : table)
        EXPECT_EQ(PathTyped(one.text, from), one.path) << one.text;
}

TEST(FileDialogPaths, TypedTextBecomesAWholePathOnWindows) {
    const TypedFrom from{"C:\\Emu", "C:\\Users\\me", false};
    const std::vector<Typed> table{
        {"a.exe", "C:\\Emu\\a.exe"},
        {"D:\\a.exe", "D:\\a.exe"},
        {"\"D:\\My CDs\\a.iso\"", "D:\\My CDs\\a.iso"},
        {"D:", "D:\\"},
        {"D:a.exe", "D:\\a.exe"},
        {"D:/Games/a", "D:/Games/a"},
        {"D:\\Games/a", "D:\\Games\\a"},
        {"sub/a", "C:\\Emu\\sub\\a"},
        {"\\a", "C:\\a"},
        {"..", "C:\\"},
        {"~\\x", "C:\\Users\\me\\x"},
        {"~/x", "C:\\Users\\me\\x"},
        {"\\\\nas\\roms\\", "\\\\nas\\roms\\"},
        {"//nas/roms", "//nas/roms"},
        {"\\\\?\\C:\\long", "\\\\?\\C:\\long"},
    };
    for (const Typed& one : table)
        EXPECT_EQ(PathTyped(one.text, from), one.path) << one.text;
}

TEST(FileDialogPaths, LoneSeparatorBeginsAtTheTopOfTheShare) {
    for (const char* directory : {"\\\\nas\\roms\\a\\b", "\\\\nas\\roms", "\\\\nas\\roms\\"})
        EXPECT_EQ(PathTyped("\\x", {directory, "", false}), "\\\\nas\\roms\\x") << directory;
    EXPECT_EQ(PathTyped("\\x", {"\\\\nas", "", false}), "\\\\nas\\x");
}

TEST(FileDialogPaths, WithoutAHomeTheTildeIsAName) {
    EXPECT_EQ(PathTyped("~/x", {"/roms", "", true}), "/roms/~/x");
}

TEST(FileDialogPaths, ProgramsHaveNoEndingOfTheirOwnOnAPosixHost) {
    EXPECT_EQ(PatternOf("*.exe", true), "*.*");
    EXPECT_EQ(PatternOf("Deamon.EXE", true), "*.*");
    EXPECT_EQ(PatternOf("*.exe", false), "*.exe");
    EXPECT_EQ(PatternOf("deamon.exe", false), "deamon.exe");
    EXPECT_EQ(PatternOf("*.rom", true), "*.rom");
    EXPECT_EQ(PatternOf("", true), "*.*");
    EXPECT_EQ(PatternOf("", false), "*.*");
}

TEST(FileDialogPaths, CaptionTellsTheMask) {
    EXPECT_EQ(CaptionWithMask("Emulator Exe wählen", "*.exe"),
              "Emulator Exe wählen    (\"*.exe\")");
    EXPECT_EQ(CaptionWithMask("Open File", ""), "Open File");
}

}  // namespace
}  // namespace kivu::support
