#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "host_files.h"
#include "testing/new_directory.h"

namespace kivu::scenarios {

// A directory with a program and its Config, which goes away with the test. It lies in memory where
// the system has such a place: the launcher flushes each file that it writes.
class ProgramDirectory {
 public:
    using Settings = std::vector<std::pair<std::string, std::string>>;

    ProgramDirectory() {
        namespace fs = std::filesystem;
        const fs::path memory = testing::memoryDirectory;
        root = testing::NewDirectory(fs::is_directory(memory) ? memory : fs::temp_directory_path());
    }
    ~ProgramDirectory() {
        std::error_code ignored;
        std::filesystem::remove_all(root, ignored);
    }
    ProgramDirectory(const ProgramDirectory&) = delete;
    ProgramDirectory& operator=(const ProgramDirectory&) = delete;

    const std::string& Root() const { return root; }
    std::string Path(const std::string& name) const { return testing::HostPath(root + "/" + name); }

    std::string Write(const std::string& name, const std::string& bytes = {}) const {
        std::filesystem::create_directories(testing::PathOf(Path(name)).parent_path());
        std::ofstream(testing::PathOf(Path(name)), std::ios::binary) << bytes;
        return Path(name);
    }
    std::string Read(const std::string& name) const {
        std::ostringstream bytes;
        bytes << std::ifstream(testing::PathOf(Path(name)), std::ios::binary).rdbuf();
        return bytes.str();
    }
    bool Exists(const std::string& name) const {
        return std::filesystem::exists(testing::PathOf(Path(name)));
    }
    void MakeDirectory(const std::string& name) const {
        std::filesystem::create_directories(testing::PathOf(Path(name)));
    }

    // "Config/<emulator>" with a profile of these settings. Here and in a cache, a path that begins
    // with "/" is one below the program directory, and is written in the host's form.
    void AddEmulator(const std::string& name, const Settings& settings = {}) const {
        MakeDirectory("Config/" + name);
        if (!settings.empty()) Write("Config/" + name + "/Kivu.ini", Profile(settings));
    }
    void WriteProgramProfile(const Settings& settings) const {
        Write("Config/Kivu.ini", Profile(settings));
    }
    // A cache of images below the program directory, each with the name that is shown for it.
    void WriteCache(const std::string& emulator, const Settings& images) const {
        std::string cache;
        for (const auto& [path, name] : images)
            cache += testing::HostPath(path) + "\r\n" + name + "\r\n";
        Write("Config/" + emulator + "/Kivu_Cache.txt", Encoded(cache));
    }
    // A key's value in a profile as it stands on the disk; "(none)" if it is not there.
    std::string Stored(const std::string& profile, const std::string& key) const {
        std::istringstream lines(Read(profile));
        for (std::string line; std::getline(lines, line);) {
            if (line.ends_with('\r')) line.pop_back();
            if (line.starts_with(key + "=")) return line.substr(key.size() + 1);
        }
        return "(none)";
    }

    static std::string Profile(const Settings& settings) {
        std::string profile = "[Settings]\r\n";
        for (const auto& [key, value] : settings)
            profile += key + "=" + HostValue(value) + "\r\n";
        return Encoded(profile);
    }
    // As the host keeps text in the launcher's files.
    static std::string Encoded(const std::string& text) {
        return testing::HostFileSystem().EncodeText(text);
    }

 private:
    static std::string HostValue(const std::string& value) {
        return value.starts_with('/') ? testing::HostPath(value) : value;
    }

    std::string root;
};

}  // namespace kivu::scenarios
