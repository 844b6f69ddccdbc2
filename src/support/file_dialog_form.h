#pragma once

#include <string>

#include "forms/controls.h"
#include "forms/directory_controls.h"
#include "forms/form.h"

namespace kivu::support {

// The launcher's dialog for files and directories: its controls, its design and its own fields.
struct FilesForm : forms::Form {
    struct Wording {
        bool german = false;
        bool posix = true;  // what the host calls its drives and its menu
    };
    FilesForm(forms::Toolkit toolkit, Wording wording);

    // What can be asked for.
    static constexpr const char* openFile = "File";
    static constexpr const char* saveFile = "SaveFile";
    static constexpr const char* chooseDirectory = "Dir";

    forms::Label TitleLabel{this, "TitleLabel"};
    forms::Frame AlwaysOnTop1{this, "AlwaysOnTop1"};
    forms::Image AOT_Enabled{&AlwaysOnTop1, "AOT_Enabled"};
    forms::Image AOT_Disabled{&AlwaysOnTop1, "AOT_Disabled"};
    forms::Image AOT_MouseMove{&AlwaysOnTop1, "AOT_MouseMove"};

    forms::Label PathLabel{this, "PathLabel"};
    forms::TextBox KomplettPfadText{this, "KomplettPfadText"};
    forms::CommandButton UpBtn{this, "UpBtn"};

    // Where to look, and what there is.
    forms::Frame PlaceFrame{this, "PlaceFrame"};
    forms::Label DriveLabel{&PlaceFrame, "DriveLabel"};
    forms::DriveListBox Drive1{&PlaceFrame, "Drive1"};
    forms::Label DirLabel{&PlaceFrame, "DirLabel"};
    forms::DirListBox Dir1{&PlaceFrame, "Dir1"};
    forms::Frame FileFrame{this, "FileFrame"};
    forms::Label FileLabel{&FileFrame, "FileLabel"};
    forms::FileListBox File1{&FileFrame, "File1"};
    forms::Label NameLabel{&FileFrame, "NameLabel"};
    forms::TextBox FileName{&FileFrame, "FileName"};

    forms::CommandButton Command1{this, "Command1"};
    forms::CommandButton StartmenuBtn{this, "StartmenüBtn"};
    // The buttons of files, and those of directories.
    forms::Frame Frame1{this, "Frame1"};
    forms::CommandButton Ok{&Frame1, "Ok"};
    forms::CommandButton Abbruch{&Frame1, "Abbruch"};
    forms::Frame Frame2{this, "Frame2"};
    forms::CommandButton OkBtn2{&Frame2, "OkBtn2"};
    forms::CommandButton AbbruchBtn2{&Frame2, "AbbruchBtn2"};

    forms::Timer EnableTimer{this, "EnableTimer", 1000, false};

    std::string Mode = openFile;
    std::string Result;       // the chosen path; empty: none
    std::string Mask;         // of the files on show, as it was given or typed; empty: all
    std::string NetworkPath;  // typed, and kept although it cannot be entered; empty: none

    bool AsksForDirectory() const { return Mode == chooseDirectory; }
    bool Saves() const { return Mode == saveFile; }
    // Shows the controls of the mode.
    void SetMode(const std::string& mode);
    // The title line tells of it too.
    void SetTitle(const std::string& title);

 private:
    void DesignWindow();
    void DesignLists();
    void DesignButtons();
    void Name(Wording wording);
};

}  // namespace kivu::support
