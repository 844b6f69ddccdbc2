#pragma once

#include <string>
#include <utility>

#include "core/busy_state.h"
#include "core/hook.h"
#include "core/ports.h"
#include "platform/dialogs.h"
#include "platform/event_pump.h"
#include "platform/file_system.h"
#include "profile/ini.h"
#include "support/always_on_top.h"

namespace kivu::core {

struct Form1;
class SettingsLoader;
class ShutDown;

// Makes an emulator the current one and brings every control into line with its files.
class EmulatorSwitch : public EmulatorSwitching {
 public:
    struct Hooks {
        Hook<void()> DropPreview{"EmulatorSwitch.DropPreview"};
        Hook<void()> PreparePreviews{"EmulatorSwitch.PreparePreviews"};
        Hook<void()> LoadSkinPictures{"EmulatorSwitch.LoadSkinPictures"};
        Hook<void()> LoadFavoriten{"EmulatorSwitch.LoadFavoriten"};
        Hook<void()> SaveAndSetDisplayMode{"EmulatorSwitch.SaveAndSetDisplayMode"};
        Hook<void()> GetMasterConfig{"EmulatorSwitch.GetMasterConfig"};
    };
    struct Ports {
        Port<EmulatorChoice> choice{"EmulatorSwitch.choice"};
        Port<ListFront> front{"EmulatorSwitch.front"};
        Port<LoadedGames> games{"EmulatorSwitch.games"};
        Port<Launching> launching{"EmulatorSwitch.launching"};
        Port<RunningEmulator> watch{"EmulatorSwitch.watch"};
        Port<WindowLayout> layout{"EmulatorSwitch.layout"};
    };
    struct Services {
        platform::FileSystem& files;
        platform::EventPump& events;
        platform::Dialogs& dialogs;
    };
    struct Routines {
        BusyState& busy;
        SettingsLoader& settings;
        ShutDown& shutDown;
        support::AlwaysOnTop& alwaysOnTop;
    };

    EmulatorSwitch(Form1& form, profile::Ini& ini, Services services, Routines routines,
                   std::string commandLine)
        : form(form),
          ini(ini),
          files(services.files),
          events(services.events),
          dialogs(services.dialogs),
          busy(routines.busy),
          settingsLoader(routines.settings),
          shutDown(routines.shutDown),
          alwaysOnTop(routines.alwaysOnTop),
          commandLine(std::move(commandLine)) {}

    void SelectEmulator(bool AddToGlobal) override;
    void InitEmulatorView() override;
    // The same window with no files: a skin, the colours and the sizes to choose from, no games.
    void DressWindow();

    Hooks hooks;
    Ports ports;

 private:
    void ReturnToLoadedEmulator();
    bool ClearForSwitch();
    void ShowLoadedLists();
    void PutLoadedListInFront();
    void AppendToGlobalList();
    void ShowDefaultTitle();
    void PrepareMasterConfig();
    void FillFontSizes();
    void SelectUsualFontSize();
    void ReadTitle();
    // True: the command line has started a game, or shown its box, and the program has ended.
    bool ServeCommandLine();
    void FinishView();

    Form1& form;
    profile::Ini& ini;
    platform::FileSystem& files;
    platform::EventPump& events;
    platform::Dialogs& dialogs;
    BusyState& busy;
    SettingsLoader& settingsLoader;
    ShutDown& shutDown;
    support::AlwaysOnTop& alwaysOnTop;
    std::string commandLine;
};

}  // namespace kivu::core
