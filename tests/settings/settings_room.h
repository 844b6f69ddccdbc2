#pragma once

#include <deque>
#include <string>
#include <utility>
#include <vector>

#include "forms/user_input.h"
#include "launch/launch_room.h"
#include "settings/known_group.h"
#include "settings/launch_group.h"
#include "settings/new_emulator_group.h"
#include "settings/paths_group.h"
#include "settings/winuae_group.h"
#include "testing/scripted_windows.h"

namespace kivu::settings {

// Gives the answers that wait for it, in order; with none left the user cancels.
struct ScriptedFileDialogs : support::FileDialogs {
    struct Asked {
        std::string kind, path, title, mask;
        bool operator==(const Asked&) const = default;
    };
    std::string FileOpenDialog(const std::string& path, const std::string& title,
                               const std::string& mask, forms::Form*) override {
        return Answer({"open", path, title, mask});
    }
    std::string filesaveDialog(const std::string& path, const std::string& title,
                               const std::string& mask, forms::Form*) override {
        return Answer({"save", path, title, mask});
    }
    std::string FileDirSelectDialog(const std::string& path, const std::string& title,
                                    forms::Form*) override {
        return Answer({"directory", path, title, {}});
    }
    std::string Answer(Asked question) {
        asked.push_back(std::move(question));
        if (answers.empty()) return {};
        std::string answer = answers.front();
        answers.pop_front();
        return answer;
    }

    std::deque<std::string> answers;
    std::vector<Asked> asked;
};

struct CountingLoadingScreen : testing::QuietLoadingScreen {
    void ShowLoadingInfo(forms::Form* owner) override { owners.push_back(owner); }
    std::vector<forms::Form*> owners;
};

// The settings window's groups over a form and an emulator named "Alpha", without the window that
// loads and saves.
struct SettingsRoom : launch::LaunchRoom {
    explicit SettingsRoom(char separator = '\\', int language = 2,
                          platform::FileSystem* otherDisk = nullptr)
        : LaunchRoom(separator, separator == '/' ? "/opt/kivu/" : "C:\\Kivu\\", "Alpha"),
          disk(otherDisk ? *otherDisk : files),
          window(forms::Toolkit{}, language) {
        form.CurrentLanguage = language;
        winuae.JoinEvents();
        known.JoinEvents();
        paths.JoinEvents();
        newEmulator.JoinEvents();
    }

    // As a window that has just been opened: the first field has the focus.
    void Open(const std::string& exe, const std::string& romPath) {
        window.txtWinUAEExe.SetText(exe);
        window.TxtRomPath.SetText(romPath);
        paths.RunChangeHandlers();
        winuae.RunChangeHandlers();
        window.SaveBtn.SetEnabled(false);
        window.txtWinUAEExe.SetFocus();
    }
    void Leave() { window.DirBefehleTxt.SetFocus(); }
    // Types another path in the place of the one that is there, and leaves the field.
    void Enter(forms::TextBox& box, const std::string& text) {
        box.SetFocus();
        box.SetText(text);
        Leave();
    }
    void EnterProgram(const std::string& text) { Enter(window.txtWinUAEExe, text); }

    using Boxes = std::vector<std::pair<std::string, std::string>>;
    // Titles and texts of the boxes so far, of which the next starts anew.
    Boxes TakeBoxes() {
        Boxes boxes;
        for (const auto& box : host.dialogs.shown)
            boxes.emplace_back(box.title, box.text);
        host.dialogs.shown.clear();
        return boxes;
    }
    void Answers(std::deque<platform::Answer> answers) {
        host.dialogs.answers = std::move(answers);
    }
    bool Fault(SettingsForm::Fault which) const { return window.FehlerIcon[which].Visible(); }

    struct CountingWatch : testing::QuietWatch {
        void EmuActiveTimer_Timer() override {
            ++looks;
            if (onLook) onLook();
        }
        std::function<void()> onLook;
        int looks = 0;
    };
    struct Switching : testing::QuietSwitching {
        explicit Switching(SettingsRoom& room) : room(room) {}
        void SelectEmulator(bool AddToGlobal) override {
            addedToGlobal = AddToGlobal;
            windowEnabled = room.window.Enabled();
            core::Form1& main = room.form;
            selected.push_back(main.EmuListbox.SelectedText());
            main.CurrentEmuIndex = main.EmuListbox.ListIndex();
            main.EmuBoxIndexSaved = main.CurrentEmuIndex;
            main.SetTopmost(true);
        }
        SettingsRoom& room;
        std::vector<std::string> selected;
        bool addedToGlobal = true;
        bool windowEnabled = true;
    };

    platform::FileSystem& disk;
    SettingsForm window;
    forms::UserInput input{window};
    ScriptedFileDialogs fileDialogs;
    CountingLoadingScreen loadingScreen;
    CountingWatch running;
    Switching switching{*this};
    testing::QuietStartHelpers helpers;
    launch::EmulatorSetup emulatorSetup{
        form, ini, pacer, {files, host.starter, host.clock, host.dialogs, host.log}, running};
    WinuaeGroup winuae{
        window,
        form,
        {disk, host.starter, host.dialogs, fileDialogs, host.log, loadingScreen, uae, launch}};
    KnownGroup known{window, form, {disk, host.starter, host.dialogs}, winuae};
    testing::ScriptedWindows windows;
    NewEmulatorGroup newEmulator{
        window, form, {disk, host.dialogs, switching, running, windows, alwaysOnTop}};
    PathsGroup paths{window,
                     form,
                     {disk, host.dialogs, fileDialogs, emulatorSetup},
                     {known, winuae, newEmulator}};
    LaunchGroup parameters{window, helpers};
};

}  // namespace kivu::settings
