#pragma once

#include <cstddef>
#include <functional>
#include <string>

namespace kivu::platform {

// An earlier instance of the program for the same user.
class Instance {
 public:
    virtual ~Instance() = default;
    // Longest file name that a later instance hands over, in bytes.
    static constexpr std::size_t maxFile = 4096;

    // True: an earlier one runs and has been asked to come to the front, and to start `file` (an
    // absolute path; empty for none).
    virtual bool HandOver(const std::string& title, const std::string& file) = 0;
    // What to do when a later instance asks this one to come to the front: `file` is what it was
    // given to start, empty for nothing. It comes from outside, and may be any text of at most
    // `maxFile` bytes without NUL.
    virtual void OnSummoned(std::function<void(const std::string& file)> summon) = 0;
};

}  // namespace kivu::platform
