#include "core/shut_down.h"

#include "core/emulator_paths.h"
#include "core/form1.h"

namespace kivu::core {

namespace keys = profile::keys;

void ShutDown::ExitBtn_Click() {
    StoreDrives();
    StoreWindow(true);
    EndProgram();
}

void ShutDown::EndFromOutside() {
    if (form.Ended) return;
    StoreForSession();
    EndProgram();
}

void ShutDown::StoreForSession() {
    // In front of that the window has its design, and not what the user has given it.
    if (form.Ended || !form.WindowReady) return;
    if (hooks.DrivesAreOf(form.IniPath)) StoreDrives();
    StoreWindow(false);
    ini.StoreWriteBacks();
}

void ShutDown::StoreDrives() {
    Store(keys::emulator, {{keys::DrvWindowX, form.SettingsSubPicture.Left()},
                           {keys::DrvWindowY, form.SettingsSubPicture.Top()},
                           {keys::DrvWindowDocked, ports.layout->DrivesAreHome() ? 1 : 0}});
}

void ShutDown::StoreWindow(bool byTheUser) {
    Values window;
    // Who lets the session end over a minimised window would not find it at the next start.
    if (byTheUser || form.State() != forms::WindowState::minimized)
        window.emplace_back(keys::WindowState, static_cast<int>(form.State()));
    // A maximised or tiny window never replaces the last good geometry.
    if (form.State() == forms::WindowState::normal && form.Width() > 2000 && form.Height() > 1000) {
        window.insert(window.end(), {{keys::WindowX, form.Width()},
                                     {keys::WindowY, form.Height()},
                                     {keys::WindowTop, form.Top()},
                                     {keys::WindowLeft, form.Left()}});
    }
    Store(keys::program, window);
}

void ShutDown::EndProgram() {
    form.Ended = true;
    ini.StoreWriteBacks();
    hooks.DeletePassingFiles();
    hooks.EndProcess();
}

// Together: each write puts the whole file anew and waits for the disk.
void ShutDown::Store(keys::Profile which, const Values& values) {
    const std::string file = ProfilesOf(form).Of(which);
    auto profile = ini.LoadProfile(file);
    if (!profile) return;
    for (const auto& [key, value] : values)
        profile->Set(keys::section, key.name, std::to_string(value));
    ini.StoreProfile(*profile, file, true);
}

}  // namespace kivu::core
