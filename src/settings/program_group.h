#pragma once

#include "core/ports.h"
#include "forms/window_host.h"
#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "support/always_on_top.h"
#include "support/file_dialogs.h"

namespace kivu::core {
struct Form1;
}
namespace kivu::favourites {
class Repair;
}
namespace kivu::joystick {
class ButtonSetupOpener;
}

namespace kivu::settings {

struct SettingsForm;

// What holds for the whole program: controllers, text size, the tool that mounts images, links.
class ProgramGroup {
 public:
    struct Services {
        const platform::FileSystem& files;
        forms::WindowHost& windows;
        support::FileDialogs& fileDialogs;
    };
    struct Routines {
        joystick::ButtonSetupOpener& buttons;
        favourites::Repair& repair;
        core::ProgramLinks& links;
        support::AlwaysOnTop& alwaysOnTop;  // of this window
    };

    // Joins the controls' events.
    ProgramGroup(SettingsForm& form, core::Form1& main, Services services, Routines routines);
    ProgramGroup(const ProgramGroup&) = delete;
    ProgramGroup& operator=(const ProgramGroup&) = delete;

    // The rows of the combo boxes.
    void FillKillButtons();
    void CopyFontSizes();
    void ShowEmuDownload();
    // Nobody is offered to donate where no address is known.
    void ShowDonateBtn();
    // With no handler but that of its effects: the program has changed what is stored.
    void TakeJoystick(int value);
    void RunChangeHandlers();

    void Joystickcheck_Click();
    void SetJOyBtn_Click();
    void FontSizeCombo_Click();
    void DeamonButton_Click();
    void DeamonPath_Change();
    void DeamonPath_LostFocus();
    void Command4_Click();
    void Picture2_Click();
    void FavoritenReparierenLabel_Click();
    void Label7_Click();
    void Label5_Click();
    void EmuDownload_Click();
    void DonateBtn_Click();

    // The program is being renewed, and only Escape is taken, which calls it off.
    bool IsUpdating() const { return updating; }
    void CancelUpdate() { cancelled = true; }

 private:
    void JoinPrograms();
    void JoinLinks();
    void ShowFault();

    SettingsForm& form;
    core::Form1& main;
    Services services;
    Routines routines;
    bool updating = false;
    bool cancelled = false;
};

}  // namespace kivu::settings
