// The main window: its start and end, its surface, its keys, its pin and its sizes.

#include "wiring/routines.h"

namespace kivu::wiring {

void Launcher::Routines::JoinWindow() {
    startUp.ports.choice = emulatorBox;
    startUp.ports.layout = layout;
    // A second start hands over to the first, which comes to the front.
    startUp.hooks.PreviousInstance = [this] { return handedFile.HandOver(); };
    startUp.hooks.KeepDesignPictures = [this] { skins.KeepDesignPictures(); };
    settingsLoader.ports.layout = layout;
    // An emulator brings its skin's colours with its settings.
    settingsLoader.hooks.SetColors = [this] { windowColors.SetColors(form, -1, -1); };
    shutDown.ports.layout = layout;
    windowKeys.ports.watch = watch;
    windowKeys.hooks.JoystickDirection = [this](int key) { navigation.JoystickDirection(key); };

    form.onResize = [this] { layout.Form_Resize(); };
    form.onPreviewKeyDown = [this](forms::Key& key) { windowKeys.Form_KeyDown(key); };
    form.onPreviewKeyPress = [this](forms::Character& key) { windowKeys.Form_KeyPress(key); };
    form.onQueryClose = [this](bool& cancel) { windowKeys.Form_QueryClose(cancel); };
    form.onClick = [this] { surface.Form_Click(); };
    form.onDblClick = [this] { surface.Form_DblClick(); };
    form.Uhrzeit.onTimer = [this] { startUp.Uhrzeit_Timer(); };
    form.ExitBtn.onClick = [this] { shutDown.ExitBtn_Click(); };

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
