#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "forms/types.h"
#include "platform/file_system.h"
#include "text/pattern.h"

namespace kivu::support {

// What drive, directory and file lists show, from the host's file system.
class DirectoryLists : public forms::DirectorySource {
 public:
    explicit DirectoryLists(const platform::FileSystem& files) : files(files) {}

    bool Read(const std::string& path, std::vector<std::string_view>* directories,
              std::vector<std::string_view>* names) override;
    bool Matches(const std::string& pattern, std::string_view name) override;
    std::vector<std::string> Drives() override { return files.Drives(); }

 protected:
    using Listing = platform::FileSystem::Listing;
    // Either list may be null.
    static void Show(const Listing& listing, std::vector<std::string_view>* directories,
                     std::vector<std::string_view>* names);

    const platform::FileSystem& files;
    Listing last;  // what has been shown last

 private:
    std::string patternText;
    text::Pattern pattern{""};
};

}  // namespace kivu::support
