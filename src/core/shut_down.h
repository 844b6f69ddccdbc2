#pragma once

#include <string>
#include <utility>
#include <vector>

#include "core/form1.h"
#include "core/hook.h"
#include "profile/ini.h"

namespace kivu::core {

// The orderly end of the program. Everything else has been written when it changed.
class ShutDown {
 public:
    ShutDown(Form1& form, profile::Ini& ini) : form(form), ini(ini) {}

    void ExitBtn_Click();

    Hook<bool()> DrivesAreHome;  // the drives panel lies in its place in the right column
    // Ends the program at once.
    Hook<void()> EndProgram;

 private:
    using Values = std::vector<std::pair<profile::keys::Entry, int>>;
    // All of one profile.
    void Store(profile::keys::Profile which, const Values& values);

    Form1& form;
    profile::Ini& ini;
};

}  // namespace kivu::core
