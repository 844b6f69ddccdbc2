#include "launch/running_watch.h"

#include "core/emulator_paths.h"
#include "core/form1.h"
#include "core/raised.h"
#include "text/paths.h"
#include "text/stored_paths.h"

namespace kivu::launch {

namespace keys = profile::keys;

void RunningWatch::Tick() {
    if (!form.Busy) EmuActiveTimer_Timer();
}

void RunningWatch::EmuActiveTimer_Timer() {
    if (looking) return;
    const core::Raised once(looking);
    if (form.StartGraceTicks > 0) --form.StartGraceTicks;
    if (processes.IsProcessRunning(form.CurrentRunninApplication, Reach::andLaunch)) {
        ShowRunning();
    } else if (form.StartGraceTicks < 1) {
        EndOfGame();
    }
}

void RunningWatch::WatchOnce() {
    if (!form.CurrentRunninApplication.empty()) EmuActiveTimer_Timer();
}

void RunningWatch::HideListsOfRunning() {
    if (!form.EmulatorRuns()) return;
    // The one tab that the busy state leaves; it would stand there alone.
    form.Label4.SetVisible(false);
    busy.HideAll(false);
}

void RunningWatch::ShowRunning() {
    if (seenRunning != form.CurrentRunninApplication) {
        seenRunning = form.CurrentRunninApplication;
        log.Write("came up: " + seenRunning);
        hooks.SetVorschau();
    }
    form.AppRunningPicture.SetVisible(true);
    // A change of emulator looks once, long after the last game: what it shows must go again.
    form.EmuActiveTimer.SetEnabled(true);
    HideListsOfRunning();
    form.MyCaptionLabel.SetVisible(true);
    form.MyCaptionLabel.SetCaption(form.Say("Gestartet: ", "Running: ") +
                                   form.CurrentRunninApplication);
}

void RunningWatch::LogEnd() {
    const std::string& name = form.CurrentRunninApplication;
    if (seenRunning == name && !name.empty()) {
        log.Write("ended: " + name);
    } else if (form.EmuActiveTimer.Enabled()) {
        log.Write("never came up: " + name);
    }
    seenRunning.clear();
}

void RunningWatch::EndOfGame() {
    LogEnd();
    const bool visible = form.EmuListbox.Visible();
    form.EmuListbox.SetVisible(false);
    {
        // A game that started now would not be watched.
        const core::Raised working(form.Busy);
        events.DoEvents();
    }
    form.EmuListbox.SetVisible(visible);
    routines.choice.CloseChoice();
    routines.front.WIthoutDoubles_GotFocus();
    form.EmuActiveTimer.SetEnabled(false);
    // What is under way shows it at its end.
    form.EmuListbox.SetVisible(visible || !form.Busy);
    form.GameIsRunning = false;
    form.AppRunningPicture.SetVisible(false);
    form.MyCaptionLabel.SetVisible(false);
    busy.HideAll(true);
    routines.front.RefreshList();
    {
        // Events run there, and a game that started now would come up behind the window.
        const core::Raised working(form.Busy);
        if (ini.Read(keys::UseJoystick, core::ProfilesOf(form)) >= 1) hooks.JoystickEnable(true);
    }
    hooks.HoldButtonsBack();
    // In place of what ran, and of the count of joysticks.
    form.MyCaptionLabel.SetCaption(form.Caption());
    routines.alwaysOnTop.SetToTop();
}

void RunningWatch::AppRunningPicture_Click() {
    const bool ran = form.EmulatorRuns();
    EndEmulator();
    // What is under way without a game brings the window back itself, at its end.
    if (form.Busy && !form.GameIsRunning) return;
    // An emulator that was to be set up has been started out of the choice.
    routines.choice.CloseChoice();
    // The loading screen may outlast its game, or its program was only tried out from the settings:
    // then no watch brings the window back.
    if (!ran || !form.EmuActiveTimer.Enabled()) busy.HideAll(true);
    if (form.FavoritenListe.ListCount() > 0) {
        routines.front.Label1_Click();
    } else {
        routines.front.Label2_Click();
    }
}

void RunningWatch::EndEmulator() {
    // Also where its program has not come up yet.
    StopLaunch();
    if (form.CurrentRunninApplication.empty()) return;
    const auto id = processes.FindProcessId(form.CurrentRunninApplication, Reach::andLaunch);
    if (id == 0) return;
    form.LoadingBtn.SetCaption(form.Say("Wird beendet..", "Killing process.."));
    if (ini.Read(keys::ResetScreenResolution, core::ProfilesOf(form)) > 0) {
        hooks.RestoreDisplayMode();
    }
    form.AppRunningPicture.SetVisible(false);
    form.AppRunningPicture.SetEnabled(false);
    Kill(id, form.CurrentRunninApplication);
    form.AppRunningPicture.SetVisible(false);
    form.AppRunningPicture.SetEnabled(true);
    form.JoystickFocus = form.FavoritenListe.ListCount() > 0 ? 1 : 2;
    routines.front.RefreshList();
}

void RunningWatch::KillRunning() {
    const std::string name = form.CurrentRunninApplication;
    const auto id = processes.FindProcessId(name, Reach::andLaunch);
    if (id != 0) Kill(id, name);
}

// Before its start what is ended is the last game, which has nothing to do with this one.
void RunningWatch::StopLaunch() {
    if (!form.StartingGame.empty() && !form.StartCanBeGivenUp) form.StartGivenUp = true;
}

void RunningWatch::Kill(std::int32_t id, const std::string& name) {
    StopLaunch();
    log.Write("killed: " + name + ", process " + std::to_string(id));
    processes.KillProcess(id);
}

void RunningWatch::LoadingBtn_Click() {
    if (form.AppRunningPicture.Visible()) {
        AppRunningPicture_Click();
        return;
    }
    // The emulator may run since an earlier start of the launcher.
    const std::string stored = ini.Read(keys::EmulatorPathInKill, core::ProfilesOf(form));
    const std::string name =
        text::MakeAbsolutePath(form.BaseDirectory(), text::GetFileNameOnly(stored));
    if (name.empty()) return;
    const auto id = processes.FindProcessId(name, Reach::nameOnly);
    if (id <= 0) return;
    const std::string text = form.Say("Emulator beenden?\r", "Kill Emulator - Program?\r") + name;
    const auto answer = dialogs.MessageBox(text, form.Say("Programm killen?", "Kill Task?"),
                                           platform::Buttons::YesNo, platform::Icon::Question);
    if (answer == platform::Answer::Yes) Kill(id, name);
}

void RunningWatch::LoadingBtn_Change() {
    form.Current_LoadingSmallBtn.SetCaption(form.LoadingBtn.Caption());
}

}  // namespace kivu::launch
