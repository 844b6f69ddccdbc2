#include "support/file_dialog_lists.h"

#include <utility>

#include "support/file_dialog_paths.h"
#include "text/paths.h"
#include "text/text.h"

namespace kivu::support {

namespace {

// Closed by one separator at most. On a POSIX host a name may end in "\\".
std::string ClosedOnce(std::string directory) {
    const bool posix = directory.starts_with('/');
    while (directory.ends_with("//") || (!posix && directory.ends_with("\\\\")))
        directory.pop_back();
    return directory;
}

// What remains of a share when its machine is taken off.
bool IsAboveShares(const std::string& path, bool posix) {
    return !posix && (path == "\\\\" || path == "//");
}

}  // namespace

void FileDialogLists::TakeCurrentDirectory() {
    form.Drive1.Refresh();
    GoToNearest(files.CurrentDirectory());
    LeaveWhatIsGone();
}

bool FileDialogLists::GoTo(const std::string& given) {
    const std::string directory = ClosedOnce(given);
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

bool FileDialogLists::GoToNearest(const std::string& directory) {
    std::string path = directory;
    while (!path.empty() && !GoTo(path)) {
        std::string parent = text::GetParentPath(path);
        if (parent == path || IsAboveShares(parent, IsPosix())) return false;
        path = std::move(parent);
    }
    return !path.empty();
}

// A drive goes with all that is on it, as a stick that is pulled out.
void FileDialogLists::LeaveWhatIsGone() {
    const std::string directory = form.Dir1.Path();
    if (files.IsDirectory(directory) || GoToNearest(directory) || GoTo(files.HomeDirectory()))
        return;
    for (const std::string& drive : files.Drives()) {
        if (GoTo(drive)) return;
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
    std::string path;
    if (form.AsksForDirectory()) {
        const std::string chosen = ChosenDirectory();
        path = WithSeparator(chosen.empty() ? Directory() : chosen);
    } else {
        path = ChosenPath();
    }
    Show(std::move(path));
    pathRefused = false;
}

std::string FileDialogLists::ChosenPath() const {
    const std::string directory = Directory();
    const std::string& typed = form.FileName.Text();
    const std::string chosen = ChosenFile();
    const bool blank = text::Trim(typed).empty();
    if (blank && (form.Saves() || chosen.empty())) return JoinedPath(directory, form.Mask);
    // A row's name is what it is, whatever it would mean if it were typed.
    if (blank || typed == chosen) return JoinedPath(directory, chosen);
    const std::string path = PathOf(typed);
    const bool name = !path.empty() && !HasWildcard(text::FileNameView(path));
    return name ? path : WithSeparator(directory);
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

bool FileDialogLists::TakeMask(const std::string& path) {
    const std::string directory(DirectoryPart(path));
    if (!directory.empty() && !GoTo(directory)) return false;
    form.Mask = text::GetFileNameOnly(path);
    form.File1.SetPattern(form.Mask);
    form.FileName.SetText("");
    ShowFullPath();
    return true;
}

void FileDialogLists::ReadAnew() {
    form.Dir1.SetPath(form.Dir1.Path());
    form.File1.SetPath(form.Dir1.Path());
    LeaveWhatIsGone();
    ShowFullPath();
}

void FileDialogLists::ShowDrive() {
    const bool before = std::exchange(following, true);
    // A share lies on none.
    form.Drive1.SetListIndex(-1);
    form.Drive1.SetDrive(form.Dir1.Path());
    following = before;
}

void FileDialogLists::Drive1_Click() {
    if (following || form.Drive1.ListIndex() < 0 || GoTo(form.Drive1.Drive())) return;
    form.Drive1.Refresh();
    ShowDrive();
    Refuse();
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

// The user has turned from a share that was typed to what the lists show.
void FileDialogLists::Dir1_Click() {
    form.NetworkPath.clear();
    ShowFullPath();
}

void FileDialogLists::EnterChosen() {
    const std::string chosen = form.Dir1.List(form.Dir1.ListIndex());
    if (chosen.empty() || GoTo(chosen)) return;
    ReadAnew();
    Refuse();
}

void FileDialogLists::UpBtn_Click() {
    if (!form.NetworkPath.empty()) {
        Dir1_Click();
        return;
    }
    const std::string from = form.Dir1.Path();
    const std::string parent = text::GetParentPath(from);
    if (parent != from && !GoToNearest(parent)) LeaveWhatIsGone();
}

void FileDialogLists::Take(const std::string& place) {
    if (!GoTo(place)) Refuse();
}

void FileDialogLists::Command1_Click() {
    Take(places.Desktop());
}

void FileDialogLists::StartmenuBtn_Click() {
    Take(places.Programs());
}

void FileDialogLists::KomplettPfadText_LostFocus() {
    const std::string typed = form.KomplettPfadText.Text();
    if (typed == shownPath) return;
    const std::string path = PathOf(typed);
    const bool taken = TakeTypedPath(path);
    if (!IsNetworkPath(path, IsPosix()) || HasWildcard(path)) {
        ShowFullPath();
        pathRefused = !taken && !path.empty();
        return;
    }
    // It stays as it was typed, also while the other machine cannot be reached.
    if (!taken) form.NetworkPath = path;
    Show(path);
    pathRefused = false;
}

void FileDialogLists::KomplettPfadText_Enter() {
    KomplettPfadText_LostFocus();
    if (TakeRefusedPath()) Refuse();
}

// A directory, or a file or a mask in one; whatever leads nowhere changes nothing.
bool FileDialogLists::TakeTypedPath(const std::string& path) {
    if (path.empty()) return false;
    if (GoTo(path)) return true;
    if (form.AsksForDirectory()) return false;
    const std::string name = text::GetFileNameOnly(path);
    if (HasWildcard(name)) return TakeMask(path);
    const bool file = form.Saves() || files.FileExists(path);
    if (name.empty() || !file || !GoTo(std::string(DirectoryPart(path)))) return false;
    form.FileName.SetText(name);
    return true;
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
