#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "hosts/linux/file_system_linux.h"
#include "hosts/linux/mounted_drives.h"
#include "testing/environment_variable.h"

namespace kivu::hosts {
namespace {

using ::testing::ElementsAre;

TEST(MountedDrives, RootAndHomeComeFirst) {
    EXPECT_THAT(DrivesOf("/home/ann", ""), ElementsAre("/", "/home/ann"));
    EXPECT_THAT(DrivesOf("", ""), ElementsAre("/"));
    EXPECT_THAT(DrivesOf("/", ""), ElementsAre("/"));
}

TEST(MountedDrives, WhatIsMountedForTheUserFollowsInOrder) {
    const char* table =
        "sysfs /sys sysfs rw 0 0\n"
        "/dev/sdb1 /run/media/ann/STICK vfat rw 0 0\n"
        "/dev/sda2 / ext4 rw 0 0\n"
        "/dev/sdc1 /media/ann/My\\040Games\\134 ext4 rw 0 0\n"
        "nas:/roms /mnt/roms nfs rw 0 0\n"
        "nas:/roms /mnt/roms nfs rw 0 0\n"
        "tmpfs /media2 tmpfs rw 0 0\n"
        "/dev/sdd1 /mnt ext4 rw 0 0\n"
        "broken";
    EXPECT_THAT(DrivesOf("/home/ann", table),
                ElementsAre("/", "/home/ann", "/media/ann/My Games\\", "/mnt", "/mnt/roms",
                            "/run/media/ann/STICK"));
}

TEST(MountedDrives, HomeThatIsMountedStandsOnce) {
    EXPECT_THAT(DrivesOf("/mnt/home", "x /mnt/home ext4 rw 0 0\n"), ElementsAre("/", "/mnt/home"));
}

TEST(MountedDrives, ComeFromTheSystemItself) {
    const kivu::testing::EnvironmentVariable home("HOME", "/somewhere/ann/");
    const LinuxFileSystem files;
    EXPECT_EQ(files.HomeDirectory(), "/somewhere/ann");
    const auto drives = files.Drives();
    ASSERT_GE(drives.size(), 2U);
    EXPECT_EQ(drives[0], "/");
    EXPECT_EQ(drives[1], "/somewhere/ann");
}

}  // namespace
}  // namespace kivu::hosts
