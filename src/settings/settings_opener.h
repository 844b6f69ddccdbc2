#pragma once

#include "forms/on_demand.h"
#include "forms/window_host.h"
#include "settings/settings_window.h"

namespace kivu::settings {

// Opens the settings from the main window.
class SettingsOpener {
 public:
    SettingsOpener(core::Form1& main, forms::OnDemand<SettingsWindow>& window,
                   forms::WindowHost& windows, support::AlwaysOnTop& alwaysOnTop)
        : main(main), window(window), windows(windows), alwaysOnTop(alwaysOnTop) {}

    // All of them.
    void SettingsBtn_Click() { Show(false); }
    // Those of the program alone.
    void SettingsShortBtn_Click() { Show(true); }

 private:
    void Show(bool programOnly);

    core::Form1& main;
    forms::OnDemand<SettingsWindow>& window;
    forms::WindowHost& windows;
    support::AlwaysOnTop& alwaysOnTop;  // of the main window
    bool showing = false;
};

}  // namespace kivu::settings
