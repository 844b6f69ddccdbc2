#pragma once

#include <string>
#include <system_error>

namespace kivu::hosts {

// The user's directories as freedesktop.org lays them out (XDG), without a closing "/". An unset or
// relative variable means its default below the home directory. Empty: the user has no home.
std::string UserHomeDirectory();    // $HOME, else as the system knows the user
std::string UserConfigDirectory();  // $XDG_CONFIG_HOME
std::string UserDataDirectory();    // $XDG_DATA_HOME
std::string UserStateDirectory();   // $XDG_STATE_HOME
// $XDG_RUNTIME_DIR, which has no default; empty unless it is a directory of the user's own.
std::string UserRuntimeDirectory();

std::string TemporaryDirectory();  // $TMPDIR, else /tmp

// Makes a directory and those above it, for the user alone. One that is there is no error.
std::error_code MakeUserDirectory(const std::string& path);

}  // namespace kivu::hosts
