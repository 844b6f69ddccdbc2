#include "ui/window_surface.h"

#include "core/emulator_paths.h"
#include "core/form1.h"
#include "support/path_forms.h"

namespace kivu::ui {

void WindowSurface::MyCaptionLabel_DblClick() {
    const std::string stored = ini.Read(profile::keys::TitleString, core::ProfilesOf(form));
    const std::string title = services.dialogs.InputBox("New Title", "Title", stored);
    if (title.empty()) return;
    // An emulator that was never dressed has none. Whether it is there shows in what follows.
    (void)services.files.MakeDirectory(
        support::DirectoryOf(services.files, form.GetColorsIniName()));
    ini.Write(profile::keys::TitleString, core::ProfilesOf(form), title);
    busy.MeCaption(title);
}

void WindowSurface::Surface_MouseDown(const forms::Mouse& mouse) {
    if (mouse.button == forms::buttons::left) form.BeginDrag();
}

void WindowSurface::Form_DblClick() {
    form.SetState(forms::WindowState::minimized);
}

void WindowSurface::Form_Click() {
    alwaysOnTop.SetToTop();
}

void WindowSurface::NormalMaxCapt_Click() {
    const bool maximized = form.State() == forms::WindowState::maximized;
    form.SetState(maximized ? forms::WindowState::normal : forms::WindowState::maximized);
}

}  // namespace kivu::ui
