#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "forms/directory_controls.h"
#include "platform/beeper.h"
#include "platform/file_system.h"
#include "support/file_dialog_form.h"
#include "support/user_places.h"

namespace kivu::support {

// Where the dialog looks: its drives, its directories and its files stand in one directory at any
// time, and the full path tells of it. The program's current directory stays what it is.
class FileDialogLists {
 public:
    FileDialogLists(FilesForm& form, const platform::FileSystem& files, const UserPlaces& places,
                    platform::Beeper& beeper)
        : form(form), files(files), places(places), beeper(beeper) {}

    // The current directory, and the drives as they are now.
    void TakeCurrentDirectory();
    // False: it cannot be entered, and all stays as it was.
    bool GoTo(const std::string& directory);
    // Its nearest parent where it is gone or cannot be entered. False: there is none.
    bool GoToNearest(const std::string& directory);
    // What the result begins with: the directory on show, or a share that was typed.
    std::string Directory() const;
    // The row chosen among the directories; empty: none.
    std::string ChosenDirectory() const;
    // The name chosen among the files; empty: none.
    std::string ChosenFile() const;
    // The whole path of what was typed or pasted, from the directory on show.
    std::string PathOf(std::string_view typed) const;
    // Writes what OK would give into the full path.
    void ShowFullPath();
    // Lists the files that match, as far as the host has such.
    void SetMask(const std::string& mask);
    // The mask and the directory in front of it. False: that cannot be entered.
    bool TakeMask(const std::string& path);
    // Tells the user that what was asked for cannot be done.
    void Refuse() { beeper.Beep(); }
    // True once where a full path was typed that leads nowhere, and the user may not have seen it
    // go back to where the lists are.
    bool TakeRefusedPath() { return std::exchange(pathRefused, false); }
    // What is there now, and out of a directory that has gone.
    void ReadAnew();
    bool IsPosix() const { return files.Separator() == '/'; }

    void Drive1_Click();
    void Dir1_Change();
    void Dir1_Click();
    // Into the chosen row; one that is gone meanwhile goes from the list.
    void EnterChosen();
    void UpBtn_Click();
    void Command1_Click();
    void StartmenuBtn_Click();
    void KomplettPfadText_LostFocus();
    void KomplettPfadText_Enter();
    // The next row that begins with what was typed.
    void JumpTo(forms::DirectoryControl& list, char32_t letter);

 private:
    void Show(std::string path);
    std::string ChosenPath() const;
    void LeaveWhatIsGone();
    void ShowDrive();
    void Take(const std::string& place);
    bool TakeTypedPath(const std::string& path);

    FilesForm& form;
    const platform::FileSystem& files;
    const UserPlaces& places;
    platform::Beeper& beeper;
    std::string shownPath;   // as the dialog itself has written it
    bool following = false;  // the drive follows the directory, and not the other way
    bool pathRefused = false;
};

}  // namespace kivu::support
