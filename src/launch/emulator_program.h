#pragma once

#include <string>
#include <vector>

#include "platform/file_system.h"
#include "platform/program_starter.h"

namespace kivu::launch {

// The emulator's program as the profile names it: a bare name is looked up beside the launcher,
// then in the system's search path. Everything else comes back as it is.
std::string ResolveEmulator(const std::string& program, const std::string& programDirectory,
                            const platform::FileSystem& files,
                            const platform::ProgramStarter& starter);

// ".bat" in a file name without ".exe": the emulator is started by a batch file.
bool IsBatchFile(const std::string& program);

// The name under which a running emulator is looked for: its file name, or that of the command
// processor when it is started by a batch file.
std::string WatchedName(const std::string& program);

}  // namespace kivu::launch
