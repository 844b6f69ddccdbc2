#include "launch/emulator_program.h"

#include "text/paths.h"
#include "text/text.h"

namespace kivu::launch {

std::string ResolveEmulator(const std::string& program, const std::string& programDirectory,
                            const platform::FileSystem& files,
                            const platform::ProgramStarter& starter) {
    if (program.empty() || program.find_first_of("/\\") != std::string::npos) return program;
    const std::string beside = programDirectory + program;
    if (files.FileExists(beside)) return beside;
    const std::string found = starter.FindInPath(program);
    return found.empty() ? program : found;
}

bool IsBatchFile(const std::string& program) {
    const std::string name = text::ToLower(text::GetFileNameOnly(program));
    return name.find(".exe") == std::string::npos && name.find(".bat") != std::string::npos;
}

std::string WatchedName(const std::string& program) {
    return IsBatchFile(program) ? "cmd.exe" : text::GetFileNameOnly(program);
}

}  // namespace kivu::launch
