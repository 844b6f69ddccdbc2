#pragma once

#include <string>

#include "platform/dialogs.h"

namespace kivu::wiring {

// The host's boxes, with a count of those that are open: while one is, calls from outside must not
// start anything behind it.
class CountedDialogs : public platform::Dialogs {
 public:
    explicit CountedDialogs(platform::Dialogs& dialogs) : dialogs(dialogs) {}

    platform::Answer MessageBox(const std::string& text, const std::string& title,
                                platform::Buttons buttons, platform::Icon icon) override {
        const Open one(open);
        return dialogs.MessageBox(text, title, buttons, icon);
    }
    std::string InputBox(const std::string& prompt, const std::string& title,
                         const std::string& initial) override {
        const Open one(open);
        return dialogs.InputBox(prompt, title, initial);
    }
    bool IsOpen() const { return open > 0; }

 private:
    struct Open {
        explicit Open(int& count) : count(count) { ++count; }
        ~Open() { --count; }
        Open(const Open&) = delete;
        Open& operator=(const Open&) = delete;
        int& count;
    };

    platform::Dialogs& dialogs;
    int open = 0;
};

}  // namespace kivu::wiring
