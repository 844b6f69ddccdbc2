#pragma once

#include <gmock/gmock.h>

#include "settings_room.h"

namespace kivu::settings {

// Behind a known emulator's display text.
inline constexpr const char* knownText =
    "found!\r\rSet the default launch - parameter for this program?";
inline constexpr const char* unknownText =
    "Unknown Emulator. You have to set the launch parameter manually.\r\r"
    "Set parameter back to default now?";

struct Paths : ::testing::Test, SettingsRoom {
    Paths() {
        files.AddFile("D:\\Emu\\winuae.exe", "MZ");
        files.AddFile("D:\\Games\\a.adf", "x");
        Open("D:\\Emu\\winuae.exe", "D:\\Games\\");
    }
};

struct PosixPaths : ::testing::Test, SettingsRoom {
    PosixPaths() : SettingsRoom('/') {
        files.AddFile("/usr/games/stella", "ELF");
        files.AddFile("/games/a.bin", "x");
        host.starter.path["stella"] = "/usr/games/stella";
        host.starter.searched = {"/usr/games", "/usr/games/"};
        files.home = "/home/me";
        Open("/usr/games/stella", "/games/");
    }
};

}  // namespace kivu::settings
