#pragma once

#include <chrono>
#include <string>
#include <vector>

#include "platform/downloader.h"

namespace kivu::hosts {

class PartFile;

// By libcurl, which is loaded with the first download: linked, it would cost each start 5 ms.
class CurlDownloader : public platform::Downloader {
 public:
    // The certificates to trust; empty: the system's. So long no data may come.
    explicit CurlDownloader(std::string certificates = {},
                            std::chrono::milliseconds patience = std::chrono::seconds(30))
        : certificates(std::move(certificates)), patience(patience) {}

    platform::Fetched Fetch(const std::string& url, const std::string& path, std::int64_t maxBytes,
                            const GoOn& goOn) override;
    // The process ends, and what is under way with it: no part of a file stays behind.
    void Abandon();

 private:
    std::string certificates;
    std::chrono::milliseconds patience;
    std::vector<PartFile*> underWay;  // a download may begin while another one lets events run
};

}  // namespace kivu::hosts
