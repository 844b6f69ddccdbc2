#include "hosts/linux/program_directory_linux.h"

#include <filesystem>
#include <sys/stat.h>

#include "hosts/linux/as_user.h"
#include "testing/environment_variable.h"
#include "testing/temporary_directory.h"

namespace fs = std::filesystem;

namespace kivu::hosts {
namespace {

class ProgramDirectoryLinux : public ::testing::Test {
 protected:
    void SetUp() override {
        fs::permissions(directory.Root(), fs::perms(0755));
        fs::create_directory(directory.Path("bin"));
        fs::create_directory(directory.Path("data"));
        fs::permissions(directory.Path("data"), fs::perms(0777));
    }
    void TearDown() override { fs::permissions(directory.Path("bin"), fs::perms(0755)); }

    // As where a package has put the program.
    void ProtectProgram() { fs::permissions(directory.Path("bin"), fs::perms(0555)); }

    kivu::testing::TemporaryDirectory directory;
    kivu::testing::EnvironmentVariable data{"XDG_DATA_HOME", directory.Path("data")};
};

TEST_F(ProgramDirectoryLinux, AWritablePlaceOfTheProgramIsTaken) {
    EXPECT_EQ(ProgramDirectory(directory.Path("bin/Kivu")), directory.Path("bin"));
    EXPECT_FALSE(fs::exists(directory.Path("data/Kivu")));
}

TEST_F(ProgramDirectoryLinux, AnInstalledProgramKeepsItsDataWithTheUser) {
    ProtectProgram();
    EXPECT_TRUE(kivu::testing::HoldsForPlainUser([&] {
        return ProgramDirectory(directory.Path("bin/Kivu")) == directory.Path("data/Kivu");
    }));
    EXPECT_TRUE(fs::is_directory(directory.Path("data/Kivu")));
}

TEST_F(ProgramDirectoryLinux, AConfigBesideTheProgramIsTakenEvenIfItCannotBeWritten) {
    fs::create_directory(directory.Path("bin/Config"));
    ProtectProgram();
    EXPECT_TRUE(kivu::testing::HoldsForPlainUser(
        [&] { return ProgramDirectory(directory.Path("bin/Kivu")) == directory.Path("bin"); }));
}

TEST_F(ProgramDirectoryLinux, AnInstalledOneKeepsItsDataWithTheUserWhateverCanBeWritten) {
    EXPECT_FALSE(IsInstalled(directory.Path("bin/Kivu")));
    fs::create_directories(directory.Path("share/kivu"));
    EXPECT_TRUE(IsInstalled(directory.Path("bin/Kivu")));
    // Root may write beside the program, and so may the owner of ~/.local.
    EXPECT_EQ(ProgramDirectory(directory.Path("bin/Kivu")), directory.Path("data/Kivu"));
    EXPECT_TRUE(fs::is_directory(directory.Path("data/Kivu")));
    // What an earlier one has left there is not looked at.
    fs::create_directory(directory.Path("bin/Config"));
    EXPECT_EQ(ProgramDirectory(directory.Path("bin/Kivu")), directory.Path("data/Kivu"));
    ProtectProgram();
    EXPECT_TRUE(kivu::testing::HoldsForPlainUser([&] {
        return ProgramDirectory(directory.Path("bin/Kivu")) == directory.Path("data/Kivu");
    }));
}

TEST_F(ProgramDirectoryLinux, BelowTheUsersOwnPrefixTheDataLieBesideTheMarker) {
    const kivu::testing::EnvironmentVariable unset("XDG_DATA_HOME", std::nullopt);
    const kivu::testing::EnvironmentVariable home("HOME", directory.Root());
    fs::create_directories(directory.Path(".local/bin"));
    fs::create_directories(directory.Path(".local/share/kivu"));
    EXPECT_EQ(ProgramDirectory(directory.Path(".local/bin/Kivu")),
              directory.Path(".local/share/Kivu"));
}

TEST_F(ProgramDirectoryLinux, AnInstalledOneWhoseDirectoryCannotBeMadeTakesNoOther) {
    fs::create_directories(directory.Path("share/kivu"));
    fs::permissions(directory.Path("data"), fs::perms(0555));
    EXPECT_TRUE(kivu::testing::HoldsForPlainUser([&] {
        return ProgramDirectory(directory.Path("bin/Kivu")) == directory.Path("data/Kivu");
    }));
}

TEST_F(ProgramDirectoryLinux, WhatOnlyLooksLikeTheMarkerIsNone) {
    for (const char* other : {"share/kivu-demo", "bin/share/kivu", "share/Kivu"})
        fs::create_directories(directory.Path(other));
    directory.Write("share/kivu", "a file");
    EXPECT_FALSE(IsInstalled(directory.Path("bin/Kivu")));
    EXPECT_FALSE(IsInstalled(""));
    EXPECT_EQ(ProgramDirectory(directory.Path("bin/Kivu")), directory.Path("bin"));
}

TEST_F(ProgramDirectoryLinux, AFileNamedConfigIsNoConfig) {
    directory.Write("bin/Config", "x");
    ProtectProgram();
    EXPECT_TRUE(kivu::testing::HoldsForPlainUser([&] {
        return ProgramDirectory(directory.Path("bin/Kivu")) == directory.Path("data/Kivu");
    }));
}

TEST_F(ProgramDirectoryLinux, WithoutAVariableTheDataLieBelowTheHomeDirectory) {
    const kivu::testing::EnvironmentVariable unset("XDG_DATA_HOME", std::nullopt);
    const kivu::testing::EnvironmentVariable home("HOME", directory.Root());
    EXPECT_EQ(ProgramDirectory(directory.Path("missing/Kivu")),
              directory.Path(".local/share/Kivu"));
    EXPECT_TRUE(fs::is_directory(directory.Path(".local/share/Kivu")));
}

TEST_F(ProgramDirectoryLinux, TheProgramFileIsTheRunningOne) {
    const std::string file = ProgramFile();
    EXPECT_TRUE(fs::path(file).is_absolute());
    EXPECT_EQ(ProgramName(file), "kivu_test_hosts_linux");
}

TEST_F(ProgramDirectoryLinux, TheProgramsNameLosesOnlyExe) {
    EXPECT_EQ(ProgramName("/opt/Kivu"), "Kivu");
    EXPECT_EQ(ProgramName("/opt/Kivu-1.4"), "Kivu-1.4");
    EXPECT_EQ(ProgramName("/opt/Kivu.EXE"), "Kivu");
    EXPECT_EQ(ProgramName("/opt.exe/Kivu"), "Kivu");
    EXPECT_EQ(ProgramName(".exe"), ".exe");
    EXPECT_EQ(ProgramName(""), "");
}

}  // namespace
}  // namespace kivu::hosts
