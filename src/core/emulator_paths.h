#pragma once

#include <string>

#include "core/program_files.h"
#include "platform/file_system.h"
#include "profile/keys.h"

namespace kivu::core {

// A file of this name in a directory, by the spelling that is on the disk when that differs in case
// only: a data directory brought over from Windows may have any.
std::string FindByName(const platform::FileSystem& files, const std::string& directory,
                       const std::string& name);

// The directory of a skin in that of an emulator, both with a closing separator, by the spelling
// that is on the disk.
std::string SkinDirectory(const platform::FileSystem& files, const std::string& profileDirectory);

// Where the program lies, with or without a closing separator, and the base name of its file.
void AssignProgram(ProgramFiles& program, const platform::FileSystem& files,
                   const std::string& directory, const std::string& name);
// The program's own files, and those of the state in which no emulator has been selected.
void AssignProgramPaths(ProgramFiles& program, const platform::FileSystem& files);
// The files of the emulator of this name.
void AssignEmulatorPaths(ProgramFiles& program, const platform::FileSystem& files,
                         const std::string& name);

// The profiles that the settings stand in now.
profile::keys::Profiles ProfilesOf(const ProgramFiles& program);

}  // namespace kivu::core
