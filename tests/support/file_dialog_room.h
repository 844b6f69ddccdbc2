#pragma once

#include <functional>
#include <gmock/gmock.h>
#include <string>
#include <vector>

#include "forms/user_input.h"
#include "support/directory_lists.h"
#include "support/file_dialogs.h"
#include "testing/memory_file_system.h"
#include "testing/quiet_host.h"
#include "testing/scripted_windows.h"

namespace kivu::support {

// The dialog over a disk in memory and the hands of a user in it.
class FileDialogRoom {
 public:
    explicit FileDialogRoom(char separator, bool german = false)
        : disk(separator), german(german) {}

    using Hands = std::function<void(FilesForm& form)>;

    std::string Open(const std::string& path, const std::string& caption, const std::string& name,
                     Hands use) {
        hands = std::move(use);
        return dialogs.FileOpenDialog(path, caption, name, &owner);
    }
    std::string Save(const std::string& path, const std::string& caption, const std::string& name,
                     Hands use) {
        hands = std::move(use);
        return dialogs.filesaveDialog(path, caption, name, &owner);
    }
    std::string Directory(const std::string& path, const std::string& caption, Hands use) {
        hands = std::move(use);
        return dialogs.FileDirSelectDialog(path, caption, &owner);
    }

    static void Click(forms::Control& control) {
        forms::UserInput(*control.ParentForm()).Click(control);
    }
    static void Click(forms::Control& control, int row) {
        forms::UserInput(*control.ParentForm()).Click(control, row);
    }
    static void DoubleClick(forms::Control& control, int row) {
        forms::UserInput(*control.ParentForm()).DoubleClick(control, row);
    }
    static void Strike(FilesForm& form, const char* key) {
        forms::UserInput(form).Stroke(*forms::KeyByName(key));
    }
    // In the place of what stands in the field.
    static void Type(forms::TextBox& box, const std::string& text) {
        box.SetFocus();
        box.SetSelection(0, 100000);
        forms::UserInput input(*box.ParentForm());
        if (text.empty()) input.EditKey({forms::keys::del});
        input.Type(box, text);
    }
    static std::vector<std::string> Rows(const forms::DirectoryControl& list) {
        return list.Rows();
    }

    struct CountingBeeper : platform::Beeper {
        void Beep() override { ++count; }
        int count = 0;
    } beeper;
    kivu::testing::MemoryFileSystem disk;
    kivu::testing::QuietHost host;
    kivu::testing::ScriptedWindows windows;
    DirectoryLists lists{disk};
    forms::Toolkit toolkit{nullptr, nullptr, &lists, &windows};
    forms::Form owner{"Form1", toolkit};
    bool german;
    int opened = 0;  // windows that were made
    Hands hands;
    WindowedFileDialogs dialogs{windows, [this] {
                                    ++opened;
                                    return std::make_unique<FilesWindow>(
                                        toolkit, german, Files::Services{disk, host, host, host},
                                        beeper);
                                }};

 private:
    struct Serve {
        explicit Serve(FileDialogRoom& room) {
            room.windows.Adopt(room.owner);
            room.windows.onModal = [&room](forms::Form& form, const std::function<bool()>&) {
                if (room.hands) room.hands(static_cast<FilesForm&>(form));
            };
        }
    } serve{*this};
};

}  // namespace kivu::support
