#include "profile/ini.h"

#include <gtest/gtest.h>
#include <string>

#include "testing/memory_file_system.h"

namespace kivu::profile {
namespace {

using namespace std::string_literals;
using testing::MemoryFileSystem;

class IniTest : public ::testing::Test {
 protected:
    std::string Read(std::string_view key, std::string_view defaultText = "",
                     bool writeBack = true) {
        return ini.ReadIniValue("Settings", key, path, defaultText, writeBack);
    }
    void Write(std::string_view key, std::string_view value, bool createFile = true) {
        ini.WriteIniValue("Settings", key, value, path, createFile);
    }
    void Put(std::string_view bytes) { disk.AddFile(path, bytes); }
    std::string Bytes() const { return disk.BytesOf(path); }

    MemoryFileSystem disk;
    Ini ini{disk};
    const std::string path = "/kivu/Config/Kivu.ini";
};

TEST_F(IniTest, FirstReadOfAMissingFileCreatesItWithoutTheKey) {
    disk.AddDirectory("/kivu/Config");
    EXPECT_EQ(Read("Fontsize", "16"), "16");
    EXPECT_EQ(Bytes(), "");
}

TEST_F(IniTest, SecondReadStoresTheDefault) {
    disk.AddDirectory("/kivu/Config");
    Read("Fontsize", "16");
    EXPECT_EQ(Read("Fontsize", "16"), "16");
    EXPECT_EQ(Bytes(), "[Settings]\r\nFontsize=16\r\n");
}

TEST_F(IniTest, WhicheverReaderComesFirstFixesTheDefault) {
    Put("");
    EXPECT_EQ(Read("UseJoystick", "1"), "1");
    EXPECT_EQ(Read("UseJoystick", "0"), "1");
}

TEST_F(IniTest, StoredEmptyValueCountsAsMissingAndIsOverwritten) {
    Put("[Settings]\r\nDir_Parameter=\r\n");
    EXPECT_EQ(Read("Dir_Parameter", "*.*"), "*.*");
    EXPECT_EQ(Bytes(), "[Settings]\r\nDir_Parameter=*.*\r\n");
}

TEST_F(IniTest, ValueOfBlanksOrEmptyQuotesCountsAsMissing) {
    for (const std::string value : {"   ", "\"\"", "'  '", "\t"}) {
        Put("[Settings]\r\nA=" + value + "\r\n");
        EXPECT_EQ(Read("A", "d"), "d");
        EXPECT_EQ(Bytes(), "[Settings]\r\nA=d\r\n");
    }
}

TEST_F(IniTest, EmptyDefaultIsNeverStored) {
    Put("[Settings]\r\nRomPath=\r\n");
    EXPECT_EQ(Read("RomPath"), "");
    EXPECT_EQ(Read("EmulatorPath"), "");
    EXPECT_EQ(Bytes(), "[Settings]\r\nRomPath=\r\n");
    EXPECT_TRUE(disk.changes.empty());
}

TEST_F(IniTest, ReadWithWriteBackOffCreatesNeitherFileNorKey) {
    disk.AddDirectory("/kivu/Config");
    EXPECT_EQ(Read("RomCount", "-1", false), "-1");
    EXPECT_EQ(Bytes(), "(no file)");
    Put("[Settings]\r\nRomCount=\r\n");
    EXPECT_EQ(Read("RomCount", "-1", false), "-1");
    EXPECT_EQ(Read("RunVBS_Script", "0", false), "0");
    EXPECT_EQ(Bytes(), "[Settings]\r\nRomCount=\r\n");
    EXPECT_TRUE(disk.changes.empty());
}

TEST_F(IniTest, StoredValueWinsOverTheDefaultAndIsNotWrittenAgain) {
    Put("[Settings]\nFontsize = 20\n");
    EXPECT_EQ(Read("Fontsize", "16"), "20");
    EXPECT_EQ(Bytes(), "[Settings]\nFontsize = 20\n");
    EXPECT_TRUE(disk.changes.empty());
}

TEST_F(IniTest, SurroundingBlanksOfAValueAreLost) {
    Put("");
    Write("FullScreen", " 1");
    EXPECT_EQ(Bytes(), "[Settings]\r\nFullScreen= 1\r\n");
    EXPECT_EQ(Read("FullScreen", "0"), "1");
}

TEST_F(IniTest, LongValueIsNotCut) {
    const std::string value(1000, 'p');
    Put("");
    Write("EmulatorParameter", value);
    EXPECT_EQ(Read("EmulatorParameter"), value);
}

TEST_F(IniTest, WriteToAMissingFileNeedsTheCreateFlag) {
    disk.AddDirectory("/kivu/Config");
    Write("A", "1", false);
    EXPECT_EQ(Bytes(), "(no file)");
    Write("A", "1", true);
    EXPECT_EQ(Bytes(), "[Settings]\r\nA=1\r\n");
    Write("A", "2", false);
    EXPECT_EQ(Bytes(), "[Settings]\r\nA=2\r\n");
}

TEST_F(IniTest, WriteThatChangesNothingLeavesTheFileAlone) {
    Put("[Settings]\nA=1\n");
    Write("A", "1");
    EXPECT_TRUE(disk.changes.empty());
    Write("A", "2");
    EXPECT_EQ(disk.changes.size(), 1U);
}

TEST_F(IniTest, AKeyThatCannotBeWrittenLeavesTheFileAlone) {
    Put("[Settings]\r\nA=1\r\n");
    Write("A=B", "2");
    Write("", "2");
    ini.WriteIniValue("", "A", "2", path, true);
    EXPECT_EQ(Bytes(), "[Settings]\r\nA=1\r\n");
    EXPECT_TRUE(disk.changes.empty());
    EXPECT_EQ(Read("A=B", "d"), "d");
}

TEST_F(IniTest, OneReadOfTheProfileIsOneReadOfTheFile) {
    Put("[Settings]\r\nA=1\r\n");
    Read("A", "0");
    EXPECT_EQ(disk.reads, std::vector<std::string>{path});
}

TEST_F(IniTest, ChangeByTheUserBetweenTwoCallsIsSeenAndKept) {
    Put("[Settings]\r\nA=1\r\n");
    EXPECT_EQ(Read("A"), "1");
    Put("; my own\n[settings]\nA=2\nMine=x\n");
    EXPECT_EQ(Read("A"), "2");
    Write("B", "3");
    EXPECT_EQ(Bytes(), "; my own\n[settings]\nA=2\nMine=x\nB=3\r\n");
}

TEST_F(IniTest, ProfileThatVanishesBetweenLookAndReadGivesTheDefault) {
    Put("[Settings]\r\nA=1\r\n");
    disk.beforeRead = [this](const std::string&) { disk.Remove(path); };
    EXPECT_EQ(Read("A", "d", false), "d");
    Write("A", "2", false);
    EXPECT_EQ(Bytes(), "(no file)");
}

TEST_F(IniTest, UnreadableProfileGivesTheDefaultAndIsNotOverwritten) {
    Put("[Settings]\r\nA=1\r\n");
    disk.SetUnreadable(path);
    EXPECT_EQ(Read("A", "d"), "d");
    Write("A", "2");
    EXPECT_EQ(Bytes(), "[Settings]\r\nA=1\r\n");
    EXPECT_TRUE(disk.changes.empty());
}

TEST_F(IniTest, DirectoryInPlaceOfTheProfileGivesTheDefaultAndStays) {
    disk.AddDirectory(path);
    EXPECT_EQ(Read("A", "d"), "d");
    Write("A", "2");
    EXPECT_TRUE(disk.IsDirectory(path));
    EXPECT_TRUE(disk.changes.empty());
}

TEST_F(IniTest, MissingDirectoryMakesReadsGiveTheDefaultAndWritesDoNothing) {
    EXPECT_EQ(Read("A", "d"), "d");
    Write("A", "2");
    EXPECT_FALSE(disk.IsDirectory("/kivu"));
    EXPECT_EQ(Bytes(), "(no file)");
}

TEST_F(IniTest, ReadOnlyDirectoryMakesWritesDoNothing) {
    Put("[Settings]\r\nA=1\r\n");
    disk.SetReadOnly("/kivu/Config");
    EXPECT_EQ(Read("A"), "1");
    EXPECT_EQ(Read("B", "d"), "d");
    Write("A", "2");
    EXPECT_EQ(Bytes(), "[Settings]\r\nA=1\r\n");
}

TEST_F(IniTest, FullDiskLeavesTheOldProfile) {
    Put("[Settings]\r\nA=1\r\n");
    disk.SetFreeSpace(8);
    Write("A", "2");
    EXPECT_EQ(Read("B", "d"), "d");
    EXPECT_EQ(Bytes(), "[Settings]\r\nA=1\r\n");
    EXPECT_EQ(Read("A"), "1");
}

TEST_F(IniTest, EmptyPathIsNoFile) {
    EXPECT_EQ(ini.ReadIniValue("Settings", "A", "", "d", true), "d");
    ini.WriteIniValue("Settings", "A", "1", "", true);
    EXPECT_TRUE(disk.changes.empty());
}

TEST_F(IniTest, BareNameIsTheFileInTheCurrentDirectoryIfItExistsThere) {
    disk.AddFile("/games/list.ini", "[Settings]\r\nA=here\r\n");
    disk.ChangeDirectory("/games");
    EXPECT_EQ(ini.ReadIniValue("Settings", "A", "list.ini", "", false), "here");
    EXPECT_EQ(disk.reads.back(), "/games/list.ini");
    ini.WriteIniValue("Settings", "A", "2", "list.ini", false);
    EXPECT_EQ(disk.changes.back(), "/games/list.ini");
    disk.ChangeDirectory("/");
    EXPECT_EQ(ini.ReadIniValue("Settings", "A", "list.ini", "d", false), "d");
    EXPECT_EQ(disk.BytesOf("/list.ini"), "(no file)");
}

TEST_F(IniTest, BareNameIsCreatedInTheCurrentDirectory) {
    disk.AddDirectory("/games");
    disk.ChangeDirectory("/games");
    EXPECT_EQ(ini.ReadIniValue("Settings", "A", "new.ini", "1", true), "1");
    EXPECT_EQ(disk.BytesOf("/games/new.ini"), "");
    EXPECT_EQ(ini.ReadIniValue("Settings", "A", "new.ini", "1", true), "1");
    EXPECT_EQ(disk.BytesOf("/games/new.ini"), "[Settings]\r\nA=1\r\n");
}

TEST_F(IniTest, PathWithALeadingSlashOrAColonIsTakenAsItIs) {
    disk.AddFile("/games/a:b.ini", "[Settings]\r\nA=1\r\n");
    disk.ChangeDirectory("/games");
    EXPECT_EQ(ini.ReadIniValue("Settings", "A", "a:b.ini", "", false), "1");
    EXPECT_EQ(disk.reads.back(), "a:b.ini");
    EXPECT_EQ(ini.ReadIniValue("Settings", "A", "/games/a:b.ini", "", false), "1");
    EXPECT_EQ(disk.reads.back(), "/games/a:b.ini");
}

TEST_F(IniTest, WindowsPathsAndCodePageWorkAlike) {
    MemoryFileSystem windows('\\');
    windows.AddFile("C:\\Kivu\\Config\\Kivu.ini",
                    "[Settings]\r\nRomPath=D:\\\xDC"
                    "bung\r\n");
    Ini store(windows);
    EXPECT_EQ(store.ReadIniValue("settings", "ROMPATH", "C:\\Kivu\\Config\\Kivu.ini", "", true),
              "D:\\Übung");
    windows.ChangeDirectory("C:\\Kivu\\Config");
    store.WriteIniValue("Settings", "RomPath", "D:\\Äpfel", "Kivu.ini", true);
    EXPECT_EQ(windows.changes.back(), "C:\\Kivu\\Config\\Kivu.ini");
    EXPECT_EQ(windows.BytesOf("C:\\Kivu\\Config\\Kivu.ini"),
              "[Settings]\r\nRomPath=D:\\\xC4pfel\r\n");
}

TEST_F(IniTest, ProfileFromWindowsReadsRightOnLinuxAndKeepsItsBytes) {
    Put("[Settings]\r\nTitle=\xC4rger\r\nOther=\xD6l\r\n");
    EXPECT_EQ(Read("Title"), "Ärger");
    Write("Title", "Spaß");
    EXPECT_EQ(Bytes(), "[Settings]\r\nTitle=Spaß\r\nOther=\xD6l\r\n");
    EXPECT_EQ(Read("Title"), "Spaß");
    EXPECT_EQ(Read("Other"), "Öl");
}

TEST_F(IniTest, TenMegabyteProfileIsReadAndWritten) {
    std::string bytes = "[Settings]\r\n";
    for (int i = 0; bytes.size() < (10U << 20); ++i) {
        bytes += "Key" + std::to_string(i) + "=some value\r\n";
    }
    Put(bytes);
    EXPECT_EQ(Read("Last", "1"), "1");
    EXPECT_EQ(Bytes(), bytes + "Last=1\r\n");
    EXPECT_EQ(Read("last"), "1");
}

TEST_F(IniTest, NumberIsZeroWhenTheTextIsNoneOrDoesNotFitSixteenBits) {
    const auto number = [this](const std::string& text) {
        Put("[Settings]\r\nN=" + text + "\r\n");
        return ini.ReadIniNumber("Settings", "N", path, "5", true);
    };
    EXPECT_EQ(number("7"), 7);
    EXPECT_EQ(number(" -1"), -1);
    EXPECT_EQ(number("32767"), 32767);
    EXPECT_EQ(number("-32768"), -32768);
    EXPECT_EQ(number("32768"), 0);
    EXPECT_EQ(number("99999999999999999999"), 0);
    EXPECT_EQ(number("yes"), 0);
    EXPECT_EQ(number("2,5"), 2);
    EXPECT_EQ(number(""), 5);
}

TEST_F(IniTest, NumberStoresItsDefault) {
    Put("");
    EXPECT_EQ(ini.ReadIniNumber("Settings", "SplashTimer", path, "6", true), 6);
    EXPECT_EQ(Bytes(), "[Settings]\r\nSplashTimer=6\r\n");
    EXPECT_EQ(ini.ReadIniNumber("Settings", "RomCount", path, "-1", false), -1);
    EXPECT_EQ(Bytes(), "[Settings]\r\nSplashTimer=6\r\n");
}

TEST_F(IniTest, WideNumberHoldsMeasuresOfLargeScreensAndLeavesTheFieldOtherwise) {
    const auto number = [this](const std::string& text) {
        Put("[Settings]\r\nWindowX=" + text + "\r\n");
        return ini.ReadIniWide("Settings", "WindowX", path, "12000", true);
    };
    EXPECT_EQ(number("57600"), 57600);
    EXPECT_EQ(number("-120"), -120);
    EXPECT_EQ(number("1234,75"), 1235);
    EXPECT_EQ(number("1234.25"), 1234);
    EXPECT_EQ(number("wide"), std::nullopt);
    EXPECT_EQ(number("2147483648"), std::nullopt);
    EXPECT_EQ(number(""), 12000);
}

TEST_F(IniTest, ProfileOfManyKeysIsWrittenOnce) {
    Put("[Favoriten]\r\nFav0_Name=x\r\n");
    auto profile = ini.LoadProfile(path);
    ASSERT_TRUE(profile);
    for (int i = 0; i < 50; ++i) {
        profile->Set("Favoriten", "Fav" + std::to_string(i) + "_Name", std::to_string(i));
    }
    ini.StoreProfile(*profile, path, true);
    EXPECT_EQ(disk.changes.size(), 1U);
    EXPECT_EQ(ini.ReadIniValue("Favoriten", "Fav49_Name", path, "", false), "49");
}

TEST_F(IniTest, UnchangedProfileIsNotWritten) {
    Put("[Settings]\nA=1");
    auto profile = ini.LoadProfile(path);
    ASSERT_TRUE(profile);
    profile->Set("Settings", "A", "1");
    ini.StoreProfile(*profile, path, true);
    EXPECT_TRUE(disk.changes.empty());
}

TEST_F(IniTest, MissingProfileIsAnEmptyDocumentAndStoredOnlyWithTheCreateFlag) {
    disk.AddDirectory("/kivu/Config");
    auto profile = ini.LoadProfile(path);
    ASSERT_TRUE(profile);
    profile->Set("Settings", "A", "1");
    ini.StoreProfile(*profile, path, false);
    EXPECT_EQ(Bytes(), "(no file)");
    ini.StoreProfile(*profile, path, true);
    EXPECT_EQ(Bytes(), "[Settings]\r\nA=1\r\n");
    EXPECT_EQ(disk.changes.size(), 1U);
}

TEST_F(IniTest, UnreadableProfileOrDirectoryCannotBeLoaded) {
    Put("[Settings]\r\nA=1\r\n");
    disk.SetUnreadable(path);
    EXPECT_FALSE(ini.LoadProfile(path));
    EXPECT_FALSE(ini.LoadProfile("/kivu/Config"));
    ini.StoreProfile(ini.ParseProfile("x"), "/kivu/Config", true);
    EXPECT_TRUE(disk.changes.empty());
}

TEST_F(IniTest, DocumentOutlivesTheStoreThatMadeIt) {
    Put("[Settings]\r\nA=\xC4\r\n");
    auto profile = Ini(disk).LoadProfile(path);
    ASSERT_TRUE(profile);
    EXPECT_EQ(profile->Value("Settings", "A"), "Ä");
}

}  // namespace
}  // namespace kivu::profile
