#pragma once

#include <chrono>
#include <string>

#include "platform/downloader.h"

namespace kivu::hosts {

// By libcurl, which is loaded with the first download: linked, it would cost each start 5 ms.
class CurlDownloader : public platform::Downloader {
 public:
    // The certificates to trust; empty: the system's. So long no data may come.
    explicit CurlDownloader(std::string certificates = {},
                            std::chrono::milliseconds patience = std::chrono::seconds(30))
        : certificates(std::move(certificates)), patience(patience) {}

    platform::Fetched Fetch(const std::string& url, const std::string& path, std::int64_t maxBytes,
                            const GoOn& goOn) override;

 private:
    std::string certificates;
    std::chrono::milliseconds patience;
};

}  // namespace kivu::hosts
