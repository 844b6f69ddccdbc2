#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "testing/new_directory.h"

namespace kivu::testing {

// A directory of the test's own that goes away with it.
class TemporaryDirectory {
 public:
    TemporaryDirectory() { root = NewDirectory(std::filesystem::temp_directory_path()); }
    ~TemporaryDirectory() {
        std::error_code ignored;
        std::filesystem::remove_all(root, ignored);
    }
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

    const std::string& Root() const { return root; }
    std::string Path(const std::string& name) const { return HostPath(root + "/" + name); }

    std::string Write(const std::string& name, const std::string& bytes) const {
        std::filesystem::create_directories(PathOf(Path(name)).parent_path());
        std::ofstream(PathOf(Path(name)), std::ios::binary) << bytes;
        return Path(name);
    }
    std::string Read(const std::string& name) const {
        std::ostringstream bytes;
        bytes << std::ifstream(PathOf(Path(name)), std::ios::binary).rdbuf();
        return bytes.str();
    }
    std::size_t Count() const {
        std::size_t count = 0;
        for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(root))
            ++count;
        return count;
    }

 private:
    std::string root;
};

}  // namespace kivu::testing
