#pragma once

#include <string>
#include <vector>

#include "driver/windows.h"
#include "testing/faulty_file_system.h"
#include "testing/scripted_host.h"
#include "testing/scripted_windows.h"
#include "wiring/launcher.h"

namespace kivu::driver {

struct Options {
    std::string programDirectory{};  // absolute
    std::string program = "Kivu";
    std::string commandLine{};
    std::string language = "English";  // English name of the system language
    platform::TimeOfDay time{12, 0, 0};
    bool windowsStartFiles = false;  // start files for cmd.exe instead of /bin/sh
    // The user's own, absolute; empty: there is none.
    std::string runtimeDirectory{};
    std::string temporaryDirectory{};
    platform::Build build{};  // addresses; none, as in a build that names none
    const forms::TextMeasure* measure = nullptr;
};

// Thrown where the launcher ends its program, since a program that ends never returns.
struct ProgramEnded {};

// One run of the launcher over a scripted host.
class Session {
 public:
    Session(platform::FileSystem& files, const Options& options);

    testing::ScriptedHost& Host() { return host; }
    testing::ScriptedWindows& Screen() { return screen; }
    wiring::Launcher& Program() { return launcher; }
    wiring::Launcher::Routines& Routines() { return launcher.All(); }
    core::Form1& MainWindow() { return launcher.MainWindow(); }
    Windows& OpenWindows() { return windows; }

    const std::string programDirectory;
    platform::FileSystem& files;  // as others have it, without the faults of the launcher's disk
    testing::FaultyFileSystem disk;
    bool devicesGiven = false;  // what is attached has been said
    bool started = false;
    bool ended = false;  // the program has ended by its own doing

 private:
    testing::ScriptedHost host;
    testing::ScriptedWindows screen;
    wiring::Launcher launcher;
    Windows windows{screen};
};

}  // namespace kivu::driver
