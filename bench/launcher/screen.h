#pragma once

#include <functional>
#include <memory>
#include <string>

#include "child_process.h"

namespace kivu::bench {

// A virtual screen of its own, and a look at what is on it from outside of the programs.
class Screen {
 public:
    // Throws std::runtime_error if there is no X server to be had.
    Screen();
    ~Screen();
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    // What a program's DISPLAY is to be.
    const std::string& Name() const { return name; }

    // Waits until a program's window is on the screen and shows more than one plain colour. The
    // window is empty up to the first frame, which the toolkit puts there as a whole. False: `runs`
    // has become false, or half a minute is over.
    bool WaitForFirstFrame(const std::function<bool()>& runs);
    // Waits until no window is on the screen.
    void WaitUntilEmpty();

 private:
    struct Connection;

    std::string name;
    std::unique_ptr<ChildProcess> server;
    std::unique_ptr<Connection> connection;
};

}  // namespace kivu::bench
