#pragma once

#include <string>
#include <string_view>

#include "platform/background.h"
#include "platform/beeper.h"
#include "platform/build.h"
#include "platform/clock.h"
#include "platform/controllers.h"
#include "platform/dialogs.h"
#include "platform/display.h"
#include "platform/downloader.h"
#include "platform/event_pump.h"
#include "platform/file_system.h"
#include "platform/instance.h"
#include "platform/locale.h"
#include "platform/log.h"
#include "platform/picture_decoder.h"
#include "platform/processes.h"
#include "platform/program_starter.h"
#include "platform/system_colors.h"
#include "platform/user_store.h"

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
    Log& log;
    PictureDecoder& pictureDecoder;
    Background& background;
    SystemColors& systemColors;
    Controllers& controllers;
    Display& display;
    Downloader& downloads;

    Build build;
    // Without a closing separator.
    std::string runtimeDirectory;    // the user's own while logged in; empty: there is none
    std::string temporaryDirectory;  // for files that are gone soon

    std::string programDirectory;  // where Config lies, with or without a closing separator
    std::string programName;       // base name of the program file, without ".exe"
    std::string commandLine;       // the user's arguments joined by blanks
};

// What a host's parts are called is what the members of Host are called.
template <typename Parts>
Host ServicesOf(Parts& parts, std::string_view programDirectory, std::string_view programName,
                std::string_view commandLine) {
    return {.files = parts.files,
            .processes = parts.processes,
            .starter = parts.starter,
            .clock = parts.clock,
            .dialogs = parts.dialogs,
            .beeper = parts.beeper,
            .events = parts.events,
            .locale = parts.locale,
            .userStore = parts.userStore,
            .instance = parts.instance,
            .log = parts.log,
            .pictureDecoder = parts.pictureDecoder,
            .background = parts.background,
            .systemColors = parts.systemColors,
            .controllers = parts.controllers,
            .display = parts.display,
            .downloads = parts.downloads,
            .build = parts.build,
            .runtimeDirectory = parts.runtimeDirectory,
            .temporaryDirectory = parts.temporaryDirectory,
            .programDirectory = std::string(programDirectory),
            .programName = std::string(programName),
            .commandLine = std::string(commandLine)};
}

}  // namespace kivu::platform
