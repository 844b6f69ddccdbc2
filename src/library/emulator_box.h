#pragma once

#include <string>

#include "core/busy_state.h"
#include "core/form1.h"
#include "core/hook.h"
#include "platform/file_system.h"
#include "profile/ini.h"

namespace kivu::library {

// The choice among emulators, in a drop-down and in a long list that takes the place of the games.
// Both hold the same rows: the subdirectories of Config.
class EmulatorBox {
 public:
    struct Hooks {
        core::Hook<void(bool)> SelectEmulator;
        core::Hook<void()> RebuildLayout;
        core::Hook<void()> ArrangeTabs;
        core::Hook<void()> HideListsOfRunning;  // an emulator that runs keeps all lists away
        core::Hook<void()> WritePrompt;         // no emulator is loaded
        core::Hook<void()> Label1_Click;
        core::Hook<void()> Label2_Click;
        core::Hook<void()> SetVorschau;
        core::Hook<void(int)> ShowEmulatorPreview;
        core::Hook<void()> ApplyListColors;
        core::Hook<void(const std::string&, bool)> StartEmulator;
    };

    EmulatorBox(core::Form1& form, profile::Ini& ini, const platform::FileSystem& files,
                core::BusyState& busy)
        : form(form), ini(ini), files(files), busy(busy) {}

    void FillEmulatorLists();
    // Opens or closes the long list.
    void ShowEmulatorBox(bool Show);
    // Closes the choice, and the drop-down goes back to the emulator that is loaded.
    void CloseChoice();
    // The same, with the emulator's games in front.
    void LeaveEmulatorBox();
    // From its opening until it is closed, also while something hides the long list.
    bool ChoiceIsOpen() const { return choiceOpen; }
    // The drop-down as it looks beside any other list.
    void RestoreColours();

    void EmuListbox_Click();
    void EmuListbox_DblClick();
    void EmuListbox_GotFocus();
    // By the arrow or a key for it: opens the choice, and leaves it where it is open.
    void EmuListbox_DropDown();
    void EmuListbox_LostFocus();
    void EmuListbox_KeyDown(forms::Key& key);
    void EmuListbox_KeyPress(forms::Character& character);
    void EmulatorLongListbox_Click();
    void EmulatorLongListbox_GotFocus();
    void EmulatorLongListbox_KeyPress(forms::Character& character);
    void EmulatorLongListbox_MouseDown(const forms::Mouse& mouse);

    Hooks hooks;

 private:
    void Open();
    void Close();
    void PutChoiceInFront();
    void StartSearchWith(char32_t letter);
    void ShowNameOfRow();
    // Of the row marked in the list that has come to the front, as its click writes it.
    void ShowMissingName();

    core::Form1& form;
    profile::Ini& ini;
    const platform::FileSystem& files;
    core::BusyState& busy;
    bool showing = false;
    bool takingFocus = false;
    bool choiceOpen = false;
};

}  // namespace kivu::library
