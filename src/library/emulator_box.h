#pragma once

#include <string>

#include "core/busy_state.h"
#include "core/hook.h"
#include "core/ports.h"
#include "forms/types.h"
#include "platform/file_system.h"
#include "profile/ini.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::library {

// The choice among emulators, in a drop-down and in a long list that takes the place of the games.
// Both hold the same rows: the subdirectories of Config.
class EmulatorBox : public core::EmulatorChoice {
 public:
    struct Hooks {
        core::Hook<void(int)> ShowEmulatorPreview{"EmulatorBox.ShowEmulatorPreview"};
        core::Hook<void()> ApplyListColors{"EmulatorBox.ApplyListColors"};
        core::Hook<void(const std::string&, bool)> StartEmulator{"EmulatorBox.StartEmulator"};
    };
    struct Ports {
        core::Port<core::ListFront> front{"EmulatorBox.front"};
        core::Port<core::RunningEmulator> watch{"EmulatorBox.watch"};
        core::Port<core::WindowLayout> layout{"EmulatorBox.layout"};
    };

    EmulatorBox(core::Form1& form, profile::Ini& ini, const platform::FileSystem& files,
                core::BusyState& busy, core::EmulatorSwitching& emulators)
        : form(form), ini(ini), files(files), busy(busy), emulators(emulators) {}

    void FillEmulatorLists() override;
    void WritePrompt() override;
    void ShowEmulatorBox(bool Show) override;
    void CloseChoice() override;
    void LeaveEmulatorBox() override;
    void LeaveChoice() override;
    // Nothing while none is open.
    void LeaveOpenChoice();
    // From its opening until it is closed, also while something hides the long list.
    bool ChoiceIsOpen() const { return choiceOpen; }
    void RestoreColours() override;

    void EmuListbox_Click() override;
    void EmuListbox_DblClick() override;
    void EmuListbox_GotFocus() override;
    // By the arrow or a key for it: opens the choice, and leaves it where it is open.
    void EmuListbox_DropDown();
    void EmuListbox_LostFocus();
    void EmuListbox_KeyDown(forms::Key& key);
    void EmuListbox_KeyPress(forms::Character& character) override;
    void EmulatorLongListbox_Click();
    void EmulatorLongListbox_GotFocus();
    void EmulatorLongListbox_KeyPress(forms::Character& character);
    void EmulatorLongListbox_MouseDown(const forms::Mouse& mouse);

    Hooks hooks;
    Ports ports;

 private:
    void Open();
    void Close();
    void PutChoiceInFront();
    void StartSearchWith(char32_t letter);
    void ShowNameOfRow();
    // Of the row marked in the list that has come to the front, as its click writes it.
    void ShowMissingName();
    // Something is under way that arranges the lists at its end.
    bool Rests() const;

    core::Form1& form;
    profile::Ini& ini;
    const platform::FileSystem& files;
    core::BusyState& busy;
    core::EmulatorSwitching& emulators;
    bool showing = false;
    bool takingFocus = false;
    bool choiceOpen = false;
};

}  // namespace kivu::library
