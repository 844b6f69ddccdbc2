#pragma once

#include <string>

#include "core/busy_state.h"
#include "core/passing_files.h"
#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "platform/program_starter.h"

namespace kivu::launch {

// Commands as text, and what programs belong to files.
class RunFile {
 public:
    struct Services {
        platform::FileSystem& files;
        core::PassingFiles& passing;
        platform::ProgramStarter& starter;
        platform::Dialogs& dialogs;
        std::string temporaryDirectory;
    };

    RunFile(Services services, core::EventPacer& pacer)
        : services(std::move(services)), pacer(pacer) {}

    // Returns when the program has ended; events run meanwhile.
    void ShellAndWait(const std::string& command, platform::WindowStyle style);
    // The program that opens a file which is there; empty: none.
    std::string FindExecutableOf(const std::string& file) const;
    std::string FindAssociatedProgram(const std::string& file);

 private:
    Services services;
    core::EventPacer& pacer;
};

}  // namespace kivu::launch
