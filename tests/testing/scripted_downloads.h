#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/downloader.h"
#include "platform/file_system.h"

namespace kivu::testing {

// Serves texts by their addresses, onto a disk of the test's choice, and keeps what was asked for.
class ScriptedDownloads : public platform::Downloader {
 public:
    struct Request {
        std::string url, path;
        platform::Fetched result;
    };

    explicit ScriptedDownloads(platform::FileSystem& files) : files(files) {}

    platform::Fetched Fetch(const std::string& url, const std::string& path, std::int64_t maxBytes,
                            const GoOn& goOn) override {
        requests.push_back({url, path, platform::Fetched::cancelled});
        const auto result = ResultOf(url, path, maxBytes, goOn);
        requests.back().result = result;
        return result;
    }

    std::map<std::string, std::string> served;
    // What an address that is not served gives.
    platform::Fetched otherwise = platform::Fetched::unreachable;
    std::vector<Request> requests;

 private:
    platform::Fetched ResultOf(const std::string& url, const std::string& path,
                               std::int64_t maxBytes, const GoOn& goOn) {
        const auto found = served.find(url);
        const auto total = found == served.end() ? std::int64_t{0}
                                                 : static_cast<std::int64_t>(found->second.size());
        if (!goOn(0, total) || !goOn(total, total)) return platform::Fetched::cancelled;
        if (found == served.end()) return otherwise;
        if (total > maxBytes) return platform::Fetched::tooLarge;
        if (found->second.empty()) return platform::Fetched::incomplete;
        if (files.WriteFile(path, found->second)) return platform::Fetched::notWritable;
        return platform::Fetched::ok;
    }

    platform::FileSystem& files;
};

}  // namespace kivu::testing
