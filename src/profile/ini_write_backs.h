#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"
#include "profile/ini_document.h"

namespace kivu::profile {

// Defaults that reads write back, gathered file by file, so that a routine that reads many keys
// costs each profile one parse and one write. Every reader finds them as if they were stored. The
// disk is looked at with each read and once more before the write: what somebody else has written
// meanwhile counts, and a default is stored only where a value is still missing. Only defaults are
// ever held back, which the next read would bring again: with a crash nothing is lost.
class IniWriteBacks {
 public:
    IniWriteBacks(platform::FileSystem& files, IniCoding coding)
        : files(files), coding(std::move(coding)) {}

    void Begin() { ++depth; }
    // The outermost one stores.
    void End();
    bool IsGathering() const { return depth > 0; }

    // As Ini::ReadIniValue, for the path of an existing directory entry or a new one.
    std::string Read(std::string_view section, std::string_view key, const std::string& path,
                     std::string_view defaultText, bool writeBack);
    // Stores this value at once, with what has been gathered for the file. False: nothing has been,
    // or the disk has refused all of it.
    bool Write(std::string_view section, std::string_view key, std::string_view value,
               const std::string& path);
    // The file as it will be; empty optional where nothing has been gathered.
    std::optional<std::string> BytesOf(const std::string& path) const;

    void Store();

 private:
    struct Default {
        std::string section;
        std::string key;
        std::string value;
    };
    struct Profile {
        std::string path;
        std::optional<std::string> onDisk;  // what has been parsed; none for a file to be made
        IniDocument text;
        std::vector<Default> defaults;
    };
    using Place = std::vector<Profile>::iterator;

    Place Find(const std::string& path);
    void Parse(Profile& profile, std::string bytes) const;
    // In step with the disk. The end: there is none, or it cannot be read.
    Place Current(const std::string& path);
    bool Store(Profile& profile) const;

    platform::FileSystem& files;
    IniCoding coding;
    std::vector<Profile> profiles;
    int depth = 0;
};

}  // namespace kivu::profile
