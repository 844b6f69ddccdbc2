#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"

namespace kivu::launch {

// The user's script that runs after a start, and the runner file through which it is run.

// What a new script holds: examples in VBScript, for the emulator of this file name.
std::string StartScriptTemplate(std::string_view emulatorFile);

// The file of this name, on a disk that tells capitals apart also in another case. Empty: none.
std::optional<std::string> FindStartScript(const platform::FileSystem& files,
                                           const std::string& VBSFilename);

// One line for cmd.exe, which runs the script by its file type. Empty: no line can say it safely.
std::optional<std::string> ScriptRunnerForCmd(const std::string& script);

// The script and what runs it, on a host with a shell: the program that its first line names behind
// "#!", with its one argument, or else Wine's host of VBScript. `head` is how the file begins; the
// script itself needs no right to be run.
std::vector<std::string> ScriptWords(const std::string& script, std::string_view head);

// One line for /bin/sh.
std::string ScriptRunnerForShell(const std::vector<std::string>& words);

}  // namespace kivu::launch
