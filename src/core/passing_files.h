#pragma once

#include <string>
#include <vector>

#include "platform/file_system.h"

namespace kivu::core {

// Small files of the launcher's own that go away again before the routine that has written them is
// through. Events run in the middle of such a routine, and the program may end in them: what is
// still noted here goes then.
class PassingFiles {
 public:
    explicit PassingFiles(platform::FileSystem& files) : files(files) {}

    // It is there, and ours.
    void Note(const std::string& path) { noted.push_back(path); }
    // Its time is over. One that is not noted (any more) is somebody else's by now.
    void Delete(const std::string& path);
    // The program ends.
    void DeleteAll();

 private:
    platform::FileSystem& files;
    std::vector<std::string> noted;
};

}  // namespace kivu::core
