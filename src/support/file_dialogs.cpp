#include "support/file_dialogs.h"

namespace kivu::support {

std::string WindowedFileDialogs::FileOpenDialog(const std::string& DefaultPath,
                                                const std::string& WindowCaption,
                                                const std::string& DefaultFilename,
                                                forms::Form* over) {
    return Ask({FilesForm::openFile, DefaultPath, WindowCaption, DefaultFilename}, over);
}

std::string WindowedFileDialogs::filesaveDialog(const std::string& DefaultPath,
                                                const std::string& WindowCaption,
                                                const std::string& DefaultFilename,
                                                forms::Form* over) {
    return Ask({FilesForm::saveFile, DefaultPath, WindowCaption, DefaultFilename}, over);
}

std::string WindowedFileDialogs::FileDirSelectDialog(const std::string& DefaultPath,
                                                     const std::string& WindowCaption,
                                                     forms::Form* over) {
    return Ask({FilesForm::chooseDirectory, DefaultPath, WindowCaption, {}}, over);
}

std::string WindowedFileDialogs::Ask(const FileDialogAnswer::Question& question,
                                     forms::Form* over) {
    if (FilesWindow* open = window.Loaded()) {
        windows.Raise(open->GetForm());
        return {};
    }
    FilesWindow& asked = window.Get();
    asked.Ask(question);
    windows.ShowModal(asked.GetForm(), over);
    std::string result = asked.Result();
    asked.GetForm().Unload();
    return result;
}

}  // namespace kivu::support
