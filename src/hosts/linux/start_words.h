#pragma once

#include <string>
#include <system_error>
#include <vector>

#include "hosts/linux/detached_process.h"
#include "platform/program_starter.h"

namespace kivu::hosts {

// The path from the root, whatever the current directory becomes.
std::string AbsolutePath(const std::string& path);

// Those of $PATH, without relative and empty ones: they mean the current directory, which may hold
// anybody's files.
std::vector<std::string> SearchedDirectories();

// The executable file that a bare name means: the first of $PATH's directories that has one. A path
// with a "/" comes back absolute, whether the file is there or not. Empty: not found.
std::string FindProgram(const std::string& name);

// ".exe", ".bat" or ".cmd", in any case of letters.
bool IsWindowsProgram(const std::string& path);

// Turns a request into the file to run and its words: start files through /bin/sh, Windows programs
// through wine, everything else as it is. Nothing is looked at by a shell.
std::error_code ResolveStart(const platform::StartRequest& request, DetachedProgram& resolved);

// A script without a "#!" line: the kernel does not run it, a shell does.
bool LooksLikeScript(const std::string& path);

}  // namespace kivu::hosts
