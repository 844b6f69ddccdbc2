#include "support/file_dialog_lists.h"

#include <utility>

#include "support/file_dialog_paths.h"
#include "text/paths.h"
#include "text/text.h"

namespace kivu::support {

namespace {

// The directory that a path of a file leads into, with its separator.
std::string_view DirectoryPart(std::string_view path) {
    return path.substr(0, path.size() - text::FileNameView(path).size());
}

}  // namespace

void FileDialogLists::TakeCurrentDirectory() {
    form.Drive1.Refresh();
    GoToNearest(files.CurrentDirectory());
}

bool FileDialogLists::GoTo(const std::string& directory) {
    form.Dir1.SetPath(directory);
    // One that has gone while it was shown still stands there.
    const bool there =
        WithSeparator(form.Dir1.Path()) == WithSeparator(directory) && files.IsDirectory(directory);
    if (there) {
        form.NetworkPath.clear();
        ShowFullPath();
    }
    return there;
}

void FileDialogLists::GoToNearest(const std::string& directory) {
    std::string path = directory;
    while (!path.empty() && !GoTo(path)) {
        std::string parent = text::GetParentPath(path);
        if (parent == path) return;
        path = std::move(parent);
    }
}

std::string FileDialogLists::Directory() const {
    return form.NetworkPath.empty() ? form.Dir1.Path() : form.NetworkPath;
}

std::string FileDialogLists::ChosenDirectory() const {
    return form.NetworkPath.empty() ? form.Dir1.List(form.Dir1.ListIndex()) : std::string();
}

std::string FileDialogLists::ChosenFile() const {
    // The files of a directory that has gone are still those of the one before.
    const bool here = form.NetworkPath.empty() && form.File1.Path() == form.Dir1.Path();
    return here ? form.File1.List(form.File1.ListIndex()) : std::string();
}

std::string FileDialogLists::PathOf(std::string_view typed) const {
    return PathTyped(typed, {Directory(), files.HomeDirectory(), IsPosix()});
}

void FileDialogLists::ShowFullPath() {
    const std::string directory = Directory();
    std::string path = WithSeparator(directory);
    if (form.AsksForDirectory()) {
        const std::string chosen = ChosenDirectory();
        if (!chosen.empty()) path = WithSeparator(chosen);
    } else if (!text::Trim(form.FileName.Text()).empty()) {
        path = HasWildcard(form.FileName.Text()) ? path : PathOf(form.FileName.Text());
    } else {
        path += form.Mask;
    }
    Show(std::move(path));
}

void FileDialogLists::Show(std::string path) {
    shownPath = path;
    // Of a path that is too long the end tells more.
    const int end = static_cast<int>(text::CodePointCount(path));
    form.KomplettPfadText.SetField(forms::TextField(std::move(path), end, 0));
}

void FileDialogLists::SetMask(const std::string& mask) {
    form.Mask = mask;
    form.File1.SetPattern(PatternOf(mask, IsPosix()));
}

void FileDialogLists::TakeMask(const std::string& path) {
    const std::string directory(DirectoryPart(path));
    if (!directory.empty()) GoTo(directory);
    form.Mask = text::GetFileNameOnly(path);
    form.File1.SetPattern(form.Mask);
    form.FileName.SetText("");
    ShowFullPath();
}

void FileDialogLists::ReadAnew() {
    form.Dir1.SetPath(form.Dir1.Path());
    form.File1.SetPath(form.Dir1.Path());
    if (!files.IsDirectory(form.Dir1.Path())) GoToNearest(form.Dir1.Path());
}

void FileDialogLists::ShowDrive() {
    const bool before = std::exchange(following, true);
    form.Drive1.SetDrive(form.Dir1.Path());
    following = before;
}

void FileDialogLists::Drive1_Click() {
    if (following) return;
    if (!GoTo(form.Drive1.Drive())) ShowDrive();
}

void FileDialogLists::Dir1_Change() {
    // What came from a row of the files went with them.
    const std::string& name = form.FileName.Text();
    if (!form.Saves() && !name.empty() && name == form.File1.List(form.File1.ListIndex()))
        form.FileName.SetText("");
    form.NetworkPath.clear();
    form.File1.SetPath(form.Dir1.Path());
    ShowDrive();
    ShowFullPath();
}

void FileDialogLists::EnterChosen() {
    const std::string chosen = form.Dir1.List(form.Dir1.ListIndex());
    if (!chosen.empty() && !GoTo(chosen)) ReadAnew();
}

void FileDialogLists::UpBtn_Click() {
    const std::string from = form.Dir1.Path();
    const std::string parent = text::GetParentPath(from);
    if (parent != from) GoToNearest(parent);
}

void FileDialogLists::Command1_Click() {
    GoTo(places.Desktop());
}

void FileDialogLists::StartmenuBtn_Click() {
    GoTo(places.Programs());
}

void FileDialogLists::KomplettPfadText_LostFocus() {
    const std::string typed = form.KomplettPfadText.Text();
    if (typed == shownPath) return;
    const std::string path = PathOf(typed);
    if (!IsNetworkPath(path, IsPosix())) {
        TakeTypedPath(path);
        ShowFullPath();
        return;
    }
    // It stays as it was typed, also while the other machine cannot be reached.
    if (!GoTo(path)) form.NetworkPath = path;
    Show(path);
}

// A directory, or a file or a mask in one; whatever leads nowhere changes nothing.
void FileDialogLists::TakeTypedPath(const std::string& path) {
    if (GoTo(path) || form.AsksForDirectory()) return;
    const std::string directory(DirectoryPart(path));
    const std::string name = text::GetFileNameOnly(path);
    if (HasWildcard(name)) {
        if (GoTo(directory)) TakeMask(path);
    } else if ((form.Saves() || files.FileExists(path)) && GoTo(directory)) {
        form.FileName.SetText(name);
    }
}

void FileDialogLists::JumpTo(forms::DirectoryControl& list, char32_t letter) {
    const auto* directories = dynamic_cast<const forms::DirListBox*>(&list);
    const int count = list.ListCount();
    for (int step = 1; step <= count; ++step) {
        const int row = (list.ListIndex() + step) % count;
        const std::string_view name =
            directories ? directories->Name(row) : std::string_view(list.List(row));
        if (name.empty() || text::FoldCase(text::DecodeAt(name, 0).codePoint) != letter) continue;
        list.ClickRow(row);
        return;
    }
}

}  // namespace kivu::support
