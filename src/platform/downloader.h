#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace kivu::platform {

// How a download has ended. Only with `ok` has anything changed at the target.
enum class Fetched {
    ok,
    badAddress,   // neither http nor https, or no address at all
    unreachable,  // no answer, or one from somebody whose certificate is not good
    refused,      // another answer than the file; too many redirections; one from https to http
    incomplete,   // less than was announced, nothing at all, or 30 s without data
    tooLarge,
    cancelled,    // by `goOn`
    notWritable,  // the target or its disk takes nothing, or a directory has its name
};

// Fetches single files over http and https.
class Downloader {
 public:
    // Bytes so far and in all; 0 in all: not known (yet). False ends the download.
    using GoOn = std::function<bool(std::int64_t got, std::int64_t total)>;

    virtual ~Downloader() = default;
    // Returns when the download has ended. The bytes go to a new file beside the target
    // ("NAME.part") that takes the target's place when all of them are there. `goOn` is called on
    // the caller's thread about ten times a second and may let events run.
    virtual Fetched Fetch(const std::string& url, const std::string& path, std::int64_t maxBytes,
                          const GoOn& goOn) = 0;
};

}  // namespace kivu::platform
