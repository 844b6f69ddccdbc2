#include "wiring/windows.h"

#include <memory>

#include "forms/look.h"
#include "ui/window_look.h"

namespace kivu::wiring {

namespace {

forms::Toolkit With(forms::Toolkit toolkit, forms::DirectorySource& directories) {
    toolkit.directories = &directories;
    return toolkit;
}

}  // namespace

Windows::Windows(core::Form1& form, platform::Host& host, platform::Dialogs& dialogs,
                 forms::WindowHost& windows, launch::LoadingInfo::Routines loadingRoutines,
                 profile::Ini& ini,
                 std::function<settings::SettingsWindow::Routines()> settingsRoutines)
    : form(form),
      windows(windows),
      directories(host.files),
      toolkit(With(form.GetToolkit(), directories)),
      fileDialogs(
          windows,
          [&form, &host, &dialogs, this] {
              auto made = std::make_unique<support::FilesWindow>(
                  toolkit, form.CurrentLanguage == 1,
                  support::Files::Services{host.files, host.userStore, host.starter, dialogs},
                  host.beeper);
              Dress(made->GetForm());
              return made;
          }),
      loading(form, windows, host.clock,
              [&form, &host, &windows, loadingRoutines] {
                  return std::make_unique<launch::LoadingWindow>(
                      form, launch::LoadingInfo::Services{host.files, windows}, loadingRoutines);
              }),
      settings(windows, [&form, &host, &dialogs, &windows, &ini, settingsRoutines, this] {
          auto made = std::make_unique<settings::SettingsWindow>(
              form, form.GetToolkit(),
              settings::SettingsWindow::Services{.ini = ini,
                                                 .files = host.files,
                                                 .starter = host.starter,
                                                 .dialogs = dialogs,
                                                 .beeper = host.beeper,
                                                 .events = host.events,
                                                 .userStore = host.userStore,
                                                 .log = host.log,
                                                 .systemColors = host.systemColors,
                                                 .windows = windows,
                                                 .fileDialogs = fileDialogs},
              settingsRoutines());
          Dress(made->GetForm());
          return made;
      }) {
}

void Windows::Dress(forms::Form& window) const {
    forms::TakeLook(window, ui::LookOf(form), windows.Room(&form));
}

}  // namespace kivu::wiring
