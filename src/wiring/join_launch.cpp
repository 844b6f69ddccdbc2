// The start of a game, the emulator that runs, and the file of a later instance.

#include "wiring/routines.h"

namespace kivu::wiring {

void Launcher::Routines::JoinLaunch() {
    // The loading screen names each disk.
    uaeFiles.hooks.Add_CURRENT_PROGRAM_STARTED = [this](std::string& name) {
        gameLaunch.Add_CURRENT_PROGRAM_STARTED(name);
    };
    // A zoomed picture lies over what tells of a launch.
    gameLaunch.hooks.SetVorschau = [this] { layout.SetVorschau(); };
    gameLaunch.hooks.ShowLoadingInfo = [this] { windowsBeside.loading.ShowLoadingInfo(&form); };
    windows.onQuestions = [this] { windowsBeside.loading.QuestionsChanged(); };
    watch.hooks.SetVorschau = [this] { layout.SetVorschau(); };
    startHelpers.ports.loading = windowsBeside.loading;
    shutDown.hooks.DeletePassingFiles = [this] { passingFiles.DeleteAll(); };
    emulatorSwitch.hooks.SaveAndSetDisplayMode = [this] { displayMode.SaveAndSetDisplayMode(); };
    watch.hooks.RestoreDisplayMode = [this] { displayMode.RestoreDisplayMode(); };
    handedFile.hooks.BoxIsOpen = [this] { return windows.Questions() > 0; };

    form.EmuActiveTimer.onTimer = [this] { watch.Tick(); };
    form.LoadingBtn.onClick = [this] { watch.LoadingBtn_Click(); };
    form.LoadingBtn.onChange = [this] { watch.LoadingBtn_Change(); };
    form.AppRunningPicture.onClick = [this] { watch.AppRunningPicture_Click(); };
}

}  // namespace kivu::wiring
