#pragma once

#include <string>

#include "platform/file_system.h"
#include "support/files.h"

namespace kivu::support {

// Directories of the user that a dialog offers as short ways.
class UserPlaces {
 public:
    UserPlaces(const platform::FileSystem& files, const Files& folders)
        : files(files), folders(folders) {}

    // The desktop's directory; the home directory where there is none.
    std::string Desktop() const;
    // The start menu, or where a POSIX host keeps its games, else its programs.
    std::string Programs() const;

 private:
    std::string NamedDesktop() const;

    const platform::FileSystem& files;
    const Files& folders;
};

}  // namespace kivu::support
