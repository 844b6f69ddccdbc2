#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <system_error>

#include "core/program_state.h"
#include "platform/file_system.h"
#include "settings/box.h"

// A new emulator is a new directory in Config.
namespace kivu::settings {

// In characters.
inline constexpr std::size_t longestEmulatorName = 80;

// Why a name is refused.
enum class NameFault {
    tooLong,
    character,   // no file system holds it on every host, or nobody could read it
    point,       // in front hides it, at the end is lost
    device,      // of Windows, with an ending too
    reserved,    // means something else to the launcher
    unstorable,  // the code page of the profiles does not hold it
    taken,       // whatever its case
};

// The name as it will be: without blanks around it. Empty: the user has left the box.
std::string EmulatorName(std::string_view typed);

// Empty optional: an emulator can be made under this name. `configPath` has a closing separator.
std::optional<NameFault> FaultOfName(const platform::FileSystem& files,
                                     const std::string& configPath, const std::string& name);

// The input box, and the title of all others.
std::string NewEmulatorTitle(const core::ProgramState& program);
std::string NewEmulatorPrompt(const core::ProgramState& program);
// The reason, before the name is asked for again.
Box FaultBox(NameFault fault, const std::string& name, const core::ProgramState& program);

// The program `running` has been started out of the window.
Box StillRunsBox(const std::string& running, const core::ProgramState& program);

std::error_code MakeEmulator(platform::FileSystem& files, const std::string& configPath,
                             const std::string& name);
Box NotMadeBox(const std::string& path, const std::error_code& error,
               const core::ProgramState& program);

// Where a noted row of a list is once another has been put in at `inserted`; -1, for none, stays.
constexpr int RowAfterInsert(int row, int inserted) {
    return row >= 0 && inserted >= 0 && inserted <= row ? row + 1 : row;
}

}  // namespace kivu::settings
