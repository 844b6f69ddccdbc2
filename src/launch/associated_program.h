#pragma once

#include <functional>
#include <string>

#include "core/passing_files.h"
#include "platform/dialogs.h"
#include "platform/file_system.h"

namespace kivu::launch {

// Finds the program that opens a file, also where the file is not there or has an awkward name:
// then a small file with the same ending stands for it while the host is asked.
class AssociatedProgram {
 public:
    struct Services {
        platform::FileSystem& files;
        core::PassingFiles& passing;
        platform::Dialogs& dialogs;
        // The host's own answer for a file that is there; empty: it has none.
        std::function<std::string(const std::string& file)> FindExecutableOf;
        std::string temporaryDirectory;  // the only one where files of its own may stand
        std::string defaultTitle;        // of boxes without one of their own
    };

    explicit AssociatedProgram(Services services) : services(std::move(services)) {}

    // Empty: there is no such program, or the user has been asked and has given up.
    std::string FindAssociatedProgram(const std::string& file);

 private:
    std::string FindForName(const std::string& name);
    std::string AskWith(const std::string& temporaryName, const std::string& bytes);

    Services services;
};

}  // namespace kivu::launch
