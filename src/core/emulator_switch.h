#pragma once

#include <string>

#include "core/busy_state.h"
#include "core/form1.h"
#include "core/hook.h"
#include "platform/dialogs.h"
#include "platform/event_pump.h"
#include "platform/file_system.h"
#include "profile/ini.h"

namespace kivu::core {

// Makes an emulator the current one and brings every control into line with its files.
class EmulatorSwitch {
 public:
    struct Hooks {
        Hook<void(bool)> ShowEmulatorBox;
        Hook<void()> LeaveEmulatorBox;
        Hook<void()> HideListsOfRunning;
        Hook<void()> RebuildLayout;  // the list in front, the tabs and their counts
        Hook<void()> ArrangeWindow;  // what a resize does
        Hook<void()> SetVorschau;
        Hook<void()> Label1_Click;
        Hook<void()> Label2_Click;
        Hook<void()> AddToALL_LIST;
        Hook<void()> LoadSkinPictures;
        Hook<void()> LoadFavoriten;
        Hook<void()> SaveAndSetDisplayMode;
        Hook<void()> GetMasterConfig;
        Hook<void()> SetToTop;
        Hook<void()> LoadSettings;
        Hook<void(const std::string&)> StartGame;
        Hook<void()> LoadCacheList;
        Hook<void()> BuildDoublesList;
        Hook<void()> WatchOnce;
        Hook<void()> EndProgram;
    };

    EmulatorSwitch(Form1& form, profile::Ini& ini, platform::FileSystem& files,
                   platform::EventPump& events, platform::Dialogs& dialogs, BusyState& busy,
                   std::string commandLine)
        : form(form),
          ini(ini),
          files(files),
          events(events),
          dialogs(dialogs),
          busy(busy),
          commandLine(std::move(commandLine)) {}

    void SelectEmulator(bool AddToGlobal);
    void InitEmulatorView();

    Hooks hooks;

 private:
    void ReturnToLoadedEmulator();
    bool ClearForSwitch();
    void ShowLoadedLists();
    void PutLoadedListInFront();
    void AppendToGlobalList();
    void ShowDefaultTitle();
    void PrepareMasterConfig();
    void FillFontSizes();
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
    std::string commandLine;
};

}  // namespace kivu::core
