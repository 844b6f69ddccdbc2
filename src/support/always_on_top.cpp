#include "support/always_on_top.h"

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
    if (isOnTop) return;
    pictures.hover.SetVisible(true);
    pictures.disabled.SetVisible(false);
}

void AlwaysOnTop::MouseLeft() {
    ShowState();
}

void AlwaysOnTop::ShowState() {
    pictures.enabled.SetVisible(isOnTop);
    pictures.disabled.SetVisible(!isOnTop);
    pictures.hover.SetVisible(false);
}

}  // namespace kivu::support
