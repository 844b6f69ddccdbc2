#pragma once

#include <string>

namespace kivu::hosts {

// Absolute path of the running program's file; empty if the system does not tell it.
std::string ProgramFile();

// Its base name without ".exe": "Kivu", "Kivu-1.4".
std::string ProgramName(const std::string& programFile);

// Where Config lies, without a closing "/": the program file's directory if the user may write to
// it or it holds a Config directory already, otherwise $XDG_DATA_HOME/Kivu, which is made if
// missing.
std::string ProgramDirectory(const std::string& programFile);

}  // namespace kivu::hosts
