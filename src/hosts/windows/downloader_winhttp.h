#pragma once

#include <chrono>
#include <memory>

#include "platform/downloader.h"

namespace kivu::hosts {

class PartFile;

// By WinHTTP. The system's simpler call takes an error's page, a cut file and a file of the disk
// for a success, follows a loop of redirections for ever and cannot be stopped.
class WinHttpDownloader : public platform::Downloader {
 public:
    // So long no data may come.
    explicit WinHttpDownloader(std::chrono::milliseconds patience = std::chrono::seconds(30))
        : patience(patience) {}

    platform::Fetched Fetch(const std::string& url, const std::string& path, std::int64_t maxBytes,
                            const GoOn& goOn) override;

 protected:
    // Where the bytes go.
    virtual std::unique_ptr<PartFile> NewPart() const;

 private:
    std::chrono::milliseconds patience;
};

}  // namespace kivu::hosts
