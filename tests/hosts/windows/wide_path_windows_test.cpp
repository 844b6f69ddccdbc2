#include "hosts/windows/scratch_directory.h"
#include "hosts/windows/system_text.h"
#include "hosts/windows/wide_path.h"

namespace kivu::hosts {
namespace {

std::string System(const std::string& path) {
    const auto system = SystemPath(path);
    return system ? Narrow(*system) : "<none>";
}

TEST(SystemPath, AnAbsolutePathGetsThePrefix) {
    EXPECT_EQ(System("C:\\Games\\a.adf"), "\\\\?\\C:\\Games\\a.adf");
    EXPECT_EQ(System("c:/Games//a.adf"), "\\\\?\\c:\\Games\\a.adf");
    EXPECT_EQ(System("C:\\"), "\\\\?\\C:\\");
    EXPECT_EQ(System("C:\\Games\\"), "\\\\?\\C:\\Games");
    EXPECT_EQ(System("\\\\server\\share"), "\\\\?\\UNC\\server\\share\\");
    EXPECT_EQ(System("//server/share/a b"), "\\\\?\\UNC\\server\\share\\a b");
}

TEST(SystemPath, APathBehindThePrefixStaysOne) {
    EXPECT_EQ(System("\\\\?\\C:\\Games\\a.adf"), "\\\\?\\C:\\Games\\a.adf");
    EXPECT_EQ(System("\\\\?\\UNC\\server\\share\\a"), "\\\\?\\UNC\\server\\share\\a");
}

TEST(SystemPath, DotsAreWorkedOutAndNeverLeaveTheRoot) {
    EXPECT_EQ(System("C:\\a\\.\\b\\..\\c"), "\\\\?\\C:\\a\\c");
    EXPECT_EQ(System("C:\\..\\..\\a"), "\\\\?\\C:\\a");
    EXPECT_EQ(System("\\\\server\\share\\..\\..\\a"), "\\\\?\\UNC\\server\\share\\a");
    EXPECT_EQ(System("C:\\a\\.."), "\\\\?\\C:\\");
}

TEST(SystemPath, DotsAndBlanksAtTheEndOfANameBelongToIt) {
    EXPECT_EQ(System("C:\\a.\\b "), "\\\\?\\C:\\a.\\b ");
    EXPECT_EQ(System("C:\\...\\a"), "\\\\?\\C:\\...\\a");
}

TEST(SystemPath, ARelativePathStartsAtTheCurrentDirectory) {
    const testing::ScratchDirectory directory;
    const testing::CurrentDirectoryKeeper keeper;
    ASSERT_TRUE(::SetCurrentDirectoryW(Wide(directory.Root()).c_str()));
    const std::string here = Narrow(SystemText(
        [](wchar_t* buffer, DWORD size) { return ::GetCurrentDirectoryW(size, buffer); }));
    const std::string drive = here.substr(0, 2);
    EXPECT_EQ(System("a.adf"), "\\\\?\\" + here + "\\a.adf");
    EXPECT_EQ(System(".\\a\\..\\b"), "\\\\?\\" + here + "\\b");
    EXPECT_EQ(System("."), "\\\\?\\" + here);
    EXPECT_EQ(System(drive), "\\\\?\\" + here);
    EXPECT_EQ(System(drive + "a.adf"), "\\\\?\\" + here + "\\a.adf");
    EXPECT_EQ(System("\\a.adf"), "\\\\?\\" + drive + "\\a.adf");
}

TEST(SystemPath, WhatIsNoPathNamesNothing) {
    for (const std::string path : {"", "\"C:\\a\"", "C:\\a*", "C:\\a?", "C:\\a:b", "C:\\a::$DATA",
                                   "C:\\a|b", "C:\\<a>", "C:\\a\nb", "C:\\a\x01", "\\\\",
                                   "\\\\server", "\\\\server\\", "\\\\\\share\\a", "\\??\\C:\\a"}) {
        EXPECT_EQ(System(path), "<none>") << path;
    }
    EXPECT_EQ(System(std::string("C:\\a\0b", 6)), "<none>");
}

TEST(SystemPath, DevicesAndPipesAreNoPaths) {
    for (const std::string path :
         {"\\\\.\\NUL", "//./COM1", "\\\\.\\C:", "\\\\.\\pipe\\x", "\\\\?\\pipe\\x",
          "\\\\?\\GLOBALROOT\\Device\\Null", "\\\\server\\pipe\\x", "\\\\server\\PIPE",
          "\\\\?\\UNC\\server\\Pipe\\x", "\\\\server\\mailslot\\x", "CON:", "C:\\CON:"}) {
        EXPECT_EQ(System(path), "<none>") << path;
    }
}

TEST(SystemPath, KnowsTheNamesThatProgramsTakeForDevices) {
    for (const std::wstring name : {L"CON", L"nul", L"Aux.adf", L"PRN  .x.y", L"com1", L"LPT9.txt",
                                    L"COM\u00B9", L"CONIN$", L"conout$"}) {
        EXPECT_TRUE(EndsInDeviceName(L"\\\\?\\C:\\a\\" + name)) << Narrow(name);
    }
    for (const std::wstring name :
         {L"CONS", L"COM", L"COM0", L"COM10", L"xNUL", L"a.NUL", L"LPTx", L"NUL\\a"}) {
        EXPECT_FALSE(EndsInDeviceName(L"\\\\?\\C:\\a\\" + name)) << Narrow(name);
    }
}

TEST(SystemPath, ThePrefixGoesAwayAgain) {
    EXPECT_EQ(WithoutPrefix(L"\\\\?\\C:\\a"), L"C:\\a");
    EXPECT_EQ(WithoutPrefix(L"\\\\?\\UNC\\server\\share\\a"), L"\\\\server\\share\\a");
    EXPECT_EQ(WithoutPrefix(L"\\\\?\\Volume{x}\\a"), L"\\\\?\\Volume{x}\\a");
    EXPECT_EQ(WithoutPrefix(L"a\\b"), L"a\\b");
    EXPECT_EQ(WithoutPrefix(L""), L"");
}

}  // namespace
}  // namespace kivu::hosts
