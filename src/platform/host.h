#pragma once

#include <string>

#include "platform/clock.h"
#include "platform/desktop.h"
#include "platform/file_system.h"
#include "platform/processes.h"
#include "platform/program_starter.h"

namespace kivu::platform {

// Everything the launcher asks of its host, gathered where the program is put together. Routines
// take the single services they need, never this.
struct Host {
    FileSystem& files;
    ProcessList& processes;
    ProgramStarter& starter;
    Clock& clock;
    Dialogs& dialogs;
    Beeper& beeper;
    EventPump& events;
    Locale& locale;
    UserStore& userStore;
    Instance& instance;

    std::string programDirectory;  // where Config lies, with or without a closing separator
    std::string programName;       // base name of the program file, without ".exe"
    std::string commandLine;       // the user's arguments joined by blanks
};

}  // namespace kivu::platform
