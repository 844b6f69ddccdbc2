#pragma once

#include <array>
#include <string>

#include "forms/controls.h"
#include "forms/form.h"
#include "forms/list_control.h"
#include "ui/color_select.h"

namespace kivu::settings {

// The settings window: its controls, its design and its own fields. Unsaved changes are nothing but
// the enabled state of SaveBtn.
struct SettingsForm : forms::Form {
    SettingsForm(forms::Toolkit toolkit, int language);

    // Which of the four signs stands beside which field.
    enum Fault { faultyEmulator, faultyRomPath, faultyKickstart, faultyDeamon };

    forms::PictureBox BackgroundFrame{this, "BackgroundFrame"};
    // Around what belongs together.
    forms::Frame EmulatorGroup{this, "EmulatorGroup"};
    forms::Frame StartGroup{this, "StartGroup"};
    forms::Frame ProgramGroup{this, "ProgramGroup"};
    forms::Label TitleLabel{this, "TitleLabel"};
    forms::Frame AlwaysOnTop1{this, "AlwaysOnTop1"};
    forms::Image AOT_Enabled{&AlwaysOnTop1, "AOT_Enabled"};
    forms::Image AOT_Disabled{&AlwaysOnTop1, "AOT_Disabled"};
    forms::Image AOT_MouseMove{&AlwaysOnTop1, "AOT_MouseMove"};

    // What follows stands in the order of the Tab key, each panel behind the button that opens it.

    // The emulator and its games.
    forms::Label EmuNameLabel{this, "EmuNameLabel"};
    forms::CommandButton NewEmuBtn{this, "NewEmuBtn"};
    forms::Label Label1{this, "Label1"};
    forms::TextBox txtWinUAEExe{this, "txtWinUAEExe"};
    forms::CommandButton Command2{this, "Command2"};
    forms::CommandButton LaunchButton{this, "LaunchButton"};
    forms::Label KnownEmuLabel{this, "KnownEmuLabel"};
    forms::ComboBox KnownEmuCombo{this, "KnownEmuCombo"};
    forms::Label EmuDownload{this, "EmuDownload"};
    forms::CommandButton WinUAEBtn{this, "WinUAEBtn"};

    forms::Frame UAEFrame{this, "UAEFrame"};
    forms::CheckBox UseMasterConfig{&UAEFrame, "UseMasterConfig"};
    forms::TextBox TxtMasterConfig{&UAEFrame, "TxtMasterConfig"};
    forms::Label Label6{&UAEFrame, "Label6"};
    forms::TextBox UAEMasterConfigLaunchParameter{&UAEFrame, "UAEMasterConfigLaunchParameter"};
    forms::CommandButton Command1{&UAEFrame, "Command1"};
    forms::CommandButton Command3{&UAEFrame, "Command3"};
    forms::CheckBox FullscreenCheck{&UAEFrame, "FullscreenCheck"};
    forms::CheckBox IntelligenteRomauswahl{&UAEFrame, "IntelligenteRomauswahl"};
    forms::Label Label4{&UAEFrame, "Label4"};
    forms::TextBox TxtKickstartRomFile{&UAEFrame, "TxtKickstartRomFile"};
    forms::CommandButton BrowseKickromBtn{&UAEFrame, "BrowseKickromBtn"};
    forms::Image RemovePicEnabled{&UAEFrame, "RemovePicEnabled"};

    forms::Label Label2{this, "Label2"};
    forms::TextBox TxtRomPath{this, "TxtRomPath"};
    forms::CommandButton BrowseDir{this, "BrowseDir"};
    forms::CommandButton LoadBtn{this, "LoadBtn"};
    forms::Label ErwLabel{this, "ErwLabel"};
    forms::TextBox DirBefehleTxt{this, "DirBefehleTxt"};
    forms::CommandButton ReloadAllBtn{this, "ReloadAllBtn"};

    // How a game is started. The two frames lie side by side, each with its first box at the same
    // place inside.
    forms::Label Label3{this, "Label3"};
    forms::TextBox UAELaunchParaneter{this, "UAELaunchParaneter"};
    forms::Frame ParameterFrame{this, "ParameterFrame"};
    forms::CheckBox UAELaunchParameterAddPath{&ParameterFrame, "UAELaunchParameterAddPath"};
    forms::CheckBox UseAnfz{&ParameterFrame, "UseAnfz"};
    forms::CheckBox ParameterWithoutPath{&ParameterFrame, "ParameterWithoutPath"};
    forms::Frame ScriptFrame{this, "ScriptFrame"};
    forms::CheckBox DeMulAutostart{&ScriptFrame, "DeMulAutostart"};
    forms::CommandButton OpenVBS{&ScriptFrame, "OpenVBS"};
    forms::CheckBox AutoMoundDeamonTools{this, "AutoMoundDeamonTools"};
    forms::CommandButton DeamonButton{this, "DeamonButton"};

