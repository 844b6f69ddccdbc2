// The settings, opened from the main window.

#include "wiring/routines.h"

namespace kivu::wiring {

void Launcher::Routines::JoinSettings() {
    form.SettingsBtn.onClick = [this] { settingsOpener.SettingsBtn_Click(); };
    form.SettingsShortBtn.onClick = [this] { settingsOpener.SettingsShortBtn_Click(); };
}

settings::SettingsWindow::Routines Launcher::Routines::SettingsRoutines() {
    return {.busy = busy,
            .settings = settingsLoader,
            .lists = gameLists,
            .repair = repair,
            .buttons = buttonSetup,
            .windowColors = windowColors,
            .pictures = pictureLoader,
            .mainOnTop = alwaysOnTop,
            .emulators = emulatorSwitch,
            .setup = emulatorSetup,
            .uaeFiles = uaeFiles,
            .launch = gameLaunch,
            .startHelpers = startHelpers,
            .loadingScreen = windowsBeside.loading,
            .watch = watch,
            .links = links};
}

}  // namespace kivu::wiring
