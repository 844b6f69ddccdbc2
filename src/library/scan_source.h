#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "library/read_ahead.h"
#include "platform/file_system.h"
#include "support/directory_lists.h"

namespace kivu::library {

// What directory and file list controls show, from the host's file system.
//
// During a scan a directory is read once for both of its controls, and one that has been seen
// before, under whatever path, cannot be entered again, so that links cannot lead a walk in
// circles.
class ScanSource : public support::DirectoryLists {
 public:
    using DirectoryLists::DirectoryLists;

    bool Read(const std::string& path, std::vector<std::string_view>* directories,
              std::vector<std::string_view>* names) override;

    void BeginScan(const std::string& root);
    // The scan will go on with these, the last one first.
    void WillEnter(const std::vector<std::string>& paths);
    void EndScan();

 private:
    bool Enter(const std::string& path);
    void LeaveOutLinksInside(const std::string& path, Listing& listing) const;

    // In a scan what has been shown last is the directory that was entered last, and its names are
    // handed over to the first who wants them.
    bool scanning = false;
    std::string rootPath;  // resolved
    std::set<platform::FileSystem::Identity> entered;
    std::string lastPath;
    bool namesAreLeft = false;
    std::optional<ReadAhead> ahead;
};

}  // namespace kivu::library
