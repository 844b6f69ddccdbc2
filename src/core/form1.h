#pragma once

#include <array>
#include <string>

#include "core/joystick_state.h"
#include "core/launch_state.h"
#include "core/layout_numbers.h"
#include "core/list_state.h"
#include "core/program_files.h"
#include "core/program_state.h"
#include "core/window_looks.h"
#include "forms/controls.h"
#include "forms/directory_controls.h"
#include "forms/form.h"
#include "forms/list_control.h"

namespace kivu::core {

// The caption of the drives panel's handle, and the sign that it shows.
inline constexpr const char* unfoldedHandle = "          ";
inline constexpr const char* foldSign = "<";

// The reusable scanner's inner controls; library/FileScanRecursive drives them.
struct FileScanControls {
    explicit FileScanControls(forms::Container* parent);
    forms::Frame frame;
    forms::ListBox ResultList;
    forms::ListBox TmpDirList;
    forms::FileListBox MyTmpFile;
    forms::DirListBox MyTmpDir;
};

// The window's title, and what is said to the user in its place. It goes at the end of a game;
// whatever is written into it next brings it back, the same text too.
struct TitleLine final : forms::Label {
    using Label::Label;
    void SetCaption(std::string value) override;
};

// The main window: its controls, and by inheritance the groups of fields that its routines share; a
// routine that needs one group takes that. Design values are set here; what happens on an event is
// joined in wiring/.
struct Form1 : forms::Form,
               ProgramFiles,
               ProgramState,
               ListState,
               JoystickState,
               LaunchState,
               WindowLooks,
               LayoutNumbers {
    explicit Form1(forms::Toolkit toolkit);

    // Behind the lists: what the window is busy with, and the running emulator.
    forms::Label LoadingBtn{this, "LoadingBtn"};
    forms::Label Current_LoadingSmallBtn{this, "Current_LoadingSmallBtn"};
    forms::Image AppRunningPicture{this, "AppRunningPicture"};
    TitleLine MyCaptionLabel{this, "MyCaptionLabel"};

    // The emulator choice: the same rows in a drop-down and in a long list.
    forms::ComboBox EmuListbox{this, "EmuListbox", forms::ListControl::Order::sorted};
    forms::ListBox EmulatorLongListbox{this, "EmulatorLongListbox",
                                       forms::ListControl::Order::sorted};

    // The game lists. Row i of UAE_Short is the display name of the path in row i of UAE_FULL.
    forms::ListBox FavoritenListe{this, "FavoritenListe", forms::ListControl::Order::asAdded};
    forms::ListBox WIthoutDoubles{this, "WIthoutDoubles", forms::ListControl::Order::asAdded};
    forms::ListBox UAE_Short{this, "UAE_Short", forms::ListControl::Order::asAdded};
    forms::ListBox SuchErgList{this, "SuchErgList", forms::ListControl::Order::sorted};
    forms::ListBox UAE_FULL{this, "UAE_FULL", forms::ListControl::Order::sorted};
    forms::ListBox FavoritenListeGlobal{this, "FavoritenListeGlobal",
                                        forms::ListControl::Order::asAdded};
    forms::ListBox GlobalSearchList{this, "GlobalSearchList", forms::ListControl::Order::sorted};

    // The Tab key comes to them right after the list whose game they take.
    forms::CommandButton AddToFavorit{this, "AddToFavorit"};
    forms::CommandButton AddToFavorit_Global{this, "AddToFavorit_Global"};
    forms::CommandButton DeLFav{this, "DeLFav"};

    // Their tabs, in the same order.
    forms::Label Label1{this, "Label1"};
    forms::Label Label2{this, "Label2"};
    forms::Label Label3{this, "Label3"};
    forms::Label Label4{this, "Label4"};

    forms::Frame VorschauBild{this, "VorschauBild"};
    forms::PictureBox GamePicture{&VorschauBild, "GamePicture"};
    forms::Image GamePictureVis{&VorschauBild, "GamePictureVis"};

    forms::Frame SettingsFrame{this, "SettingsFrame"};
    forms::Label Current_ProgramNameFull{&SettingsFrame, "Current_ProgramNameFull"};
    forms::TextBox SearchDblsTxt{&SettingsFrame, "SearchDblsTxt"};
    forms::Image SuchErg{&SettingsFrame, "SuchErg"};
    forms::CommandButton SearchAllBtn{&SettingsFrame, "SearchAllBtn"};
    forms::CommandButton LoadBtn{&SettingsFrame, "LoadBtn"};
    forms::CommandButton SettingsBtn{&SettingsFrame, "SettingsBtn"};
    forms::CommandButton SettingsShortBtn{&SettingsFrame, "SettingsShortBtn"};
    forms::CommandButton DonateBtn{&SettingsFrame, "DonateBtn"};
    forms::CommandButton ExitBtn{&SettingsFrame, "ExitBtn"};
    forms::ComboBox FontSizeCombo{&SettingsFrame, "FontSizeCombo"};
    forms::Image JoystickIcon{&SettingsFrame, "JoystickIcon"};
    forms::Frame AlwaysOnTop1{&SettingsFrame, "AlwaysOnTop1"};
    forms::Image AOT_Enabled{&AlwaysOnTop1, "AOT_Enabled"};
    forms::Image AOT_Disabled{&AlwaysOnTop1, "AOT_Disabled"};
    forms::Image AOT_MouseMove{&AlwaysOnTop1, "AOT_MouseMove"};

    // The drives panel.
    forms::PictureBox SettingsSubPicture{this, "SettingsSubPicture"};
    forms::Frame Frame2{&SettingsSubPicture, "Frame2"};
    std::array<forms::CheckBox, 5> Check_Dfx{{{&Frame2, "Check_Dfx", 0},
                                              {&Frame2, "Check_Dfx", 1},
                                              {&Frame2, "Check_Dfx", 2},
                                              {&Frame2, "Check_Dfx", 3},
                                              {&Frame2, "Check_Dfx", 4}}};
    forms::Label DrivesResizeLabel{&SettingsSubPicture, "DrivesResizeLabel"};

    // The top right corner.
    forms::PictureBox TopRightPic{this, "TopRightPic"};
    forms::Label TimeString{&TopRightPic, "TimeString"};
    forms::Label TitleStr{&TopRightPic, "TitleStr"};
    forms::Label NormalMaxCapt{&TopRightPic, "NormalMaxCapt"};

    // Never shown: they carry values.
    forms::Frame Frame1{this, "Frame1"};
    forms::TextBox txtWinUAEExe{&Frame1, "txtWinUAEExe"};
    forms::TextBox TxtRomPath{&Frame1, "TxtRomPath"};
    forms::TextBox TxtKickstartRomFile{&Frame1, "TxtKickstartRomFile"};
    forms::CheckBox FullscreenCheck{&Frame1, "FullscreenCheck"};
    forms::PictureBox OrgBackGround{&Frame1, "OrgBackGround"};
    forms::PictureBox OrgTopLeft{&Frame1, "OrgTopLeft"};
    FileScanControls FileScanRecursive1{&Frame1};

    forms::Timer Uhrzeit{this, "Uhrzeit", 1000, true};
    forms::Timer EmuActiveTimer{this, "EmuActiveTimer", 1000, false};
    forms::Timer JoystickTimer{this, "JoystickTimer", 140, false};
    // The controller's, too: in a game that its exit button ends, and while a box is open.
    forms::Timer ExitButtonTimer{this, "ExitButtonTimer", 250, false};
    forms::Timer BoxButtonTimer{this, "BoxButtonTimer", 140, false};
    // How long an old picture stands for one that is on its way.
    forms::Timer PreviewTimer{this, "PreviewTimer", 150, false};

    // A game has been started and is watched, or an emulator alone is seen running. A start by the
    // controller that has led to no game leaves GameIsRunning raised.
    bool EmulatorRuns() const {
        return (GameIsRunning && EmuActiveTimer.Enabled()) || AppRunningPicture.Visible();
    }
    // The choice of emulators is in front, with no search and no favourites over it.
    bool ChoiceInFront() const;
    // The search box with what belongs to it.
    void ShowSearchBox(bool show);
    // A game that is selected can be made a favourite.
    void OfferFavourites();
    // Beside the tabs; over its list the open choice is as wide as that.
    int EmuListboxWidth() const;

 private:
    void DesignColors();
    void DesignWindow();
    void DesignLists();
    void DesignFrame();
    void DesignDrives();
    void DesignCorner();
};

}  // namespace kivu::core
