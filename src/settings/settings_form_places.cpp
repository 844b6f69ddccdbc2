// Where the settings window's controls stand, in pixels of a window whose text has 10 points. A
// look scales them with the text.

#include <cmath>

#include "settings/settings_form.h"

namespace kivu::settings {

namespace {

constexpr double designPoints = 10;
// A screen of four to three holds it in the largest text.
constexpr int wide = 808, high = 606, margin = 20;
// Inside the groups: labels, what they name, buttons in a column of their own at the right edge.
constexpr int edge = margin + 12, field = 204, right = wide - margin - 12;
constexpr int actions = 610, actionWidth = right - actions;
// Buttons that browse stand in front of it, behind the sign of a fault.
constexpr int browseWidth = 36, browse = actions - 8 - browseWidth;
constexpr int signSize = 22, sign = browse - 6 - signSize, fieldEnd = sign - 6;
constexpr int row = 28, labelHeight = 20, inRow = 6;
constexpr int emulatorTop = 40, startTop = 274, programTop = 432, footTop = high - 42;
// The second column of the groups below.
constexpr int second = 320;

constexpr int panelEdge = 12, crossSize = 22;
constexpr int uaeLeft = 176, uaeTop = 112, uaeWidth = 426, uaeHeight = 440;
constexpr int deamonLeft = 88, deamonTop = 96, deamonWidth = 514, deamonHeight = 134;
constexpr int colorLeft = 296, colorTop = 72;
constexpr int colorWidth = ui::ColorSelectControls::width / forms::twipsPerPixel + 2 * panelEdge;
constexpr int pickerHeight = ui::ColorSelectControls::height / forms::twipsPerPixel;
constexpr int colorHeight = pickerHeight + 78;

// Of the reduced shape.
constexpr int mainWidth = 456, mainHeight = 292, mainEdge = 5;
constexpr int panelRow = deamonTop + mainEdge;  // the row below the panel

}  // namespace

void SettingsForm::Place(forms::Control& control, int x, int y, int width, int height) const {
    const double scale = forms::twipsPerPixel * (FontSize() / designPoints);
    // By the edges, so that what touches goes on touching.
    const auto twips = [scale](int pixels) { return static_cast<int>(std::floor(pixels * scale)); };
    control.Move(twips(x), twips(y), twips(x + width) - twips(x), twips(y + height) - twips(y));
}

void SettingsForm::PlaceAll() {
    SetFont({"", designPoints, false});
    Place(*this, 0, 0, wide, high);
    PlaceEmulator();
    PlaceStart();
    PlaceProgram();
    PlacePanels();
    PlaceWinUAEPanel();
    PlaceDeamonPanel();
    PlaceColorPanel();
    PlaceScriptBox();
    PlaceBackground();
}

void SettingsForm::PlaceEmulator() {
    Place(TitleLabel, margin, 12, wide - 2 * margin - 40, 24);
    TitleLabel.SetFont({"", 11, true});
    Place(AlwaysOnTop1, wide - margin - 28, 8, 28, 28);
    for (forms::Image* pin : {&AOT_Enabled, &AOT_Disabled, &AOT_MouseMove})
        Place(*pin, 0, 0, 28, 28);

    Place(EmulatorGroup, margin, emulatorTop, wide - 2 * margin, startTop - emulatorTop - 6);
    constexpr int top = emulatorTop + 20;
    Place(EmuNameLabel, edge, top + 2, fieldEnd - edge, 25);
    EmuNameLabel.SetFont({"", 13, true});
    Place(NewEmuBtn, actions, top, actionWidth, row);

    Place(Label1, edge, top + 32, actions - 8 - edge, labelHeight);
    Place(txtWinUAEExe, edge, top + 52, fieldEnd - edge, row);
    Place(FehlerIcon[faultyEmulator], sign, top + 55, signSize, signSize);
    Place(Command2, browse, top + 52, browseWidth, row);
    Place(LaunchButton, actions, top + 52, actionWidth, row);

    Place(KnownEmuLabel, edge, top + 86 + inRow, field - edge - 4, labelHeight);
    Place(KnownEmuCombo, field, top + 86, 236, row);
    Place(EmuDownload, field + 244, top + 86 + inRow, actions - 8 - field - 244, labelHeight);
    Place(WinUAEBtn, actions, top + 86, actionWidth, row);

    Place(Label2, edge, top + 118, actions - 8 - edge, labelHeight);
    Place(TxtRomPath, edge, top + 138, fieldEnd - edge, row);
    Place(FehlerIcon[faultyRomPath], sign, top + 141, signSize, signSize);
    Place(BrowseDir, browse, top + 138, browseWidth, row);
    Place(LoadBtn, actions, top + 138, actionWidth, row);

    Place(ErwLabel, edge, top + 172 + inRow, field - edge - 4, labelHeight);
    Place(DirBefehleTxt, field, top + 172, browse + browseWidth - field, row);
    Place(ReloadAllBtn, actions, top + 172, actionWidth, row);
}

void SettingsForm::PlaceStart() {
    Place(StartGroup, margin, startTop, wide - 2 * margin, programTop - startTop - 6);
    constexpr int top = startTop + 20;
    Place(Label3, edge, top + inRow, field - edge - 4, labelHeight);
    Place(UAELaunchParaneter, field, top, right - field, row);

    constexpr int boxes = top + 34, step = 31;
    Place(ParameterFrame, edge, boxes, second - 8 - edge, 2 * step + row);
    Place(UAELaunchParameterAddPath, 0, 0, second - 8 - edge, row);
    Place(UseAnfz, 0, step, second - 8 - edge, row);
    Place(ParameterWithoutPath, 0, 2 * step, second - 8 - edge, row);

    Place(ScriptFrame, second, boxes, right - second, row);
    Place(OpenVBS, actions - second, 0, actionWidth, row);
    Place(AutoMoundDeamonTools, second, boxes + step, actions - 8 - second, row);
    Place(DeamonButton, actions, boxes + step, actionWidth, row);
    Place(Label11, second, boxes + 2 * step + inRow, actions - 8 - second, labelHeight);
    Place(SecondsTimerTxt, actions, boxes + 2 * step, 64, row);
}

void SettingsForm::PlaceScriptBox() {
    DeMulAutostart.Move(UAELaunchParameterAddPath.Left(), UAELaunchParameterAddPath.Top(),
                        UAELaunchParameterAddPath.Width(), UAELaunchParameterAddPath.Height());
    OpenVBS.SetTop(DeMulAutostart.Top());
    // A pixel's part may have been lost in each of its frame's place and its own.
    OpenVBS.SetLeft(DeamonButton.Left() - ScriptFrame.Left());
}

void SettingsForm::PlaceProgram() {
    Place(ProgramGroup, margin, programTop, wide - 2 * margin, footTop - 8 - programTop);
    constexpr int top = programTop + 20, step = 34;
    constexpr int killWidth = 112, sizeWidth = 160, end = browse + browseWidth;
    Place(Joystickcheck, edge, top, second - 8 - edge, row);
    Place(KillButtonLabel, second, top + inRow, end - killWidth - 2 - second, labelHeight);
    Place(KillButtonKombo, end - killWidth, top, killWidth, row);
    Place(SetJOyBtn, actions, top, actionWidth, row);

    Place(ResetScreenRes, edge, top + step, second - 8 - edge, row);
    Place(ResetScreenHint, second, top + step + inRow, end - sizeWidth - 8 - second, labelHeight);
    Place(FontSizeCombo, end - sizeWidth, top + step, sizeWidth, row);
    Place(Command5, actions, top + step, actionWidth, row);

    Place(FensterRahmChk, edge, top + 2 * step, second - 8 - edge, row);
    Place(FavoritenReparierenLabel, second, top + 2 * step + inRow, 150, labelHeight);
    Place(IniBtn, actions, top + 2 * step, actionWidth, row);

    Place(Label7, edge, footTop + inRow, 80, labelHeight);
    Place(Label5, edge + 100, footTop + inRow, 110, labelHeight);
    Place(DonateBtn, second, footTop, 104, row);
    Place(SaveBtn, actions - 8 - actionWidth, footTop, actionWidth, row);
    Place(ExitBtn, actions, footTop, actionWidth, row);
}

void SettingsForm::PlacePanels() {
    Place(UAEFrame, uaeLeft, uaeTop, uaeWidth, uaeHeight);
    Place(DeamonFrame, deamonLeft, deamonTop, MainSettingsOnly ? mainWidth : deamonWidth,
          MainSettingsOnly ? row + 2 * mainEdge : deamonHeight);
    Place(DarstellungFrame, colorLeft, colorTop, colorWidth, colorHeight);
}

// From beyond the edges, which a frame of the system's would cover.
void SettingsForm::PlaceBackground() {
    constexpr int beyond = 4 * forms::twipsPerPixel;
    BackgroundFrame.Move(-beyond, -beyond, Width() + 2 * beyond, Height() + 2 * beyond);
}

void SettingsForm::PlaceWinUAEPanel() {
    constexpr int inner = uaeWidth - 2 * panelEdge, end = uaeWidth - panelEdge;
    constexpr int textHeight = 220, below = 46 + textHeight + 8;
    Place(UseMasterConfig, panelEdge, 10, inner - crossSize - 8, row);
    Place(RemovePicEnabled, end - crossSize, 12, crossSize, crossSize);
    Place(TxtMasterConfig, panelEdge, 46, inner, textHeight);
    Place(Label6, panelEdge, below + inRow, 80, labelHeight);
    Place(UAEMasterConfigLaunchParameter, 96, below, 72, row);
    Place(Command1, 180, below, 132, row);
    Place(Command3, 320, below, end - 320, row);
    Place(FullscreenCheck, panelEdge, below + 34, inner, row);
    Place(IntelligenteRomauswahl, panelEdge, below + 64, inner, row);
    constexpr int kickstart = below + 98, browseLeft = end - browseWidth;
    Place(Label4, panelEdge, kickstart, inner, labelHeight);
    Place(TxtKickstartRomFile, panelEdge, kickstart + 20, browseLeft - 12 - signSize - panelEdge,
          row);
    Place(FehlerIcon[faultyKickstart], browseLeft - 6 - signSize, kickstart + 23, signSize,
          signSize);
    Place(BrowseKickromBtn, browseLeft, kickstart + 20, browseWidth, row);
}

void SettingsForm::PlaceDeamonPanel() {
    constexpr int inner = deamonWidth - 2 * panelEdge, end = deamonWidth - panelEdge;
    constexpr int browseLeft = end - browseWidth, path = 36;
    Place(Label14, panelEdge, 12, inner - crossSize - 8, labelHeight);
    Place(Picture2, end - crossSize, 10, crossSize, crossSize);
    Place(DeamonPath, panelEdge, path, browseLeft - 12 - signSize - panelEdge, row);
    Place(FehlerIcon[faultyDeamon], browseLeft - 6 - signSize, path + 3, signSize, signSize);
    Place(Command4, browseLeft, path, browseWidth, row);
    Place(DeamonToolsIinfo, panelEdge, path + row + 10, inner, 3 * labelHeight - 8);
}

void SettingsForm::PlaceColorPanel() {
    constexpr int inner = colorWidth - 2 * panelEdge, below = 42 + pickerHeight + 6;
    Place(Label9, panelEdge, 12, inner - crossSize - 8, labelHeight);
    Place(Picture1, colorWidth - panelEdge - crossSize, 10, crossSize, crossSize);
    ColorSelect1.frame.SetLeft(panelEdge * forms::twipsPerPixel);
    ColorSelect1.frame.SetTop(42 * forms::twipsPerPixel);
    Place(Label12, panelEdge, below, inner, labelHeight);
}

// One column as wide as the panel that opens in it, which covers one row.
void SettingsForm::PlaceMainSettings() {
    constexpr int end = deamonLeft + mainWidth, button = end - actionWidth;
    const forms::Point corner{Left(), Top()};
    Place(*this, 0, 0, end + deamonLeft, mainHeight);
    Move(corner.x, corner.y, Width(), Height());
    Label1.SetAlignment(forms::Alignment::center);
    Label1.SetFont(TitleLabel.GetFont());
    Place(Label1, margin, 14, end + deamonLeft - 2 * margin, 24);
    Place(Label11, margin, 40, 80, 8);

    Place(DeamonButton, deamonLeft, 56, actionWidth, row);
    Place(Joystickcheck, deamonLeft, panelRow, mainWidth - actionWidth - 8, row);
    Place(SetJOyBtn, button, panelRow, actionWidth, row);
    Place(ResetScreenRes, deamonLeft, panelRow + 46, mainWidth - actionWidth - 8, row);
    Place(FontSizeCombo, button, panelRow + 46, actionWidth, row);

    constexpr int links = panelRow + 92, last = links + 46;
    Place(Label7, deamonLeft, links + inRow, 80, labelHeight);
    Place(Label5, deamonLeft + 100, links + inRow, 110, labelHeight);
    Place(DonateBtn, button, links, actionWidth, row);
    Place(SaveBtn, button - 8 - actionWidth, last, actionWidth, row);
    Place(ExitBtn, button, last, actionWidth, row);

    // Without its label and its hint the panel has one row alone.
    PlacePanels();
    constexpr int cross = mainWidth - panelEdge - crossSize, browseLeft = cross - 8 - browseWidth;
    Place(Picture2, cross, mainEdge + 3, crossSize, crossSize);
    Place(Label14, panelEdge, mainEdge, 80, labelHeight);
    Place(DeamonToolsIinfo, panelEdge, mainEdge + row, 80, labelHeight);
    Place(DeamonPath, panelEdge, mainEdge, browseLeft - 12 - signSize - panelEdge, row);
    Place(FehlerIcon[faultyDeamon], browseLeft - 6 - signSize, mainEdge + 3, signSize, signSize);
    Place(Command4, browseLeft, mainEdge, browseWidth, row);
    PlaceBackground();
}

}  // namespace kivu::settings
