#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
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
    // Valid until the control shows others.
    const std::vector<std::string>& Rows() const { return rows; }
    int ListIndex() const { return selected; }
    // A different row in range (or -1) runs the click handler.
    void SetListIndex(int row);
    // The user's click on a row: runs the click handler on the selected row too.
    void ClickRow(int row);
    std::function<void()> onChange;

 protected:
    void ReplaceRows(std::vector<std::string> newRows, int chosen = -1);
    // Each row is `start` and a name. Rows keep their memory: a walk shows directory upon
    // directory.
    void ShowRows(std::string_view start, const std::vector<std::string_view>& names);

 private:
    std::vector<std::string> rows;
    int selected = -1;
};

// The drives or mount points to choose from, as the toolkit's source or the program knows them.
class DriveListBox : public DirectoryControl {
 public:
    using DirectoryControl::DirectoryControl;
    Kind GetKind() const override { return Kind::driveListBox; }
    void SetDrives(std::vector<std::string> drives) { ReplaceRows(std::move(drives)); }
    // Asks the toolkit's source anew. The chosen drive stays chosen as far as it is still there,
    // and no handler runs.
    void Refresh();
    // Chooses the drive that the path lies on: the longest one that begins it. A different one runs
    // the click handler; a path on none changes nothing.
    void SetDrive(std::string_view path);
    const std::string& Drive() const { return List(ListIndex()); }
};

// The direct subdirectories of one directory, sorted, by their full paths.
class DirListBox : public DirectoryControl {
 public:
    using DirectoryControl::DirectoryControl;
    Kind GetKind() const override { return Kind::dirListBox; }
    const std::string& Path() const { return path; }
    // A row as it is shown: the directory's own name.
    std::string_view Name(int row) const;
    // A different path that can be entered runs the change handler. It is kept without a closing
    // separator, a root's own one excepted.
    void SetPath(const std::string& value);
    // Back to no path and no rows, without a handler.
    void ForgetPath();

 private:
    std::string path;
    std::size_t nameBegins = 0;  // in each row, behind the path and its separator
};

// The files of one directory that match one pattern, by their names.
class FileListBox : public DirectoryControl {
 public:
    using DirectoryControl::DirectoryControl;
    Kind GetKind() const override { return Kind::fileListBox; }
    const std::string& Path() const { return path; }
    const std::string& Pattern() const { return pattern; }
    // A different path that can be entered runs the change handler. The same one is read anew.
    void SetPath(const std::string& value);
    // A different pattern reads the directory anew and runs the change handler.
    void SetPattern(const std::string& value);

 private:
    // False: there is no such directory to enter, and no file is given.
    bool ReadFiles(const std::string& directory, std::vector<std::string_view>& files);
    void ShowMatching(std::vector<std::string_view> files);

    std::string path;
    std::string pattern = "*.*";
};

}  // namespace kivu::forms
