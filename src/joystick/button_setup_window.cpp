#include "joystick/button_setup_window.h"

#include "core/form1.h"

namespace kivu::joystick {

ButtonSetupWindow::ButtonSetupWindow(core::Form1& mainWindow, Services services, Routines others)
    : form(mainWindow.GetToolkit()),
      alwaysOnTop(form, {form.AOT_Enabled, form.AOT_Disabled, form.AOT_MouseMove},
                  services.userStore),
      routines(form, mainWindow, services.ini, services.events, services.windows,
               {others.joystick, others.pad, others.boxes, alwaysOnTop}) {
    JoinEvents();
}

void ButtonSetupWindow::JoinEvents() {
    form.onLoad = [this] { routines.Form_Load(); };
    form.onQueryClose = [this](bool&) { routines.Form_QueryClose(); };
    form.onUnload = [this] { routines.Form_QueryClose(); };
    form.onPreviewKeyDown = [this](forms::Key& key) { routines.Form_KeyDown(key); };
    form.onPreviewKeyPress = [this](forms::Character& key) { routines.Form_KeyPress(key); };
    form.JoystickIcon.onClick = [this] { routines.JoystickIcon_Click(); };
    form.CalibrateBtn.onClick = [this] { routines.CalibrateBtn_Click(); };
    form.ShowTimer.onTimer = [this] { routines.ShowTimer_Timer(); };
    form.PollingTimer.onTimer = [this] { routines.PollingTimer_Timer(); };

    form.onMouseMove = [this](const forms::Mouse&) { alwaysOnTop.MouseLeft(); };
    form.AlwaysOnTop1.onMouseLeave = [this] { alwaysOnTop.MouseLeft(); };
    form.AOT_Enabled.onClick = [this] { alwaysOnTop.AOT_Enabled_Click(); };
    form.AOT_Disabled.onClick = [this] { alwaysOnTop.AOT_Disabled_Click(); };
    form.AOT_MouseMove.onClick = [this] { alwaysOnTop.AOT_MouseMove_Click(); };
    form.AOT_Disabled.onMouseMove = [this](const forms::Mouse&) {
        alwaysOnTop.AOT_Disabled_MouseMove();
    };
}

}  // namespace kivu::joystick
