#pragma once

#include <string>
#include <vector>

#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "platform/program_starter.h"
#include "settings/detection.h"
#include "settings/known_choices.h"
#include "settings/settings_form.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::settings {

class WinuaeGroup;

// What the launcher knows about an emulator, brought into the settings window's controls: by the
// path of its program, or chosen from KnownEmuCombo. Nothing is stored before SaveBtn.
class KnownGroup {
 public:
    struct Services {
        const platform::FileSystem& files;
        const platform::ProgramStarter& starter;
        platform::Dialogs& dialogs;
    };

    KnownGroup(SettingsForm& form, core::Form1& main, Services services, WinuaeGroup& winuae)
        : form(form), main(main), services(services), winuae(winuae) {}

    // The handlers of KnownEmuCombo.
    void JoinEvents();
    // The rows of KnownEmuCombo, with none chosen. Looks for each program in the search path.
    void FillKnownEmuCombo();

    void DetectKnownEmulator(const std::string& exePath);
    void SetEmulatorDefaults();

    // A row taken with the mouse, or from the rows that have dropped down.
    void KnownEmuCombo_Click();
    // The arrow keys only look at the rows; Enter takes the one that is shown.
    void KnownEmuCombo_KeyDown(forms::Key& key);
    void KnownEmuCombo_LostFocus();

    // The file that a text names as a program; empty: there is none.
    std::string ProgramOf(const std::string& text) const;
    bool IsProgram(const std::string& text) const { return !ProgramOf(text).empty(); }
    // A directory in which the host looks for programs.
    bool IsSearchPath(const std::string& directory) const;

 private:
    void Assign(const Assignments& assignments);
    void Assign(const Assignment& assignment);
    // False: the question has been answered with No.
    bool Take(const Detection& detection);
    void TakeChoice();
    void ShowNoChoice();

    SettingsForm& form;
    core::Form1& main;
    Services services;
    WinuaeGroup& winuae;
    std::vector<KnownChoice> choices;
    bool byKey = false;     // the next click on a row is an arrow key's
    bool lookedAt = false;  // the row shown has not been taken
};

}  // namespace kivu::settings
