#pragma once

#include <string>

#include "hosts/windows/program_starter_windows.h"

namespace kivu::testing {

// The starter of the host that the tests run on.
using HostStarter = hosts::WindowsProgramStarter;

// A start file that makes the other file and ends, and one that waits for that file first.
inline std::string MakingStartFile(const std::string& made) {
    return "@echo x> \"" + made + "\"\r\n";
}
inline std::string WaitingStartFile(const std::string& awaited, const std::string& made) {
    return "@echo off\r\n:again\r\nif not exist \"" + awaited + "\" goto again\r\necho x> \"" +
           made + "\"\r\n";
}

// Nothing holds a handle to what was given up.
inline void AwaitStarted() {
}

// A program that every system has, by its bare name.
inline constexpr const char* everySystemsProgram = "cmd";

}  // namespace kivu::testing
