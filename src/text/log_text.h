#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// The lines of a log. They hold names and paths from anywhere, and none of these may look like
// another line, or like other words than its own.
namespace kivu::text {

// A longer text is cut. In bytes.
inline constexpr std::size_t maxLogText = 8192;

// Any bytes as UTF-8 of a single line. What breaks lines, cannot be seen or turns the direction of
// writing stands as its number in angle brackets, "<0A>" or "<U+202E>", and so does a byte that is
// not UTF-8.
std::string LogText(std::string_view bytes);

struct LogTime {
    int year = 1970;
    int month = 1;
    int day = 1;
    int hour = 0;
    int minute = 0;
    int second = 0;
    int millisecond = 0;
};

// "2026-11-22 03:12:41.123 [4711] text", without a line end. The process tells the instances of the
// program apart.
std::string LogLine(const LogTime& time, unsigned long process, std::string_view bytes);

// The words of a command with a blank in between. One that would not be seen as one word stands in
// double quotes, with those inside it doubled.
std::string LogWords(const std::vector<std::string>& words);

}  // namespace kivu::text
