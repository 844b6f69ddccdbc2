#include "hosts/windows/clock_windows.h"
#include "hosts/windows/file_system_windows.h"
#include "hosts/windows/locale_windows.h"
#include "hosts/windows/program_directory_windows.h"
#include "hosts/windows/scratch_directory.h"

namespace kivu::hosts {
namespace {

TEST(ClockWindows, TellsTheUsersTime) {
    int seconds = 0;
    SYSTEMTIME before{}, after{};
    // Midnight may pass once.
    do {
        ::GetLocalTime(&before);
        const platform::TimeOfDay now = WindowsClock().Now();
        ::GetLocalTime(&after);
        seconds = (now.hour * 60 + now.minute) * 60 + now.second;
    } while (before.wDay != after.wDay);
    EXPECT_GE(seconds, (before.wHour * 60 + before.wMinute) * 60 + before.wSecond);
    EXPECT_LE(seconds, (after.wHour * 60 + after.wMinute) * 60 + after.wSecond);
}

TEST(ClockWindows, TheSteadyTimeMovesOnWithRest) {
    WindowsClock clock;
    const auto before = clock.Steady();
    clock.Rest(std::chrono::milliseconds(30));
    EXPECT_GE(clock.Steady() - before, std::chrono::milliseconds(20));
    clock.Rest(std::chrono::milliseconds(0));
    clock.Rest(std::chrono::milliseconds(-5));
}

TEST(LocaleWindows, NamesTheLanguageInEnglish) {
    EXPECT_EQ(WindowsLocale(0x0407).LanguageEnglishName(), "German");
    EXPECT_EQ(WindowsLocale(0x0C07).LanguageEnglishName(), "German");  // of Austria
    EXPECT_EQ(WindowsLocale(0x0409).LanguageEnglishName(), "English");
    EXPECT_EQ(WindowsLocale(0x040C).LanguageEnglishName(), "French");
    EXPECT_EQ(WindowsLocale(0xFFFF).LanguageEnglishName(), "");
}

TEST(LocaleWindows, IsThatOfTheUser) {
    char name[256] = {};
    ASSERT_GT(::GetLocaleInfoA(1024, 4097, name, sizeof name), 0);
    EXPECT_EQ(WindowsLocale().LanguageEnglishName(), name);
    EXPECT_NE(WindowsLocale().LanguageEnglishName(), "");
}

TEST(ProgramDirectoryWindows, IsThatOfTheRunningProgram) {
    const std::string file = ProgramFile();
    char path[MAX_PATH];
    ASSERT_GT(::GetModuleFileNameA(nullptr, path, sizeof path), 0u);
    EXPECT_EQ(file, path);
    EXPECT_TRUE(WindowsFileSystem().FileExists(file));
    EXPECT_TRUE(WindowsFileSystem().IsDirectory(ProgramDirectory(file)));
    EXPECT_EQ(ProgramDirectory(file) + "\\" + ProgramName(file) + ".exe", file);
}

TEST(ProgramDirectoryWindows, TheNameIsThatOfTheFileWithoutItsEnding) {
    EXPECT_EQ(ProgramName("C:\\Kivu\\Kivu.exe"), "Kivu");
    EXPECT_EQ(ProgramName("C:\\Kivu\\Kivu-1.4.EXE"), "Kivu-1.4");
    EXPECT_EQ(ProgramName("C:\\Kivu\\Kivu"), "Kivu");
    EXPECT_EQ(ProgramName("C:\\Kivu\\.exe"), ".exe");
    EXPECT_EQ(ProgramName(""), "");
}

TEST(ProgramDirectoryWindows, TheDirectoryHasNoClosingSeparatorButForADrive) {
    EXPECT_EQ(ProgramDirectory("C:\\Kivu\\Kivu.exe"), "C:\\Kivu");
    EXPECT_EQ(ProgramDirectory("C:\\Kivu.exe"), "C:\\");
    EXPECT_EQ(ProgramDirectory("\\\\server\\share\\Kivu.exe"), "\\\\server\\share");
    EXPECT_EQ(ProgramDirectory("Kivu.exe"), "");
    EXPECT_EQ(ProgramDirectory(""), "");
}

}  // namespace
}  // namespace kivu::hosts
