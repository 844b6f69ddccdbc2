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
        // Small files that only a routine which has not come to its end would take away.
        Hook<void()> DeletePassingFiles{"ShutDown.DeletePassingFiles"};
        // Whether the drives stand where this profile has put them: in the middle of a switch they
        // still stand where the emulator before had them.
        Hook<bool(const std::string& profile)> DrivesAreOf{"ShutDown.DrivesAreOf"};
    };
    struct Ports {
        Port<WindowLayout> layout{"ShutDown.layout"};
    };

    ShutDown(Form1& form, profile::Ini& ini) : form(form), ini(ini) {}

    void ExitBtn_Click();
    // A signal, or the end of the session: the same without a question, in whatever state the
    // launcher is.
    void EndFromOutside();
    // The session is about to end, which somebody may still call off: what ExitBtn stores is
    // stored, and the launcher goes on.
    void StoreForSession();
    // Without what ExitBtn stores; what has gathered to be written is.
    void EndProgram();

    Hooks hooks;
    Ports ports;

 private:
    using Values = std::vector<std::pair<profile::keys::Entry, int>>;
    void StoreDrives();
    void StoreWindow(bool byTheUser);
    // All of one profile.
    void Store(profile::keys::Profile which, const Values& values);

    Form1& form;
    profile::Ini& ini;
};

}  // namespace kivu::core