    forms::Frame DeamonFrame{this, "DeamonFrame"};
    forms::Label Label14{&DeamonFrame, "Label14"};
    forms::TextBox DeamonPath{&DeamonFrame, "DeamonPath"};
    forms::CommandButton Command4{&DeamonFrame, "Command4"};
    forms::Label DeamonToolsIinfo{&DeamonFrame, "DeamonToolsIinfo"};
    forms::Image Picture2{&DeamonFrame, "Picture2"};

    forms::Label Label11{this, "Label11"};
    forms::TextBox SecondsTimerTxt{this, "SecondsTimerTxt"};

    // Of the program.
    forms::CheckBox Joystickcheck{this, "Joystickcheck"};
    forms::Label KillButtonLabel{this, "KillButtonLabel"};
    forms::ComboBox KillButtonKombo{this, "KillButtonKombo"};
    forms::CommandButton SetJOyBtn{this, "SetJOyBtn"};
    forms::CheckBox ResetScreenRes{this, "ResetScreenRes"};
    forms::Label ResetScreenHint{this, "ResetScreenHint"};
    forms::ComboBox FontSizeCombo{this, "FontSizeCombo"};
    forms::CommandButton Command5{this, "Command5"};

    forms::Frame DarstellungFrame{this, "DarstellungFrame"};
    forms::Label Label9{&DarstellungFrame, "Label9"};
    ui::ColorSelectControls ColorSelect1{&DarstellungFrame};
    forms::Label Label12{&DarstellungFrame, "Label12"};
    forms::Image Picture1{&DarstellungFrame, "Picture1"};

    forms::CheckBox FensterRahmChk{this, "FensterRahmChk"};
    forms::Label FavoritenReparierenLabel{this, "FavoritenReparierenLabel"};
    forms::CommandButton IniBtn{this, "IniBtn"};
    forms::Label Label7{this, "Label7"};
    forms::Label Label5{this, "Label5"};
    forms::CommandButton DonateBtn{this, "DonateBtn"};
    forms::CommandButton SaveBtn{this, "SaveBtn"};
    forms::CommandButton ExitBtn{this, "ExitBtn"};

    // Beside the fields, by Fault.
    std::array<forms::Image, 4> FehlerIcon{{{this, "FehlerIcon", faultyEmulator},
                                            {this, "FehlerIcon", faultyRomPath},
                                            {&UAEFrame, "FehlerIcon", faultyKickstart},
                                            {&DeamonFrame, "FehlerIcon", faultyDeamon}}};

    const int Language;             // 1: German
    std::string IniPath;            // the emulator's profile
    std::string ColorsIniName;      // that of its colours
    std::string StartPfad;          // the emulator's directory, with a closing separator
    std::string ExeAtFocus;         // txtWinUAEExe's text when it got the focus
    bool MainSettingsOnly = false;  // the reduced shape
    bool Loading = false;           // the handlers run for values that are being read

    bool IsGerman() const { return Language == 1; }
    void MarkUnsaved() { SaveBtn.SetEnabled(true); }
    bool HasOpenPanel() const {
        return DeamonFrame.Visible() || UAEFrame.Visible() || DarstellungFrame.Visible();
    }
    // Before it is shown: True hides what belongs to an emulator, and brings what is left together.
    void ShowMainSettingsOnly(bool showIt);
    // Opens the panel in front of the others, or closes it.
    void TogglePanel(forms::Frame& panel);

    // Where the panels stand, the window's picture, and the start script's box: in the scale of the
    // look that the window has taken, before or after.
    void PlacePanels();
    void PlaceBackground();
    void PlaceScriptBox();

 private:
    void Design();
    void DesignState();
    void DesignPictures();
    void NameInGerman();
    void NameInEnglish();
    void Hint(forms::Control& control, const char* german, const char* english);
    void GiveHints();
    void HintAtEmulator();
    void HintAtWinUAE();
    void HintAtStart();
    void HintAtProgram();

    // Pixels of the design.
    void Place(forms::Control& control, int left, int top, int width, int height) const;
    void PlaceAll();
    void PlaceEmulator();
    void PlaceStart();
    void PlaceProgram();
    void PlaceWinUAEPanel();
    void PlaceDeamonPanel();
    void PlaceColorPanel();
    void PlaceMainSettings();
};

}  // namespace kivu::settings
