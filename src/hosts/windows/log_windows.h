#pragma once

#include <cstddef>
#include <mutex>
#include <string>

#include "hosts/windows/handle.h"
#include "hosts/windows/standard_stream.h"
#include "platform/log.h"

namespace kivu::hosts {

// Kivu\Kivu.log below the user's local application data, UTF-8, lines ended by CR LF. A line that
// the file has no room for begins a new one; the full one is Kivu.old.log from then on. The file is
// opened for each line and never flushed, so several instances may write to it, and somebody may
// delete it.
class WindowsLog : public platform::Log {
 public:
    static constexpr std::size_t defaultSize = std::size_t{1} << 20;

    // In the user's own place, which is looked up for the first line.
    WindowsLog() = default;
    explicit WindowsLog(const std::string& path, std::size_t maxSize = defaultSize);

    // The user's own place; empty where the system knows none.
    static std::string UserPath();

    void Write(std::string_view text) override;
    // From now on. A program with a window has none of its own; without one that was given to it
    // the lines go to the console that it was started from.
    void AlsoToStandardError() { echo = true; }

 private:
    void FindPlace();
    Handle Open() const;
    void Append(const std::string& line);
    void MakeRoom(const Handle& file) const;
    void WriteTo(const Handle& file, const std::string& line);

    std::mutex writing;
    std::wstring path;  // for the system's calls; empty: nowhere to write
    bool placed = false;
    std::size_t maxSize = defaultSize;
    bool torn = false;  // the last line has no end
    bool echo = false;
    StandardStream standardError{STD_ERROR_HANDLE};
};

}  // namespace kivu::hosts
