#pragma once

#include <set>
#include <string>
#include <vector>

#include "forms/types.h"
#include "platform/file_system.h"
#include "text/pattern.h"

namespace kivu::library {

// What directory and file list controls show, from the host's file system.
//
// During a scan a directory is read once for both of its controls, and one that has been seen
// before, under whatever path, cannot be entered again, so that links cannot lead a walk in
// circles.
class ScanSource : public forms::DirectorySource {
 public:
    explicit ScanSource(const platform::FileSystem& files) : files(files) {}

    bool Read(const std::string& path, std::vector<std::string>* directories,
              std::vector<std::string>* names) override;
    bool Matches(const std::string& pattern, const std::string& name) override;

    void BeginScan(const std::string& root);
    void EndScan();

 private:
    bool List(const std::string& path, std::vector<std::string>& directories,
              std::vector<std::string>& names);
    bool Enter(const std::string& path);
    void LeaveOutLinksInside(const std::string& path, std::vector<std::string>& directories) const;

    const platform::FileSystem& files;
    std::string patternText;
    text::Pattern pattern{""};

    bool scanning = false;
    std::string rootPath;  // resolved
    std::set<platform::FileSystem::Identity> entered;
    // The directory that was entered last. Its names are handed over to the first who wants them.
    std::string lastPath;
    std::vector<std::string> lastDirectories, lastNames;
    bool namesAreLeft = false;
};

}  // namespace kivu::library
