#include "forms/directory_controls.h"

#include <algorithm>
#include <utility>

#include "forms/form.h"

namespace kivu::forms {

namespace {

void SortRows(const Toolkit& toolkit, std::vector<std::string>& rows) {
    std::stable_sort(rows.begin(), rows.end(), [&](const std::string& a, const std::string& b) {
        return toolkit.collation ? toolkit.collation->Compare(a, b) < 0 : a < b;
    });
}

char SeparatorOf(const std::string& path) {
    return path.find('\\') != std::string::npos && path.front() != '/' ? '\\' : '/';
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

void DirectoryControl::ReplaceRows(std::vector<std::string> newRows) {
    rows = std::move(newRows);
    selected = -1;
    Notify(Aspect::rows);
}

void DirListBox::SetPath(const std::string& value) {
    std::vector<std::string> directories, files;
    DirectorySource* source = GetToolkit().directories;
    if (value.empty() || !source || !source->Read(value, directories, files)) return;
    SortRows(GetToolkit(), directories);
    const char separator = SeparatorOf(value);
    for (std::string& name : directories) {
        const bool closed = value.back() == '\\' || value.back() == '/';
        name = closed ? value + name : value + separator + name;
    }
    const bool changed = path != value;
    path = value;
    ReplaceRows(std::move(directories));
    if (changed) Run(onChange);
}

void FileListBox::SetPath(const std::string& value) {
    const bool changed = path != value;
    path = value;
    Refresh();
    if (changed) Run(onChange);
}

void FileListBox::SetPattern(const std::string& value) {
    if (pattern == value) return;
    pattern = value;
    Refresh();
    Run(onChange);
}

void FileListBox::Refresh() {
    std::vector<std::string> directories, files;
    DirectorySource* source = GetToolkit().directories;
    if (path.empty() || !source || !source->Read(path, directories, files)) files.clear();
    std::erase_if(files, [&](const std::string& name) { return !source->Matches(pattern, name); });
    SortRows(GetToolkit(), files);
    ReplaceRows(std::move(files));
}

}  // namespace kivu::forms
