#pragma once

#include <string>

#include "core/hook.h"
#include "core/ports.h"
#include "platform/clock.h"
#include "platform/file_system.h"
#include "platform/locale.h"
#include "profile/ini.h"

namespace kivu::core {

struct Form1;

// The main window's Load event: from nothing to a window with the last emulator's games.
class StartUp {
 public:
    struct Hooks {
        Hook<void()> KeepDesignPictures{"StartUp.KeepDesignPictures"};
        // What an emulator brings to the window, apart from its games.
        Hook<void()> DressWindow{"StartUp.DressWindow"};
        // True: an earlier one runs, and this one has ended.
        Hook<bool()> PreviousInstance{"StartUp.PreviousInstance"};
    };
    struct Ports {
        Port<EmulatorChoice> choice{"StartUp.choice"};
    };

    StartUp(Form1& form, profile::Ini& ini, platform::FileSystem& files,
            const platform::Locale& locale, const platform::Clock& clock,
            EmulatorSwitching& emulators)
        : form(form), ini(ini), files(files), locale(locale), clock(clock), emulators(emulators) {}

    void Form_Load();
    // Writes the clock's hours and minutes into TimeString.
    void Uhrzeit_Timer();

    Hooks hooks;
    Ports ports;

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
    EmulatorSwitching& emulators;
};

}  // namespace kivu::core
