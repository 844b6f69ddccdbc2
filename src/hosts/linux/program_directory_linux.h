#pragma once

#include <string>

namespace kivu::hosts {

// Absolute path of the running program's file; empty if the system does not tell it.
std::string ProgramFile();

// Its base name without ".exe": "Kivu", "Kivu-1.4".
std::string ProgramName(const std::string& programFile);

// Whether the program has been installed for the system or a user: "share/kivu" lies beside the
// directory of its file.
bool IsInstalled(const std::string& programFile);

// Where Config lies, without a closing "/". Of an installed program: $XDG_DATA_HOME/Kivu, which is
// made if missing, whoever runs it; root could write beside its file, and nobody else could change
// that any more. Of any other: its file's directory if the user may write to it or it holds a
// Config directory already, otherwise the same.
std::string ProgramDirectory(const std::string& programFile);

}  // namespace kivu::hosts
