#pragma once

#include "support/always_on_top.h"
#include "support/file_dialog_answer.h"
#include "support/file_dialog_form.h"
#include "support/file_dialog_lists.h"
#include "support/user_places.h"

namespace kivu::support {

// The dialog for files and directories, with all that happens in it.
class FilesWindow {
 public:
    FilesWindow(forms::Toolkit toolkit, bool german, Files::Services services,
                platform::Beeper& beeper);

    FilesForm& GetForm() { return form; }
    // Before it is shown.
    void Ask(const FileDialogAnswer::Question& question) { answer.Ask(question); }
    // The chosen path, a directory's with its separator; empty: cancelled.
    const std::string& Result() const { return form.Result; }

 private:
    void Form_Load();
    void JoinLists();
    void JoinKeys();
    void JoinButtons();

    FilesForm form;
    Files folders;
    UserPlaces places;
    FileDialogLists lists;
    FileDialogAnswer answer;
    AlwaysOnTop alwaysOnTop;
};

}  // namespace kivu::support
