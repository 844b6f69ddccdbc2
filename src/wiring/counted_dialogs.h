#pragma once

#include <string>

#include "forms/window_host.h"
#include "platform/dialogs.h"

namespace kivu::wiring {

// The host's boxes, which count as questions like the modal windows: while one is open, nothing
// must be started behind it.
class CountedDialogs : public platform::Dialogs {
 public:
    CountedDialogs(platform::Dialogs& dialogs, forms::WindowHost& windows)
        : dialogs(dialogs), windows(windows) {}

    platform::Answer MessageBox(const std::string& text, const std::string& title,
                                platform::Buttons buttons, platform::Icon icon) override {
        const forms::WindowHost::Question question(windows);
        return dialogs.MessageBox(text, title, buttons, icon);
    }
    std::string InputBox(const std::string& prompt, const std::string& title,
                         const std::string& initial) override {
        const forms::WindowHost::Question question(windows);
        return dialogs.InputBox(prompt, title, initial);
    }

    void PressInBox(BoxKey key) override { dialogs.PressInBox(key); }

 private:
    platform::Dialogs& dialogs;
    forms::WindowHost& windows;
};

}  // namespace kivu::wiring
