#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/program_state.h"
#include "platform/file_system.h"
#include "settings/box.h"
#include "settings/known_emulators.h"
#include "text/paths.h"

// What is decided when a program is pointed at, or chosen from the known ones. The window shows the
// boxes and carries the values over; nothing here does.
namespace kivu::settings {

// The steps follow each other in this order.
struct Detection {
    Assignments first;            // whatever will be answered
    std::optional<Box> warning;   // to be read
    std::optional<Box> question;  // with Yes and No
    Assignments onYes;
    std::string pathOnYes;  // for txtWinUAEExe, as the next; empty: it stays
    std::string path;       // whatever was answered
};

// DetectKnownEmulator. `posix`: the programs of a Linux system count, too. `fileExists` is asked
// about a path that no table knows.
Detection DetectEmulator(const std::string& exePath, const core::ProgramState& program, bool posix,
                         const text::PathTest& fileExists);

// The question about a row of a table, which its display text begins.
Box KnownQuestion(std::string_view display, std::string_view titlePrefix,
                  const core::ProgramState& program);

// A directory in which the host looks for programs: nobody's games are in it. Left empty, there is
// none.
using SearchPathTest = text::PathTest;

// What TxtRomPath gets once the program has been set: its directory, in the place of the launcher's
// own (`appDirectory`, with a closing separator). Empty optional: the text stays.
std::optional<std::string> RomPathBesideProgram(const std::string& romPath,
                                                const std::string& appDirectory,
                                                const std::string& exePath,
                                                const platform::FileSystem& files,
                                                const SearchPathTest& isSearchPath);

// The directory that most likely holds the games of a program: the first of Roms, Rom, Disks and
// Games beside it that holds a file, else its own. Empty optional: none is proposed.
std::optional<std::string> GuessRomPath(const std::string& exePath,
                                        const platform::FileSystem& files,
                                        const SearchPathTest& isSearchPath);

}  // namespace kivu::settings
