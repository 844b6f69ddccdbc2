#include <gmock/gmock.h>
#include <random>

#include "profile/ini.h"
#include "testing/memory_file_system.h"

namespace kivu::profile {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string path = "/k/Kivu.ini";

class IniWriteBacksTest : public ::testing::Test {
 protected:
    IniWriteBacksTest() { disk.AddDirectory("/k"); }
    std::string Read(const std::string& key, const std::string& missing, bool writeBack = true) {
        return ini.ReadIniValue("Settings", key, path, missing, writeBack);
    }

    testing::MemoryFileSystem disk;
    Ini ini{disk};
};

TEST_F(IniWriteBacksTest, ManyReadsOfOneFileWriteItOnce) {
    disk.AddFile(path, "; mine\r\n[Settings]\r\nA=1\r\n");
    {
        const Ini::GatheredWriteBacks gathered(ini);
        EXPECT_EQ(Read("A", "9"), "1");
        EXPECT_EQ(Read("B", "2"), "2");
        EXPECT_EQ(Read("C", "3", false), "3");
        EXPECT_EQ(Read("D", ""), "");
        EXPECT_EQ(Read("E", "5"), "5");
        EXPECT_THAT(disk.changes, IsEmpty());
    }
    EXPECT_EQ(disk.BytesOf(path), "; mine\r\n[Settings]\r\nA=1\r\nB=2\r\nE=5\r\n");
    EXPECT_THAT(disk.changes, ElementsAre(path));
}

TEST_F(IniWriteBacksTest, LaterReaderFindsTheDefaultOfTheFirst) {
    disk.AddFile(path, "");
    const Ini::GatheredWriteBacks gathered(ini);
    EXPECT_EQ(Read("UseJoystick", "1"), "1");
    EXPECT_EQ(Read("UseJoystick", "0"), "1");
    EXPECT_EQ(Read("usejoystick", "0", false), "1");
    const auto profile = ini.LoadProfile(path);
    ASSERT_TRUE(profile);
    EXPECT_EQ(profile->Value("Settings", "UseJoystick"), "1");
}

TEST_F(IniWriteBacksTest, FileIsMadeWithoutTheKeyThatWasReadFirst) {
    {
        const Ini::GatheredWriteBacks gathered(ini);
        EXPECT_EQ(Read("A", "1"), "1");
        EXPECT_EQ(Read("B", "2"), "2");
        EXPECT_EQ(disk.BytesOf(path), "(no file)");
    }
    EXPECT_EQ(disk.BytesOf(path), "[Settings]\r\nB=2\r\n");
    EXPECT_THAT(disk.changes, ElementsAre(path));
}

TEST_F(IniWriteBacksTest, ReadThatKeepsNothingMakesAnEmptyFile) {
    {
        const Ini::GatheredWriteBacks gathered(ini), within(ini);
        Read("A", "");
    }
    EXPECT_EQ(disk.BytesOf(path), "");
    disk.Remove(path);
    {
        const Ini::GatheredWriteBacks gathered(ini);
        Read("A", "1", false);
    }
    EXPECT_EQ(disk.BytesOf(path), "(no file)");
}

TEST_F(IniWriteBacksTest, NothingMissingWritesNothing) {
    disk.AddFile(path, "[Settings]\r\nA=1\r\n");
    {
        const Ini::GatheredWriteBacks gathered(ini);
        Read("A", "2");
    }
    EXPECT_THAT(disk.changes, IsEmpty());
}

TEST_F(IniWriteBacksTest, OnlyTheOutermostStores) {
    disk.AddFile(path, "");
    const Ini::GatheredWriteBacks outer(ini);
    {
        const Ini::GatheredWriteBacks inner(ini);
        Read("A", "1");
    }
    EXPECT_EQ(disk.BytesOf(path), "");
    ini.StoreWriteBacks();
    EXPECT_EQ(disk.BytesOf(path), "[Settings]\r\nA=1\r\n");
    Read("B", "2");
    EXPECT_EQ(disk.BytesOf(path), "[Settings]\r\nA=1\r\n");
}

TEST_F(IniWriteBacksTest, AWriteGoesAtOnceBehindWhatWasGatheredForItsFile) {
    disk.AddFile(path, "");
    disk.AddFile("/k/Other.ini", "");
    const Ini::GatheredWriteBacks gathered(ini);
    Read("A", "1");
    ini.ReadIniValue("Settings", "O", "/k/Other.ini", "1", true);
    ini.WriteIniValue("Settings", "LastEmulator", "Amiga", path, true);
    EXPECT_EQ(disk.BytesOf(path), "[Settings]\r\nA=1\r\nLastEmulator=Amiga\r\n");
    EXPECT_EQ(disk.BytesOf("/k/Other.ini"), "");
    EXPECT_THAT(disk.changes, ElementsAre(path));
    Read("B", "2");
    ini.WriteIniValue("Settings", "A", "3", path, true);
    EXPECT_EQ(disk.BytesOf(path), "[Settings]\r\nA=3\r\nLastEmulator=Amiga\r\nB=2\r\n");
}

TEST_F(IniWriteBacksTest, AWriteThatFitsWithoutTheDefaultsIsNotLost) {
    disk.AddFile(path, "");
    const Ini::GatheredWriteBacks gathered(ini);
    Read("A", std::string(100, 'a'));
    disk.SetFreeSpace(60);
    ini.WriteIniValue("Settings", "LastEmulator", "Amiga", path, true);
    EXPECT_EQ(disk.BytesOf(path), "[Settings]\r\nLastEmulator=Amiga\r\n");
}

TEST_F(IniWriteBacksTest, WhatSomebodyElseWritesMeanwhileCountsAndStays) {
    disk.AddFile(path, "[Settings]\r\nA=1\r\n");
    {
        const Ini::GatheredWriteBacks gathered(ini);
        EXPECT_EQ(Read("B", "2"), "2");
        EXPECT_EQ(Read("C", "3"), "3");
        disk.AddFile(path, "[Settings]\r\nA=7\r\n; mine\r\nB=user\r\n");
        EXPECT_EQ(Read("A", "9"), "7");
        EXPECT_EQ(Read("B", "2"), "user");
        EXPECT_EQ(Read("C", "4"), "3");
        disk.AddFile(path, "[Settings]\r\nA=7\r\nB=user\r\n[More]\r\nD=own\r\n");
    }
    EXPECT_EQ(disk.BytesOf(path), "[Settings]\r\nA=7\r\nB=user\r\nC=3\r\n[More]\r\nD=own\r\n");
}

TEST_F(IniWriteBacksTest, FileThatComesBeforeItIsMadeKeepsWhatItHas) {
    {
        const Ini::GatheredWriteBacks gathered(ini);
        Read("A", "1");
        Read("B", "2");
        disk.AddFile(path, "[Settings]\r\nA=user\r\n");
    }
    EXPECT_EQ(disk.BytesOf(path), "[Settings]\r\nA=user\r\nB=2\r\n");
}

TEST_F(IniWriteBacksTest, FileThatGoesMeanwhileIsNotBroughtBack) {
    disk.AddFile(path, "[Settings]\r\nMine=1\r\n");
    {
        const Ini::GatheredWriteBacks gathered(ini);
        Read("A", "1");
        disk.Remove(path);
    }
    EXPECT_EQ(disk.BytesOf(path), "(no file)");
    disk.AddFile(path, "[Settings]\r\nMine=1\r\n");
    {
        const Ini::GatheredWriteBacks gathered(ini);
        Read("A", "1");
        disk.Remove(path);
        EXPECT_EQ(Read("A", "2"), "2");  // makes the file
        EXPECT_EQ(Read("B", "3"), "3");
    }
    EXPECT_EQ(disk.BytesOf(path), "[Settings]\r\nB=3\r\n");
}

TEST_F(IniWriteBacksTest, FullDiskKeepsTheOldFileAndTheDefaultsHold) {
    disk.AddFile(path, "[Settings]\r\nMine=1\r\n");
    disk.FailChanges(std::errc::no_space_on_device);
    {
        const Ini::GatheredWriteBacks gathered(ini);
        EXPECT_EQ(Read("A", "1"), "1");
        EXPECT_EQ(Read("A", "2"), "1");
    }
    EXPECT_EQ(disk.BytesOf(path), "[Settings]\r\nMine=1\r\n");
    EXPECT_EQ(Read("A", "2"), "2");
}

TEST_F(IniWriteBacksTest, UnreadableFileOrDirectoryInItsPlaceIsLeftAlone) {
    disk.AddFile(path, "[Settings]\r\nMine=1\r\n");
    disk.SetUnreadable(path);
    disk.AddDirectory("/k/Dir.ini");
    {
        const Ini::GatheredWriteBacks gathered(ini);
        EXPECT_EQ(Read("A", "1"), "1");
        EXPECT_EQ(Read("B", "2"), "2");
        EXPECT_EQ(ini.ReadIniValue("Settings", "A", "/k/Dir.ini", "1", true), "1");
        EXPECT_EQ(ini.ReadIniValue("Settings", "B", "/k/Dir.ini", "2", true), "2");
    }
    EXPECT_THAT(disk.changes, IsEmpty());
    EXPECT_EQ(disk.BytesOf(path), "[Settings]\r\nMine=1\r\n");
}

TEST_F(IniWriteBacksTest, FileThatBecomesUnreadableIsNotWritten) {
    disk.AddFile(path, "[Settings]\r\nMine=1\r\n");
    {
        const Ini::GatheredWriteBacks gathered(ini);
        Read("A", "1");
        disk.SetUnreadable(path);
    }
    EXPECT_EQ(disk.BytesOf(path), "[Settings]\r\nMine=1\r\n");
}

// Any order of reads and writes over two files leaves the bytes and gives the values that it would
// one by one.
TEST_F(IniWriteBacksTest, RandomUseLeavesTheBytesOfOneByOne) {
    std::mt19937 random(25);
    const std::vector<std::string> starts{
        "", "[Settings]\r\nA= \r\nb=1\n\n[X]\nA=2", "\xEF\xBB\xBF[settings]\r\nC=\xC3\xA4\r\n",
        std::string("\xFF\xFE[\0S\0e\0t\0t\0i\0n\0g\0s\0]\0", 22), "junk\r\n[Settings"};
    for (int round = 0; round < 2000; ++round) {
        testing::MemoryFileSystem plainDisk;
        plainDisk.AddDirectory("/k");
        Ini plain(plainDisk);
        testing::MemoryFileSystem gatheredDisk;
        gatheredDisk.AddDirectory("/k");
        Ini gathering(gatheredDisk);
        for (const char* file : {"/k/a.ini", "/k/b.ini"}) {
            if (random() % 3 == 0) continue;
            const std::string& bytes = starts[random() % starts.size()];
            plainDisk.AddFile(file, bytes);
            gatheredDisk.AddFile(file, bytes);
        }
        {
            const Ini::GatheredWriteBacks gathered(gathering);
            for (int step = 0; step < 12; ++step) {
                const std::string file = random() % 2 == 0 ? "/k/a.ini" : "/k/b.ini";
                const std::string section = random() % 4 == 0 ? "X" : "Settings";
                const std::string key(1, "ABCDe=["[random() % 7]);
                const std::string value =
                    std::vector<std::string>{"", "1", "\xC3\xB6", " x "}[random() % 4];
                const bool flag = random() % 4 != 0;
                if (random() % 5 == 0) {
                    plain.WriteIniValue(section, key, value, file, flag);
                    gathering.WriteIniValue(section, key, value, file, flag);
                } else {
                    ASSERT_EQ(gathering.ReadIniValue(section, key, file, value, flag),
                              plain.ReadIniValue(section, key, file, value, flag));
                }
            }
        }
        for (const char* file : {"/k/a.ini", "/k/b.ini"})
            ASSERT_EQ(gatheredDisk.BytesOf(file), plainDisk.BytesOf(file)) << round;
    }
}

}  // namespace
}  // namespace kivu::profile
