#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "settings/known_emulators.h"

namespace kivu::settings {

// A program of a Linux system, by the name of its file.
struct LinuxName {
    std::string_view name;          // in small letters; shown, and compared with file names
    std::string_view program = {};  // as the disk spells it, where that differs
    std::string_view flatpak = {};  // what Flatpak exports it as

    std::string_view OnDisk() const { return program.empty() ? name : program; }
};

struct LinuxEmulator {
    std::vector<LinuxName> names;
    Assignments row;
};

// Sources: each program's manual page, --help, change log or documentation, as of Debian 12.
const std::vector<LinuxEmulator>& LinuxEmulators();

// RetroArch with one of its cores. It is no row of the table: the program's name says nothing about
// the core, so that the user has to choose one.
struct RetroArchCore {
    std::string_view core;
    Assignments row;
};
inline constexpr LinuxName retroArch{"retroarch", "", "org.libretro.RetroArch"};
const std::vector<RetroArchCore>& RetroArchCores();

struct LinuxMatch {
    const LinuxEmulator* emulator = nullptr;  // null: none
    std::string_view name;
};

// By the file's name and not by the whole path: "dolphin" is also a file manager.
LinuxMatch FindLinuxEmulator(std::string_view path);

// The name alone, or with a version behind it: "stella_7.0", "flycast-v2.3.AppImage".
bool IsFileOf(std::string_view path, std::string_view name);

// What accepting a row assigns, in order, defaults included.
Assignments LinuxAssignments(const Assignments& row);

// The programs that are driven by WinUAE's configuration, and keep its fields.
bool CountsAsWinUAE(std::string_view path);

}  // namespace kivu::settings
