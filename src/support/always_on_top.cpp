#include "support/always_on_top.h"

#include "forms/window_host.h"

namespace kivu::support {

namespace {
constexpr const char* section = "AlwaysOnTop";
constexpr const char* key = "OnTop";
}  // namespace

void AlwaysOnTop::SetWindowAlwayOnTop() {
    isOnTop = true;
    SaveSettings();
    ShowState();
    parent.SetTopmost(true);
}

void AlwaysOnTop::SetWindowBackToNormal() {
    isOnTop = false;
    SaveSettings();
    ShowState();
    parent.SetTopmost(false);
}

void AlwaysOnTop::SetToTop() {
    if (isOnTop) parent.SetTopmost(true);
}

void AlwaysOnTop::SetToNormal() {
    parent.SetTopmost(false);
}

void AlwaysOnTop::SaveSettings() {
    store.Set(section, key, isOnTop ? "True" : "False");
}

void AlwaysOnTop::LoadSettings() {
    isOnTop = store.Get(section, key, "True") == "True";
    ShowState();
    parent.SetTopmost(isOnTop);
}

void AlwaysOnTop::AOT_Disabled_MouseMove() {
    if (isOnTop || !HasPin()) return;
    pictures.hover.SetVisible(true);
    pictures.disabled.SetVisible(false);
}

void AlwaysOnTop::MouseLeft() {
    ShowState();
}

bool AlwaysOnTop::HasPin() const {
    const forms::WindowHost* windows = parent.GetToolkit().windows;
    return !windows || windows->CanStayOnTop();
}

void AlwaysOnTop::ShowState() {
    pictures.enabled.SetVisible(isOnTop && HasPin());
    pictures.disabled.SetVisible(!isOnTop && HasPin());
    pictures.hover.SetVisible(false);
}

}  // namespace kivu::support
