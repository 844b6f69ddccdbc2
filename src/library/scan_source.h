#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "forms/types.h"
#include "library/read_ahead.h"
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

    bool Read(const std::string& path, std::vector<std::string_view>* directories,
              std::vector<std::string_view>* names) override;
    bool Matches(const std::string& pattern, std::string_view name) override;
    std::vector<std::string> Drives() override { return files.Drives(); }

    void BeginScan(const std::string& root);
    // The scan will go on with these, the last one first.
    void WillEnter(const std::vector<std::string>& paths);
    void EndScan();

 private:
    using Listing = platform::FileSystem::Listing;

    bool Enter(const std::string& path);
    void LeaveOutLinksInside(const std::string& path, Listing& listing) const;
    static void Show(const Listing& listing, bool directories,
                     std::vector<std::string_view>* names);

    const platform::FileSystem& files;
    std::string patternText;
    text::Pattern pattern{""};
    // What has been shown last. In a scan it is the directory that was entered last, and its names
    // are handed over to the first who wants them.
    Listing last;

    bool scanning = false;
    std::string rootPath;  // resolved
    std::set<platform::FileSystem::Identity> entered;
    std::string lastPath;
    bool namesAreLeft = false;
    std::optional<ReadAhead> ahead;
};

}  // namespace kivu::library
