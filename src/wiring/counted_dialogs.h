#pragma once

#include <string>

#include "core/hook.h"
#include "forms/window_host.h"
#include "platform/dialogs.h"

namespace kivu::wiring {

// The host's boxes, which count as questions like the modal windows: while one is open, nothing
// must be started behind it. Who looks at a controller hears of them.
class CountedDialogs : public platform::Dialogs {
 public:
    CountedDialogs(platform::Dialogs& dialogs, forms::WindowHost& windows)
        : dialogs(dialogs), windows(windows) {}

    struct Hooks {
        core::Hook<void()> BoxOpens{"CountedDialogs.BoxOpens"};
        core::Hook<void()> BoxHasClosed{"CountedDialogs.BoxHasClosed"};
    };

    platform::Answer MessageBox(const std::string& text, const std::string& title,
                                platform::Buttons buttons, platform::Icon icon) override {
        const OpenBox open(*this);
        return dialogs.MessageBox(text, title, buttons, icon);
    }
    std::string InputBox(const std::string& prompt, const std::string& title,
                         const std::string& initial) override {
        const OpenBox open(*this);
        return dialogs.InputBox(prompt, title, initial);
    }

    void PressInBox(BoxKey key) override { dialogs.PressInBox(key); }

    Hooks hooks;

 private:
    class OpenBox {
     public:
        explicit OpenBox(CountedDialogs& owner) : owner(owner), question(owner.windows) {
            owner.hooks.BoxOpens();
        }
        ~OpenBox() { owner.hooks.BoxHasClosed(); }
        OpenBox(const OpenBox&) = delete;
        OpenBox& operator=(const OpenBox&) = delete;

     private:
        CountedDialogs& owner;
        const forms::WindowHost::Question question;
    };

    platform::Dialogs& dialogs;
    forms::WindowHost& windows;
};

}  // namespace kivu::wiring
