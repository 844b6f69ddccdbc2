#pragma once

#include <string>
#include <vector>

#include "forms/control.h"

namespace kivu::forms {

// Lists of a file system, as the toolkit's DirectorySource shows it. A path that cannot be entered
// leaves the control where it was.
class DirectoryControl : public Control {
 public:
    using Control::Control;
    bool TakesFocus() const override { return true; }
    int ListCount() const { return static_cast<int>(rows.size()); }
    const std::string& List(int row) const;
    int ListIndex() const { return selected; }
    void SetListIndex(int row);
    std::function<void()> onChange;

 protected:
    void ReplaceRows(std::vector<std::string> newRows);

 private:
    std::vector<std::string> rows;
    int selected = -1;
};

// The drives or mount points to choose from, given by whoever knows them.
class DriveListBox : public DirectoryControl {
 public:
    using DirectoryControl::DirectoryControl;
    Kind GetKind() const override { return Kind::driveListBox; }
    void SetDrives(std::vector<std::string> drives) { ReplaceRows(std::move(drives)); }
    const std::string& Drive() const { return List(ListIndex()); }
};

// The direct subdirectories of one directory, sorted, by their full paths.
class DirListBox : public DirectoryControl {
 public:
    using DirectoryControl::DirectoryControl;
    Kind GetKind() const override { return Kind::dirListBox; }
    const std::string& Path() const { return path; }
    // A different path that can be entered runs the change handler.
    void SetPath(const std::string& value);

 private:
    std::string path;
};

// The files of one directory that match one pattern, by their names.
class FileListBox : public DirectoryControl {
 public:
    using DirectoryControl::DirectoryControl;
    Kind GetKind() const override { return Kind::fileListBox; }
    const std::string& Path() const { return path; }
    const std::string& Pattern() const { return pattern; }
    void SetPath(const std::string& value);
    void SetPattern(const std::string& value);

 private:
    void Refresh();

    std::string path;
    std::string pattern = "*.*";
};

}  // namespace kivu::forms
