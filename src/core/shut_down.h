#pragma once

#include <string>
#include <utility>
#include <vector>

#include "core/hook.h"
#include "core/ports.h"
#include "profile/ini.h"

namespace kivu::core {

struct Form1;

// The orderly end of the program. Everything else has been written when it changed.
class ShutDown {
 public:
    struct Hooks {
        // At once; where a test plays the host it may come back.
        Hook<void()> EndProcess{"ShutDown.EndProcess"};
    };
    struct Ports {
        Port<WindowLayout> layout{"ShutDown.layout"};
    };

    ShutDown(Form1& form, profile::Ini& ini) : form(form), ini(ini) {}

    void ExitBtn_Click();
    // Without what ExitBtn stores; what has gathered to be written is.
    void EndProgram();

    Hooks hooks;
    Ports ports;

 private:
    using Values = std::vector<std::pair<profile::keys::Entry, int>>;
    // All of one profile.
    void Store(profile::keys::Profile which, const Values& values);

    Form1& form;
    profile::Ini& ini;
};

}  // namespace kivu::core
