#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/dialogs.h"
#include "platform/downloader.h"
#include "platform/file_system.h"
#include "platform/log.h"

namespace kivu::support {

// One of two wordings of a message, by the user's language.
using Say = std::function<const char*(const char* german, const char* english)>;

// Downloads single files into the user's directories.
class UrlDownload {
 public:
    struct Services {
        platform::Downloader& downloads;
        platform::FileSystem& files;
        platform::Dialogs& dialogs;
        platform::Log& log;
    };

    UrlDownload(Services services, Say say) : services(services), say(std::move(say)) {}

    // Both texts may stand in quotes. A destination that is a directory, or ends in a separator,
    // gets the name that the address ends in. Without `Overwrite` a name that is taken gets a
    // number: "x (1).zip". What cannot be begun is told in a box; a transfer that fails is not,
    // since the caller has its own words. True: the file is there.
    bool URLToFileDownload(const std::string& URL_Source, const std::string& Path_Destination,
                           bool Overwrite, const platform::Downloader::GoOn& goOn = {});

    static constexpr std::int64_t maxBytes = std::int64_t{256} << 20;

 private:
    bool TakeName(const std::string& url, std::string& destination);
    bool TakeFreeName(std::string& destination);
    bool IsTaken(const std::string& path) const;
    bool Tell(const char* german, const char* english, const std::string& what);

    Services services;
    Say say;
};

}  // namespace kivu::support
