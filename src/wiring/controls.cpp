// Which routine each event of each control runs.

#include "wiring/routines.h"

namespace kivu::wiring {

void Launcher::Routines::JoinControls() {
    JoinWindow();
    JoinLists();
    JoinButtons();
}

void Launcher::Routines::JoinWindow() {
    form.onResize = [this] { layout.Form_Resize(); };
    form.onPreviewKeyDown = [this](forms::Key& key) { windowKeys.Form_KeyDown(key); };
    form.onPreviewKeyPress = [this](forms::Character& key) { windowKeys.Form_KeyPress(key); };
    form.onQueryClose = [this](bool& cancel) { windowKeys.Form_QueryClose(cancel); };
    form.onClick = [this] { surface.Form_Click(); };
    form.onDblClick = [this] { surface.Form_DblClick(); };
    form.onMouseMove = [this](const forms::Mouse&) { alwaysOnTop.MouseLeft(); };
    form.SettingsFrame.onMouseMove = form.onMouseMove;

    form.Uhrzeit.onTimer = [this] { startUp.Uhrzeit_Timer(); };
    // The end of a game would bring lists back that a switch or a rescan is filling.
    form.EmuActiveTimer.onTimer = [this] {
        if (!form.Busy) watch.EmuActiveTimer_Timer();
    };

    const auto drag = [this](const forms::Mouse& mouse) { surface.Surface_MouseDown(mouse); };
    form.onMouseDown = drag;
    form.MyCaptionLabel.onMouseDown = drag;
    form.Current_LoadingSmallBtn.onMouseDown = drag;
    form.TopRightPic.onMouseDown = drag;
    form.TimeString.onMouseDown = drag;
    form.SettingsFrame.onMouseDown = drag;
    form.TopRightPic.onDblClick = [this] { surface.Form_DblClick(); };
    form.TimeString.onDblClick = [this] { surface.Form_DblClick(); };

    form.MyCaptionLabel.onDblClick = [this] { surface.MyCaptionLabel_DblClick(); };
    form.NormalMaxCapt.onClick = [this] { surface.NormalMaxCapt_Click(); };
    form.LoadingBtn.onClick = [this] { watch.LoadingBtn_Click(); };
    form.LoadingBtn.onChange = [this] { watch.LoadingBtn_Change(); };
    form.AppRunningPicture.onClick = [this] { watch.AppRunningPicture_Click(); };
    form.Current_ProgramNameFull.onChange = [this] { layout.Current_ProgramNameFull_Change(); };
    form.Current_ProgramNameFull.onFontChange = [this] {
        layout.Current_ProgramNameFull_FontChange();
    };
    form.Current_ProgramNameFull.onDblClick = [this] { LaunchInFront(); };
    form.TxtRomPath.onChange = [this] { hints.Refresh(); };
    form.FileScanRecursive1.frame.onResize = [this] { scanner.UserControl_Resize(); };
}

// By the name at the right, which is that of the marked row's game.
void Launcher::Routines::LaunchInFront() {
    if (markedGame.SelectInFront()) gameLaunch.LaunchBtn_Click();
}

void Launcher::Routines::JoinLists() {
    forms::ComboBox& emulators = form.EmuListbox;
    emulators.onClick = [this] { emulatorBox.EmuListbox_Click(); };
    emulators.onDblClick = [this] { emulatorBox.EmuListbox_DblClick(); };
    emulators.onGotFocus = [this] { emulatorBox.EmuListbox_GotFocus(); };
    emulators.onDropDown = [this] { emulatorBox.EmuListbox_DropDown(); };
    emulators.onLostFocus = [this] { emulatorBox.EmuListbox_LostFocus(); };
    emulators.onKeyDown = [this](forms::Key& key) { emulatorBox.EmuListbox_KeyDown(key); };
    emulators.onKeyPress = [this](forms::Character& key) { emulatorBox.EmuListbox_KeyPress(key); };

    forms::ListBox& longList = form.EmulatorLongListbox;
    longList.onClick = [this] { emulatorBox.EmulatorLongListbox_Click(); };
    longList.onDblClick = [this] { emulatorBox.EmuListbox_DblClick(); };
    longList.onGotFocus = [this] { emulatorBox.EmulatorLongListbox_GotFocus(); };
    longList.onKeyDown = [this](forms::Key& key) { emulatorBox.EmuListbox_KeyDown(key); };
    longList.onKeyPress = [this](forms::Character& key) {
        emulatorBox.EmulatorLongListbox_KeyPress(key);
    };
    longList.onMouseDown = [this](const forms::Mouse& mouse) {
        emulatorBox.EmulatorLongListbox_MouseDown(mouse);
    };

    form.UAE_FULL.onClick = [this] { listEvents.UAE_FULL_Click(); };
    form.UAE_Short.onClick = [this] {
        listEvents.UAE_Short_Click();
        markedGame.ShowName();
    };
    form.UAE_Short.onDblClick = [this] { listEvents.UAE_Short_DblClick(); };
    form.UAE_Short.onGotFocus = [this] { listEvents.UAE_Short_GotFocus(); };
    form.UAE_Short.onLostFocus = [this] { listEvents.UAE_Short_LostFocus(); };
    form.UAE_Short.onKeyPress = [this](forms::Character& key) {
        listEvents.UAE_Short_KeyPress(key);
    };

    form.WIthoutDoubles.onClick = [this] {
        listEvents.WIthoutDoubles_Click();
        markedGame.ShowName();
    };
    form.WIthoutDoubles.onDblClick = [this] { listEvents.WIthoutDoubles_DblClick(); };
    form.WIthoutDoubles.onGotFocus = [this] { listEvents.WIthoutDoubles_GotFocus(); };
    form.WIthoutDoubles.onLostFocus = [this] { listEvents.WIthoutDoubles_LostFocus(); };
    form.WIthoutDoubles.onKeyPress = [this](forms::Character& key) {
        listEvents.WIthoutDoubles_KeyPress(key);
    };

    form.FavoritenListe.onGotFocus = [this] { listEvents.FavoritenListe_GotFocus(); };
    form.FavoritenListe.onLostFocus = [this] { listEvents.FavoritenListe_LostFocus(); };

    for (forms::Label* tab : {&form.Label1, &form.Label2, &form.Label3, &form.Label4}) {
        tab->onResize = [this] { layout.PlaceTabs(); };
        tab->onChange = tab->onResize;
    }
    form.Label1.onClick = [this] { listEvents.Label1_Click(); };
    // While the search box has the focus, the tabs show over the open list of emulators.
    const auto closeChoice = [this] {
        if (emulatorBox.ChoiceIsOpen()) emulatorBox.LeaveEmulatorBox();
    };
    form.Label2.onClick = [this, closeChoice] { closeChoice(), listEvents.Label2_Click(); };
    form.Label3.onClick = [this, closeChoice] { closeChoice(), listEvents.Label3_Click(); };
    form.Label4.onClick = [this, closeChoice] { closeChoice(), listEvents.Label4_Click(); };
}

void Launcher::Routines::JoinButtons() {
    form.ExitBtn.onClick = [this] { shutDown.ExitBtn_Click(); };
    form.FontSizeCombo.onClick = [this] { fontSize.FontSizeCombo_Click(); };
    form.LoadBtn.onClick = [this] {
        gameLists.LoadBtn_Click();
        // The button was off meanwhile and has lost the focus; the fresh list takes it.
        if (!form.Focus()) form.UAE_Short.SetFocus();
    };
    form.DrivesResizeLabel.onClick = [this] { layout.DrivesResizeLabel_Click(); };
    form.SettingsSubPicture.onResize = [this] { layout.SettingsSubPicture_Resize(); };
    form.AOT_Enabled.onClick = [this] { alwaysOnTop.AOT_Enabled_Click(); };
    form.AOT_Disabled.onClick = [this] { alwaysOnTop.AOT_Disabled_Click(); };
    form.AOT_MouseMove.onClick = [this] { alwaysOnTop.AOT_MouseMove_Click(); };
    form.AOT_Disabled.onMouseMove = [this](const forms::Mouse&) {
        alwaysOnTop.AOT_Disabled_MouseMove();
    };
    form.AlwaysOnTop1.onMouseLeave = [this] { alwaysOnTop.MouseLeft(); };
    // Nothing opens them yet.
    form.SettingsBtn.SetEnabled(false);
    form.SettingsShortBtn.SetEnabled(false);
}

}  // namespace kivu::wiring
