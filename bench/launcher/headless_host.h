#pragma once

#include <memory>
#include <string>

#include "hosts/linux/file_system_linux.h"
#include "platform/host.h"

namespace kivu::bench {

// The real file system, with a watch on what writing costs: a file is flushed to the disk before it
// replaces the old one, which takes as long as the disk and its other users please.
class TimedFileSystem : public hosts::LinuxFileSystem {
 public:
    std::error_code WriteFile(const std::string& path, std::string_view bytes) override;
    double SecondsWriting() const { return seconds; }

 private:
    double seconds = 0;
};

// The real file system; everything else answers at once and does nothing.
class HeadlessHost {
 public:
    HeadlessHost();
    ~HeadlessHost();
    HeadlessHost(const HeadlessHost&) = delete;
    HeadlessHost& operator=(const HeadlessHost&) = delete;

    platform::Host Services(const std::string& programDirectory);
    // Since the beginning.
    double SecondsWriting() const { return files.SecondsWriting(); }
    // What the launcher leaves to the worker's thread waits from now on, until it is let go.
    void HoldBackground();
    void ServeBackground();

 private:
    TimedFileSystem files;
    struct Silent;
    std::unique_ptr<Silent> silent;
};

}  // namespace kivu::bench
