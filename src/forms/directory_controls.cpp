#include "forms/directory_controls.h"

#include <algorithm>
#include <utility>

#include "forms/form.h"
#include "forms/names.h"
#include "forms/sort_rows.h"

namespace kivu::forms {

namespace {

void Sort(const Toolkit& toolkit, std::vector<std::string_view>& names) {
    SortNamesBy(toolkit.collation, names);
}

// A path that begins with "/" has no other separator, and "\" may end a name in it.
char SeparatorOf(const std::string& path) {
    return path.find('\\') != std::string::npos && path.front() != '/' ? '\\' : '/';
}

std::string WithoutClosingSeparator(std::string path) {
    const bool drive = path.size() == 3 && path[1] == ':';
    const bool closed = !path.empty() && (path.back() == '/' || path.back() == SeparatorOf(path));
    if (closed && path.size() > 1 && !drive) path.pop_back();
    return path;
}

bool IsSeparator(char c) {
    return c == '/' || c == '\\';
}

bool LiesOn(std::string_view path, std::string_view drive) {
    while (!drive.empty() && IsSeparator(drive.back()))
        drive.remove_suffix(1);
    if (path.size() < drive.size()) return false;
    const std::string_view begin = path.substr(0, drive.size());
    const bool lettered = drive.size() == 2 && drive[1] == ':';
    const bool begins = lettered ? SameName(begin, drive) : begin == drive;
    // "//x" is a plain path of the root.
    return begins &&
           (path.size() == drive.size() ? !drive.empty() : IsSeparator(path[drive.size()]));
}

}  // namespace

const std::string& DirectoryControl::List(int row) const {
    static const std::string none;
    return row < 0 || row >= ListCount() ? none : rows[static_cast<std::size_t>(row)];
}

void DirectoryControl::SetListIndex(int row) {
    if (row < -1 || row >= ListCount() || row == selected) return;
    selected = row;
    Notify(Aspect::selection);
    Run(onClick);
}

void DirectoryControl::ClickRow(int row) {
    if (row < 0 || row >= ListCount()) return;
    if (row != selected) {
        SetListIndex(row);
    } else {
        Run(onClick);
    }
}

void DirectoryControl::ReplaceRows(std::vector<std::string> newRows, int chosen) {
    rows = std::move(newRows);
    selected = chosen;
    Notify(Aspect::rows);
}

void DirectoryControl::ShowRows(std::string_view start,
                                const std::vector<std::string_view>& names) {
    rows.resize(names.size());
    for (std::size_t i = 0; i < names.size(); ++i)
        rows[i].assign(start).append(names[i]);
    selected = -1;
    Notify(Aspect::rows);
}

void DriveListBox::Refresh() {
    DirectorySource* source = GetToolkit().directories;
    if (!source) return;
    std::vector<std::string> drives = source->Drives();
    const auto kept = std::find(drives.begin(), drives.end(), Drive());
    const bool stays = kept != drives.end() && ListIndex() >= 0;
    const int row = stays ? static_cast<int>(kept - drives.begin()) : -1;
    ReplaceRows(std::move(drives), row);
}

void DriveListBox::SetDrive(std::string_view path) {
    int best = -1;
    for (int row = 0; row < ListCount(); ++row) {
        const bool longer = best < 0 || List(row).size() > List(best).size();
        if (longer && LiesOn(path, List(row))) best = row;
    }
    if (best >= 0) SetListIndex(best);
}

void DirListBox::SetPath(const std::string& given) {
    std::vector<std::string_view> directories;
    DirectorySource* source = GetToolkit().directories;
    const std::string value = WithoutClosingSeparator(given);
    if (value.empty() || !source || !source->Read(value, &directories, nullptr)) return;
    Sort(GetToolkit(), directories);
    const char separator = SeparatorOf(value);
    std::string base = value;
    if (base.back() != separator && base.back() != '/') base += separator;
    const bool changed = path != value;
    path = value;
    nameBegins = base.size();
    ShowRows(base, directories);
    if (changed) Run(onChange);
}

std::string_view DirListBox::Name(int row) const {
    const std::string_view full = List(row);
    return full.substr(std::min(full.size(), nameBegins));
}

void DirListBox::ForgetPath() {
    path.clear();
    ReplaceRows({});
}

void FileListBox::SetPath(const std::string& value) {
    std::vector<std::string_view> files;
    if (!ReadFiles(value, files)) return;
    const bool changed = path != value;
    path = value;
    ShowMatching(std::move(files));
    if (changed) Run(onChange);
}

void FileListBox::SetPattern(const std::string& value) {
    if (pattern == value) return;
    pattern = value;
    std::vector<std::string_view> files;
    ReadFiles(path, files);
    ShowMatching(std::move(files));
    Run(onChange);
}

bool FileListBox::ReadFiles(const std::string& directory, std::vector<std::string_view>& files) {
    DirectorySource* source = GetToolkit().directories;
    return !directory.empty() && source && source->Read(directory, nullptr, &files);
}

void FileListBox::ShowMatching(std::vector<std::string_view> files) {
    DirectorySource* source = GetToolkit().directories;
    std::erase_if(files, [&](std::string_view name) { return !source->Matches(pattern, name); });
    Sort(GetToolkit(), files);
    ShowRows({}, files);
}

}  // namespace kivu::forms
