#pragma once

#include <string>

#include "support/file_dialog_lists.h"

namespace kivu::support {

// What the dialog is asked for, and what it answers.
class FileDialogAnswer {
 public:
    FileDialogAnswer(FilesForm& form, const platform::FileSystem& files, FileDialogLists& lists)
        : form(form), files(files), lists(lists) {}

    struct Question {
        std::string mode;
        std::string path;     // where to begin; empty: the current directory
        std::string caption;  // empty: the dialog's own
        std::string name;     // a mask with "*" or "?", or the one name that is looked for
    };
    // Before the window is shown.
    void Ask(const Question& question);

    void File1_Click();
    void FileName_Change() { lists.ShowFullPath(); }
    // Leaves the window open where what was typed is a mask or leads into a directory, and where
    // there is nothing to answer: a directory is no file.
    void Ok_Click();
    void Abbruch_Click();

 private:
    void Begin(const std::string& path, const std::string& name);
    void ChooseFile(const std::string& name);
    void AnswerDirectory();
    void AnswerFile();
    void AskForName();
    void AnswerName(const std::string& typed);
    void Finish(std::string result);

    FilesForm& form;
    const platform::FileSystem& files;
    FileDialogLists& lists;
    bool filling = false;  // a row is chosen, but not by the user
};

}  // namespace kivu::support
