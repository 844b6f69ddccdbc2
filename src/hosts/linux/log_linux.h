#pragma once

#include <cstddef>
#include <mutex>
#include <string>

#include "hosts/linux/file_descriptor.h"
#include "platform/log.h"

namespace kivu::hosts {

// Kivu/Kivu.log in the user's state directory, lines ended by LF. A line that the file has no room
// for begins a new one; the full one is Kivu.old.log from then on. The file is opened for each line
// and never flushed, so several instances may write to it, and somebody may delete it. A link in
// its place is not followed.
class LinuxLog : public platform::Log {
 public:
    static constexpr std::size_t defaultSize = std::size_t{1} << 20;

    // In the user's own place, which is looked up for the first line.
    LinuxLog() = default;
    explicit LinuxLog(std::string path, std::size_t maxSize = defaultSize)
        : path(std::move(path)), placed(true), maxSize(maxSize) {}

    void Write(std::string_view text) override;
    // From now on, as long as it takes them: what a full pipe has no room for is dropped.
    void AlsoToStandardError() { echo = true; }

 private:
    void FindPlace();
    FileDescriptor Open() const;
    void Append(const std::string& line);
    void MakeRoom(const FileDescriptor& file) const;
    void WriteTo(const FileDescriptor& file, const std::string& line);

    std::mutex writing;
    std::string path;  // empty: nowhere to write
    bool placed = false;
    std::size_t maxSize = defaultSize;
    bool torn = false;  // the last line has no end
    bool echo = false;
};

}  // namespace kivu::hosts
