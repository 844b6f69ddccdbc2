#pragma once

#include <string>

#include "core/busy_state.h"
#include "core/form1.h"
#include "core/hook.h"
#include "platform/clock.h"
#include "platform/file_system.h"
#include "platform/locale.h"
#include "profile/ini.h"

namespace kivu::core {

// The main window's Load event: from nothing to a window with the last emulator's games.
class StartUp {
 public:
    struct Hooks {
        Hook<forms::Color(const std::string&)> HexToLong;
        Hook<void()> KeepDesignPictures;
        Hook<bool()> PreviousInstance;  // true: an earlier one runs, and this one has ended
        Hook<void()> ChangeBorderstyle;
        Hook<void()> FillEmulatorLists;
        Hook<void(bool)> SelectEmulator;
        Hook<void()> InitEmulatorView;
        Hook<void()> ArrangeWindow;  // what a resize does
    };

    StartUp(Form1& form, profile::Ini& ini, platform::FileSystem& files,
            const platform::Locale& locale, const platform::Clock& clock)
        : form(form), ini(ini), files(files), locale(locale), clock(clock) {}

    void Form_Load();
    // Writes the clock's hours and minutes into TimeString.
    void Uhrzeit_Timer();
    // Into the drop-down, which shows no emulator.
    void WritePrompt();

    Hooks hooks;

 private:
    void MakeConfigDirectory();
    void RestoreWindow();
    void SelectLastEmulator();
    // The row that "LastEmulator" means, -1 for none.
    int RowOfEmulator(const std::string& stored) const;

    Form1& form;
    profile::Ini& ini;
    platform::FileSystem& files;
    const platform::Locale& locale;
    const platform::Clock& clock;
};

}  // namespace kivu::core
