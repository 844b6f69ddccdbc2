#pragma once

#include <array>
#include <string>

#include "forms/controls.h"
#include "forms/directory_controls.h"
#include "forms/form.h"
#include "forms/list_control.h"

namespace kivu::core {

inline constexpr const char* defaultTitle = "Kivu 1.4b";
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

// The main window: its controls and the fields that its routines share. Design values are set here;
// what happens on an event is joined in wiring/.
struct Form1 : forms::Form {
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

    // Where the program lies, with a closing separator, and the base name of its file.
    std::string AppDir;
    std::string EXE;

    // Files of the program and of the emulator of the moment.
    std::string ConfigPath, StartPfad, IniPath, BaseIniName, ColorsIniName, FavoritenIni,
        FavoritenGlobalIni, VBSFilename, CacheName, GlobalListName, TmpBatName, StartScriptName,
        MasterConfigName;

    // Which list or control is in front: 1 favourites, 2 simple, 3 complete, 4 search results, 5
    // emulator list open, 7 search box focused, 10 long emulator list focused.
    std::string ListMode = "2";
    int CurrentLanguage = 1;     // 1 German, 2 English
    int CurrentEmuIndex = -1;    // row of the emulator whose data is loaded
    int EmuBoxIndexSaved = -1;   // row to go back to when the long list closes
    bool ListsVisible = true;    // what HideAll was last told
    bool EmuListLocked = false;  // SelectEmulator does nothing
    bool Busy = false;           // a switch, a rescan or a launch is under way
    bool WindowReady = false;    // the Load event is through
    bool Ended = false;          // the program has ended; whoever called stops

    forms::Color FavouritesColor = 0;    // back colour of FavoritenListe
    forms::Color EmulatorListColor = 0;  // back colour of EmulatorLongListbox
    // The drop-down's own colours while the choice is open.
    forms::Color EmuListboxBackColor = 0;
    forms::Color EmuListboxForeColor = 0;
    forms::Color FormBackColor = forms::Rgb(0x00, 0x52, 0xbc);
    forms::Color FormForeColor = forms::Rgb(0xff, 0xff, 0xff);
    std::string TitleString = defaultTitle;
    std::string DownloadURL;

    // List that arrow keys and joystick drive: 1 FavoritenListe, 2 WIthoutDoubles, 3 UAE_Short,
    // 4 SuchErgList, 5 EmuListbox.
    int JoystickFocus = 2;
    bool EmuListBrowsing = false;
    std::array<int, 13> JoystickButtons{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
    int ExitButtonAction = 0;

    bool ShortListHasFocus = false, DoublesListHasFocus = false, DoublesListBusy = false;
    bool FavouritesListBusy = false;

    // The running launch.
    std::string CurrentRunninApplication;
    std::string CURRENT_PROGRAM_STARTED;  // lines split by CR
    int StartGraceTicks = 0;
    int SplashSeconds = 0;
    bool GameIsRunning = false;
    std::array<std::string, 6> DiskSlots;

    // Layout numbers in twips, made anew at each resize.
    int ListLeft = 0, ListWidth = 0, Col2Left = 0, Col2Width = 0, Col3Left = 0, Col3Width = 0,
        ListHeight = 0, DriveBoxHeight = 0;
    int ThirdWidth = 0, QuarterWidth = 0, HalfWidth = 0;

    const std::string& GetStartPfad() const { return StartPfad; }
    const std::string& GetIniPath() const { return IniPath; }
    const std::string& getBaseIniName() const { return BaseIniName; }
    const std::string& GetFavortitenIni() const { return FavoritenIni; }
    const std::string& GetColorsIniName() const { return ColorsIniName; }
    const std::string& GetVBSFilename() const { return VBSFilename; }
    int Get_Current_Language() const { return CurrentLanguage; }

    // ListMode as the number that it spells.
    int Mode() const;
    // A game has been started, or an emulator alone is seen running.
    bool EmulatorRuns() const { return GameIsRunning || AppRunningPicture.Visible(); }
    // The choice of emulators is in front, with no search and no favourites over it.
    bool ChoiceInFront() const;
    // One of the two wordings of a message.
    const char* Say(const char* german, const char* english) const {
        return CurrentLanguage == 1 ? german : english;
    }
    // The search box with what belongs to it.
    void ShowSearchBox(bool show);
    // The program's directory as path routines want it: without a closing separator.
    std::string BaseDirectory() const;

 private:
    void DesignWindow();
    void DesignLists();
    void DesignFrame();
    void DesignDrives();
    void DesignCorner();
};

}  // namespace kivu::core
