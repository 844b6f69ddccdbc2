#pragma once

#include <string>
#include <vector>

namespace kivu::hosts {

// Absolute path of the running program's file; empty if the system does not tell it.
std::string ProgramFile();

// What it was started with, without its own name.
std::vector<std::string> ProgramArguments();

// Its base name without ".exe": "Kivu", "Kivu-1.4".
std::string ProgramName(const std::string& programFile);

// Where Config lies: the program file's directory, without a closing "\" but for that of a drive.
std::string ProgramDirectory(const std::string& programFile);

// The user's own, without a closing "\".
std::string TemporaryDirectory();

}  // namespace kivu::hosts
