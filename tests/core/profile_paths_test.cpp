#include "core/profile_paths.h"

#include <gtest/gtest.h>

#include "testing/memory_file_system.h"

namespace kivu::core {
namespace {

struct ProfilePaths : ::testing::Test {
    ProfilePaths() {
        windows.AppDir = "C:\\Kivu\\";
        posix.AppDir = "/k/";
    }
    ProgramFiles windows, posix;
    testing::MemoryFileSystem drive{'\\'};
    testing::MemoryFileSystem root{'/'};
};

TEST_F(ProfilePaths, AreMeantFromTheProgramsDirectory) {
    EXPECT_EQ(PathOfProfile(windows, drive, "\\Roms"), "C:\\Kivu\\Roms");
    EXPECT_EQ(PathOfProfile(windows, drive, "..\\Roms"), "C:\\Roms");
    EXPECT_EQ(PathOfProfile(posix, root, "/Roms"), "/k/Roms");
    EXPECT_EQ(PathOfProfile(posix, root, "../Roms"), "/Roms");
}

TEST_F(ProfilePaths, MayBeWrittenByHandFromTheRoot) {
    root.AddFile("/usr/games/stella", "x");
    EXPECT_EQ(PathOfProfile(posix, root, "/usr/games/stella"), "/usr/games/stella");
    root.AddDirectory("/roms");
    EXPECT_EQ(PathOfProfile(posix, root, "/roms"), "/roms");
}

TEST_F(ProfilePaths, LeaveABareNameToTheSearchPathOfPosix) {
    EXPECT_EQ(ProgramOfProfile(posix, root, "dosbox"), "dosbox");
    EXPECT_EQ(ProgramOfProfile(posix, root, "emu/dosbox"), "/k/emu/dosbox");
    EXPECT_EQ(ProgramOfProfile(windows, drive, "winuae.exe"), "C:\\Kivu\\winuae.exe");
    EXPECT_EQ(ProgramOfProfile(posix, root, ""), "/k");
    root.AddFile("/k/dosbox", "x");
    EXPECT_EQ(ProgramOfProfile(posix, root, "dosbox"), "/k/dosbox");
}

}  // namespace
}  // namespace kivu::core
