#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "core/program_files.h"
#include "platform/file_system.h"

// The paths in the settings window's fields: what a profile holds as what is shown, and back, and
// whether a field names something.
namespace kivu::settings {

// A directory of games: the launcher's own where none is stored. With a closing separator.
std::string ShownRomPath(const core::ProgramFiles& program, const platform::FileSystem& files,
                         const std::string& stored);
// A program: the launcher's directory where none is stored, a bare name that the search path of a
// POSIX host may know as it stands.
std::string ShownEmulatorPath(const core::ProgramFiles& program, const platform::FileSystem& files,
                              const std::string& stored);
// A file; the empty text stays.
std::string ShownFilePath(const core::ProgramFiles& program, const platform::FileSystem& files,
                          const std::string& stored);

// The launcher's own directory, with a closing separator or without: what stands in a field that
// nobody has filled.
bool IsAppDirectory(const core::ProgramFiles& program, std::string_view text);

// What a profile keeps of a shown path: relative to the program's directory where that leads back
// to it, else as it stands, without a closing separator unless it is a drive's root.
std::string PathForProfile(const core::ProgramFiles& program, const std::string& shown);
// The same, and nothing for the launcher's own directory.
std::string OwnPathForProfile(const core::ProgramFiles& program, const std::string& shown);

// What has been typed or pasted, as the field takes it when it is left: without blanks and one pair
// of quotes around it, "~" at its beginning as the home directory where there is one.
std::string TypedPath(std::string_view text, std::string_view homeDirectory);

// A share's server may let a question wait, so that it is not asked at each key.
bool IsTestedOnLeaving(std::string_view text);

// Where a field's text leads. A relative one means something below the program's directory.
std::string MeantPath(const core::ProgramFiles& program, const std::string& text);
// Whether a field names a file; "*" and "?" stand for themselves.
bool NamesFile(const core::ProgramFiles& program, const platform::FileSystem& files,
               const std::string& text);
// The file that a field names as a program, which a POSIX host may find by its bare name; empty:
// there is none. `findInPath` gives an empty text where it finds nothing.
std::string ProgramFile(const core::ProgramFiles& program, const platform::FileSystem& files,
                        const std::function<std::string(const std::string&)>& findInPath,
                        const std::string& text);
bool NamesProgram(const core::ProgramFiles& program, const platform::FileSystem& files,
                  const std::function<std::string(const std::string&)>& findInPath,
                  const std::string& text);

}  // namespace kivu::settings
