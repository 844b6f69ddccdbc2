#pragma once

#include <string>
#include <vector>

#include "driver/json.h"
#include "driver/session.h"

namespace kivu::driver {

// One command of the table. The command is the whole array, its name at 0; so many arguments are
// there when it runs. It gives what the answer holds besides "ok".
struct Command {
    const char* name;
    std::size_t least;  // arguments
    std::size_t most;
    bool needsProgram;  // refused once the program has ended
    Json (*run)(Session& session, const Json& command);
};

inline constexpr std::size_t anyNumber = static_cast<std::size_t>(-1);

const std::vector<Command>& HandCommands();    // what a user's hands and the window manager do
const std::vector<Command>& StateCommands();   // reading and writing the windows
const std::vector<Command>& HostCommands();    // the scripted host
const std::vector<Command>& DeviceCommands();  // its game controllers
const std::vector<Command>& FileCommands();    // the disk below the program

Json Value(Json value);
Json ModeJson(const platform::DisplayMode& mode);
// What has come about, as the answer's value and under the command's own name.
Json Told(const char* name, Json what);

}  // namespace kivu::driver
