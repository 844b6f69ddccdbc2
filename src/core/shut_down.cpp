#include "core/shut_down.h"

namespace kivu::core {

void ShutDown::ExitBtn_Click() {
    const auto write = [&](const char* key, int value, const std::string& file) {
        ini.WriteIniValue("Settings", key, std::to_string(value), file, true);
    };
    write("DrvWindowX", form.SettingsSubPicture.Left(), form.IniPath);
    write("DrvWindowY", form.SettingsSubPicture.Top(), form.IniPath);
    write("DrvWindowDocked", DrivesAreHome && DrivesAreHome() ? 1 : 0, form.IniPath);
    write("WindowState", static_cast<int>(form.State()), form.BaseIniName);
    // A maximised or tiny window never replaces the last good geometry.
    if (form.State() == forms::WindowState::normal && form.Width() > 2000 && form.Height() > 1000) {
        write("WindowX", form.Width(), form.BaseIniName);
        write("WindowY", form.Height(), form.BaseIniName);
        write("WindowTop", form.Top(), form.BaseIniName);
        write("WindowLeft", form.Left(), form.BaseIniName);
    }
    form.Ended = true;
    EndProgram();
}

}  // namespace kivu::core
