#include "core/shut_down.h"

namespace kivu::core {

void ShutDown::ExitBtn_Click() {
    Store(form.IniPath, {{"DrvWindowX", form.SettingsSubPicture.Left()},
                         {"DrvWindowY", form.SettingsSubPicture.Top()},
                         {"DrvWindowDocked", DrivesAreHome && DrivesAreHome() ? 1 : 0}});
    Values window{{"WindowState", static_cast<int>(form.State())}};
    // A maximised or tiny window never replaces the last good geometry.
    if (form.State() == forms::WindowState::normal && form.Width() > 2000 && form.Height() > 1000) {
        window.insert(window.end(), {{"WindowX", form.Width()},
                                     {"WindowY", form.Height()},
                                     {"WindowTop", form.Top()},
                                     {"WindowLeft", form.Left()}});
    }
    Store(form.BaseIniName, window);
    form.Ended = true;
    EndProgram();
}

// Together: each write puts the whole file anew and waits for the disk.
void ShutDown::Store(const std::string& file, const Values& values) {
    auto profile = ini.LoadProfile(file);
    if (!profile) return;
    for (const auto& [key, value] : values)
        profile->Set("Settings", key, std::to_string(value));
    ini.StoreProfile(*profile, file, true);
}

}  // namespace kivu::core
