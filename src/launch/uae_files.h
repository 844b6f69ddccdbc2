#pragma once

#include <string>

#include "core/hook.h"
#include "platform/file_system.h"
#include "platform/log.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::launch {

// The two configuration files of a WinUAE profile: the master, which the user owns, and the one
// that each launch writes anew from it. A file that cannot be read or written is passed over; the
// launch goes on with what is there.
class UaeFiles {
 public:
    struct Hooks {
        // One more entry of what has been started; the name may come back shortened.
        core::Hook<void(std::string&)> Add_CURRENT_PROGRAM_STARTED{
            "UaeFiles.Add_CURRENT_PROGRAM_STARTED"};
    };

    UaeFiles(core::Form1& form, platform::FileSystem& files, platform::Log& log)
        : form(form), files(files), log(log) {}

    // The master's path; the file is made if it is missing.
    std::string GetMasterConfig();
    // `windowsPaths`: the emulator is a Windows program on a POSIX host, and takes Z:\ paths.
    void WriteStartConfiguration(bool windowsPaths);

    Hooks hooks;

 private:
    void LogOddPath(const std::string& path) const;

    core::Form1& form;
    platform::FileSystem& files;
    platform::Log& log;
};

}  // namespace kivu::launch
