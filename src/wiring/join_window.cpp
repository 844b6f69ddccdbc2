// The main window: its start and end, its surface, its keys, its pin and its sizes.

#include "wiring/routines.h"

namespace kivu::wiring {

void Launcher::Routines::JoinWindow() {
    startUp.ports.choice = emulatorBox;
    // A second start hands over to the first, which comes to the front.
    startUp.hooks.PreviousInstance = [this] { return handedFile.HandOver(); };
    startUp.hooks.KeepDesignPictures = [this] { skins.KeepDesignPictures(); };
    startUp.hooks.DressWindow = [this] { emulatorSwitch.DressWindow(); };
    settingsLoader.ports.layout = layout;
    // An emulator brings its skin's colours with its settings.
    settingsLoader.hooks.SetColors = [this] { windowColors.SetColors(form, -1, -1); };
    shutDown.ports.layout = layout;
    shutDown.hooks.DrivesAreOf = [this](const std::string& profile) {
        return settingsLoader.DrivesAreOf(profile);
    };
    windowKeys.ports.watch = watch;
    windowKeys.ports.loading = windowsBeside.loading;
    windowKeys.hooks.BoxIsOpen = [this] { return windows.Questions() > 0; };
    windowKeys.hooks.JoystickDirection = [this](int key) { navigation.JoystickDirection(key); };
    windowKeys.hooks.TogglePictureZoom = [this] { previews.ToggleZoom(); };

    form.onResize = [this] { layout.Form_Resize(); };
    form.VorschauBild.onResize = [this] { layout.VorschauBild_Resize(); };
    form.onPreviewKeyDown = [this](forms::Key& key) { windowKeys.Form_KeyDown(key); };
    form.onPreviewKeyPress = [this](forms::Character& key) { windowKeys.Form_KeyPress(key); };
    form.onQueryClose = [this](bool& cancel) { windowKeys.Form_QueryClose(cancel); };
    form.Uhrzeit.onTimer = [this] { startUp.Uhrzeit_Timer(); };
    // The picture of an emulator in the open choice opens it; any other is zoomed.
    previews.hooks.StartEmulator = [this](const std::string& name, bool ask) {
        emulatorSetup.StartEmulator(name, ask);
    };
    form.GamePictureVis.onClick = [this] { previews.GamePictureVis_Click(); };
    form.GamePictureVis.onMouseDown = [this](const forms::Mouse&) {
        previews.GamePictureVis_MouseDown();
    };
    form.GamePicture.onClick = [this] { previews.GamePicture_Click(); };
    form.PreviewTimer.onTimer = [this] { previews.PreviewTimer_Timer(); };
    form.ExitBtn.onClick = [this] { shutDown.ExitBtn_Click(); };

    const auto drag = [this](const forms::Mouse& mouse) { surface.Surface_MouseDown(mouse); };
    // The window's surface, and what shows something on it and has no other use.
    for (forms::Control* control : {static_cast<forms::Control*>(&form),
                                    static_cast<forms::Control*>(&form.Current_LoadingSmallBtn),
                                    static_cast<forms::Control*>(&form.TopRightPic),
                                    static_cast<forms::Control*>(&form.TimeString),
                                    static_cast<forms::Control*>(&form.SettingsFrame)}) {
        control->onMouseDown = drag;
        control->onClick = [this] { surface.Form_Click(); };
        control->onDblClick = [this] { surface.Form_DblClick(); };
    }
    form.MyCaptionLabel.onMouseDown = drag;
    form.TitleStr.onClick = [this] { links.ShowHomePage(); };
    form.DonateBtn.onClick = [this] { links.Donate(); };
    form.MyCaptionLabel.onChange = [this] { hints.MyCaptionLabel_Change(); };
    form.MyCaptionLabel.onDblClick = [this] { surface.MyCaptionLabel_DblClick(); };
    form.NormalMaxCapt.onClick = [this] { surface.NormalMaxCapt_Click(); };

    form.onMouseMove = [this](const forms::Mouse&) { alwaysOnTop.MouseLeft(); };
    form.SettingsFrame.onMouseMove = form.onMouseMove;
    form.AlwaysOnTop1.onMouseLeave = [this] { alwaysOnTop.MouseLeft(); };
    form.AOT_Enabled.onClick = [this] { alwaysOnTop.AOT_Enabled_Click(); };
    form.AOT_Disabled.onClick = [this] { alwaysOnTop.AOT_Disabled_Click(); };
    form.AOT_MouseMove.onClick = [this] { alwaysOnTop.AOT_MouseMove_Click(); };
    form.AOT_Disabled.onMouseMove = [this](const forms::Mouse&) {
        alwaysOnTop.AOT_Disabled_MouseMove();
    };

    form.FontSizeCombo.onClick = [this] { fontSize.FontSizeCombo_Click(); };
    form.Current_ProgramNameFull.onChange = [this] { layout.Current_ProgramNameFull_Change(); };
    form.Current_ProgramNameFull.onFontChange = [this] {
        layout.Current_ProgramNameFull_FontChange();
    };
    for (forms::Label* tab : {&form.Label1, &form.Label2, &form.Label3, &form.Label4}) {
        tab->onResize = [this] { layout.PlaceTabs(); };
        tab->onChange = tab->onResize;
    }
}

}  // namespace kivu::wiring
