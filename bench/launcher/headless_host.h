#pragma once

#include <memory>
#include <string>

#include "platform/host.h"
#include "platform/linux/file_system_linux.h"

namespace kivu::bench {

// The real file system; everything else answers at once and does nothing.
class HeadlessHost {
 public:
    HeadlessHost();
    ~HeadlessHost();
    HeadlessHost(const HeadlessHost&) = delete;
    HeadlessHost& operator=(const HeadlessHost&) = delete;

    platform::Host Services(const std::string& programDirectory);

 private:
    platform::LinuxFileSystem files;
    struct Silent;
    std::unique_ptr<Silent> silent;
};

}  // namespace kivu::bench
