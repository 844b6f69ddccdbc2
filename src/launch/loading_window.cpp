#include "launch/loading_window.h"

#include "core/form1.h"

namespace kivu::launch {

LoadingWindow::LoadingWindow(core::Form1& mainWindow, LoadingInfo::Services services,
                             LoadingInfo::Routines others)
    : form(mainWindow.GetToolkit()), routines(form, mainWindow, services, others) {
    JoinEvents();
}

void LoadingWindow::JoinEvents() {
    form.onLoad = [this] { routines.Form_Load(); };
    form.onUnload = [this] { routines.Form_Unload(); };
    form.Timer1.onTimer = [this] { routines.Timer1_Timer(); };
    form.Command1.onClick = [this] { routines.Command1_Click(); };
    for (forms::Control* control :
         {static_cast<forms::Control*>(&form), static_cast<forms::Control*>(&form.Picture1),
          static_cast<forms::Control*>(&form.GameImage), static_cast<forms::Control*>(&form.Label1),
          static_cast<forms::Control*>(&form.TxtTitle)}) {
        control->onClick = [this] { routines.Form_Click(); };
    }
    form.onPreviewKeyDown = [this](forms::Key& key) {
        if (takesKey && takesKey(key)) key = {};
    };
}

}  // namespace kivu::launch
