#include "core/start_up.h"

#include <cstdio>
#include <vector>

#include "core/emulator_paths.h"
#include "core/form1.h"
#include "core/language.h"
#include "core/stored_names.h"
#include "support/path_forms.h"
#include "support/window_handling.h"

namespace kivu::core {

namespace keys = profile::keys;

void StartUp::Form_Load() {
    form.EmulatorListColor = forms::Rgb(0xf6, 0xf7, 0xd2);
    form.FavouritesColor = forms::Rgb(0xe0, 0xff, 0xf1);
    form.CurrentLanguage = 1;
    hooks.KeepDesignPictures();
    form.CurrentEmuIndex = -1;
    Uhrzeit_Timer();
    form.CurrentLanguage = GetSystemLanguageIsGerman(locale) ? 1 : 2;
    ApplyEnglishCaptions(form);
    form.GlobalSearchList.Clear();
    if (hooks.PreviousInstance()) return;
    // A first start fills some thirty keys.
    const profile::Ini::GatheredWriteBacks gathered(ini);
    MakeConfigDirectory();
    AssignProgramPaths(form, files);
    support::ChangeBorderstyle(form, 3);
    form.EmuListbox.Clear();
    form.EmulatorLongListbox.Clear();
    ports.choice->FillEmulatorLists();
    RestoreWindow();
    SelectLastEmulator();
    if (form.Ended) return;
    form.Current_LoadingSmallBtn.SetVisible(false);
    ports.choice->WritePrompt();
    form.Current_ProgramNameFull.SetFontSize(form.EmulatorLongListbox.FontSize() + 4);
    form.WindowReady = true;
}

void StartUp::Uhrzeit_Timer() {
    const platform::TimeOfDay now = clock.Now();
    char text[16];
    std::snprintf(text, sizeof text, "%02d:%02d", now.hour % 100, now.minute % 100);
    form.TimeString.SetCaption(text);
}

void StartUp::MakeConfigDirectory() {
    // The directory is mostly there already; whether it is shows in what follows.
    (void)files.MakeDirectory(form.AppDir + "Config");
    form.ConfigPath = form.AppDir + "Config" + files.Separator();
    form.StartPfad = form.ConfigPath;
    form.Current_ProgramNameFull.SetCaption("");
}

void StartUp::RestoreWindow() {
    const keys::Profiles profiles = ProfilesOf(form);
    const int state = ini.Read(keys::WindowState, profiles).value_or(0);
    form.SetWidth(ini.Read(keys::WindowX, profiles, form.Width()));
    form.SetHeight(ini.Read(keys::WindowY, profiles, form.Height()));
    form.SetTop(ini.Read(keys::WindowTop, profiles, form.Top()));
    form.SetLeft(ini.Read(keys::WindowLeft, profiles, form.Left()));
    // Behind the geometry, which a maximised window goes back to.
    if (state >= 0 && state <= 2) form.SetState(static_cast<forms::WindowState>(state));
}

void StartUp::SelectLastEmulator() {
    const std::string last = ini.Read(keys::LastEmulator, ProfilesOf(form));
    if (last.empty()) {
        form.EmuListbox.SetText("Default");
        emulators.InitEmulatorView();
        return;
    }
    if (const int row = RowOfEmulator(last); row >= 0) {
        form.EmuListbox.SetListIndex(row);
        emulators.SelectEmulator(false);
        return;
    }
    // The emulator has gone. Nothing is loaded, and nothing else would lay the window out, colour
    // it, or offer the sizes.
    hooks.DressWindow();
}

int StartUp::RowOfEmulator(const std::string& stored) const {
    std::vector<std::string> names{stored};
    // A directory named in bytes that are no text stands so in the profile.
    if (support::NamesAreBytes(files))
        names.insert(names.begin(), ini.ReadBytes(keys::LastEmulator, ProfilesOf(form)));
    return FindStoredName(files, form.EmuListbox.Rows(), names);
}

}  // namespace kivu::core
