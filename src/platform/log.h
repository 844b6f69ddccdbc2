#pragma once

#include <string_view>

namespace kivu::platform {

// What has happened, line by line, for who wants to know why an emulator does not come up. It is
// never in the way: nothing waits for the disk, and where nothing can be written nothing is.
class Log {
 public:
    virtual ~Log() = default;
    // From any thread: one line of its own, whatever bytes the text holds (see text/log_text.h).
    virtual void Write(std::string_view text) = 0;
};

}  // namespace kivu::platform
