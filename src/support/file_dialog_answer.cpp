#include "support/file_dialog_answer.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "support/file_dialog_paths.h"
#include "text/paths.h"
#include "text/text.h"

namespace kivu::support {

namespace {

const char* OwnCaption(const FilesForm& form) {
    if (form.AsksForDirectory()) return "Open Directory";
    return form.Saves() ? "Save File as" : "Open File";
}

}  // namespace

void FileDialogAnswer::Ask(const Question& question) {
    form.SetMode(question.mode);
    form.Result.clear();
    const std::string caption = question.caption.empty() ? OwnCaption(form) : question.caption;
    const bool mask = HasWildcard(question.name);
    form.SetTitle(CaptionWithMask(caption, mask ? question.name : std::string()));
    Begin(question.path, question.name);
    form.MoveFocus(form.AsksForDirectory() ? static_cast<forms::Control*>(&form.Dir1)
                                           : &form.FileName);
    form.FileName.SetSelection(0, static_cast<int>(text::CodePointCount(form.FileName.Text())));
}

void FileDialogAnswer::Begin(const std::string& given, const std::string& name) {
    const std::string path = lists.PathOf(given);
    // A machine that does not answer takes its time: it is not asked for all that lies above.
    if (!IsNetworkPath(path, lists.IsPosix())) {
        lists.GoToNearest(path);
    } else if (!lists.GoTo(path) && !lists.GoTo(text::GetParentPath(path))) {
        form.NetworkPath = path;
    }
    if (!form.AsksForDirectory()) {
        lists.SetMask(name);
        if (!HasWildcard(name)) form.FileName.SetText(name);
        if (form.NetworkPath.empty() && files.FileExists(path))
            ChooseFile(text::GetFileNameOnly(path));
    }
    lists.ShowFullPath();
}

// The file that was chosen the last time. Its name is filled in where no other is looked for.
void FileDialogAnswer::ChooseFile(const std::string& name) {
    const auto& rows = form.File1.Rows();
    const auto found = std::find(rows.begin(), rows.end(), name);
    if (found == rows.end()) return;
    filling = !form.Mask.empty();
    form.File1.SetListIndex(static_cast<int>(found - rows.begin()));
    filling = false;
}

void FileDialogAnswer::File1_Click() {
    if (filling) return;
    // The rows are those of the directory on show, not of a share that was typed.
    form.NetworkPath.clear();
    form.FileName.SetText(form.File1.List(form.File1.ListIndex()));
    lists.ShowFullPath();
}

void FileDialogAnswer::Ok_Click() {
    if (lists.TakeRefusedPath()) {
        form.KomplettPfadText.SetFocus();
        lists.Refuse();
    } else if (form.AsksForDirectory()) {
        AnswerDirectory();
    } else {
        AnswerFile();
    }
}

void FileDialogAnswer::AnswerDirectory() {
    const std::string chosen = lists.ChosenDirectory();
    const std::string directory = chosen.empty() ? lists.Directory() : chosen;
    if (form.NetworkPath.empty() && !files.IsDirectory(directory)) {
        lists.ReadAnew();
        lists.Refuse();
    } else {
        Finish(WithSeparator(directory));
    }
}

void FileDialogAnswer::AnswerFile() {
    const std::string typed = form.FileName.Text();
    const std::string chosen = lists.ChosenFile();
    const bool blank = text::Trim(typed).empty();
    if (blank && (form.Saves() || chosen.empty())) {
        AskForName();
    } else if (blank || typed == chosen) {
        // The row's name as it is, blanks at its ends and signs of a mask too.
        Finish(JoinedPath(lists.Directory(), chosen));
    } else {
        AnswerName(typed);
    }
}

// The directory alone would be taken for a file by whoever has asked.
void FileDialogAnswer::AskForName() {
    if (!lists.ChosenDirectory().empty()) {
        lists.EnterChosen();
        return;
    }
    form.FileName.SetFocus();
    lists.Refuse();
}

void FileDialogAnswer::AnswerName(const std::string& typed) {
    const std::string path = lists.PathOf(typed);
    const std::string_view name = text::FileNameView(path);
    const std::string directory(DirectoryPart(path));
    if (!name.empty() && HasWildcard(name) && lists.TakeMask(path)) return;
    if (files.IsDirectory(path) && lists.GoTo(path)) {
        form.FileName.SetText("");
        return;
    }
    // Names of directories may hold the signs of a mask too, but such a one must be there.
    const bool mask =
        HasWildcard(name) || (HasWildcard(directory) && !files.IsDirectory(directory));
    if (name.empty() || mask || files.IsDirectory(path)) {
        lists.Refuse();
    } else {
        Finish(path);
    }
}

void FileDialogAnswer::Abbruch_Click() {
    Finish({});
}

void FileDialogAnswer::Finish(std::string result) {
    form.Result = std::move(result);
    form.SetVisible(false);
}

}  // namespace kivu::support
