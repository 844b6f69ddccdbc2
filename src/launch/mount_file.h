#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/file_system.h"
#include "platform/program_starter.h"

namespace kivu::launch {

// One program with its arguments, in the two forms of a start request.
struct HelperCommand {
    std::string command;
    std::vector<std::string> words;
};

// How a CD image gets into drive 0 before its game starts: what was in it is taken out, then the
// image is put in. The user's tool does both.
struct MountFile {
    enum class Way {
        startFile,  // `text` says it; where it cannot be written, `commands` do
        direct,     // no start file can say it safely: `commands` alone
        refused,    // nothing can
    };
    Way way = Way::startFile;
    std::string text;                     // of the start file
    std::vector<HelperCommand> commands;  // one after the other, each waited for
};

// For cmd.exe. Both paths are plain, without quotes.
MountFile MountFileForCmd(const std::string& tool, const std::string& game);

// For /bin/sh, every word quoted. cdemu and fuseiso, known by their names, get their own words and
// everything else, such as a user's script, those of the Windows tool. Windows programs run through
// Wine. fuseiso mounts at `fuseisoPlace`, which it makes and takes away.
MountFile MountFileForShell(const std::string& tool, const std::string& game,
                            const std::string& fuseisoPlace);

// Where fuseiso mounts: in the user's runtime directory, which nobody else sees, and without one
// in the emulator's. Both with or without a closing separator.
std::string FuseisoPlace(const std::string& runtimeDirectory, const std::string& startPfad);

// The tool that a profile names. A relative path counts from the program's directory (the current
// one is the emulator's by then), and a bare name also from the search path where programs are
// found that way. Empty: none is named, or no file is there.
std::optional<std::string> FindMountTool(const std::string& setting,
                                         const std::string& programDirectory,
                                         const platform::FileSystem& files,
                                         const platform::ProgramStarter& starter);

}  // namespace kivu::launch
