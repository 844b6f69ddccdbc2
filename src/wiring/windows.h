#pragma once

#include <functional>

#include "core/form1.h"
#include "forms/window_host.h"
#include "launch/loading_opener.h"
#include "platform/host.h"
#include "settings/settings_window.h"
#include "support/directory_lists.h"
#include "support/file_dialogs.h"

namespace kivu::wiring {

// The windows beside the main one, each of which is made when it is first spoken to.
class Windows {
 public:
    Windows(core::Form1& form, platform::Host& host, platform::Dialogs& dialogs,
            forms::WindowHost& windows, launch::LoadingInfo::Routines loadingRoutines,
            profile::Ini& ini,
            std::function<settings::SettingsWindow::Routines()> settingsRoutines);

 private:
    // Their looks are those of the main window at the moment.
    void Dress(forms::Form& window) const;

    core::Form1& form;
    forms::WindowHost& windows;
    support::DirectoryLists directories;  // not the scanner's, which may be under way
    forms::Toolkit toolkit;

 public:
    support::WindowedFileDialogs fileDialogs;
    launch::LoadingOpener loading;
    forms::OnDemand<settings::SettingsWindow> settings;
};

}  // namespace kivu::wiring
