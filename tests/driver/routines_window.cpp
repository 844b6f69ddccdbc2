// Routines of the main window: its state, its layout, its getters.

#include "driver/routines.h"
#include "support/window_handling.h"
#include "wiring/routines.h"

namespace kivu::driver {

using std::optional;
using std::string;

namespace {

void AddGetters(RoutineTable& table, Session& session) {
    const core::Form1& form = session.Routines().form;
    using core::Form1;
    const auto add = [&](const char* name, const string& (Form1::*getter)() const) {
        table.push_back(Bind(name, [&form, getter] { return (form.*getter)(); }));
    };
    add("GetStartPfad", &Form1::GetStartPfad);
    add("GetIniPath", &Form1::GetIniPath);
    add("getBaseIniName", &Form1::getBaseIniName);
    add("GetFavortitenIni", &Form1::GetFavortitenIni);
    add("GetColorsIniName", &Form1::GetColorsIniName);
    add("GetVBSFilename", &Form1::GetVBSFilename);
    table.push_back(Bind("Get_Current_Language", [&form] { return form.Get_Current_Language(); }));
}

// The pin's routines also under its own name, since others have some of the same.
void AddPin(RoutineTable& table, Session& session) {
    auto& pin = session.Routines().alwaysOnTop;
    const string owner = "AlwaysOnTop1.";
    for (const string& prefix : {string(), owner}) {
        // The flag says for which window; there is only the pin's own.
        table.push_back(Bind(prefix + "SetToTop", [&pin](optional<bool>) { pin.SetToTop(); }));
        table.push_back(
            Bind(prefix + "SetToNormal", [&pin](optional<bool>) { pin.SetToNormal(); }));
        table.push_back(
            Bind(prefix + "SetWindowAlwayOnTop", [&pin] { pin.SetWindowAlwayOnTop(); }));
        table.push_back(
            Bind(prefix + "SetWindowBackToNormal", [&pin] { pin.SetWindowBackToNormal(); }));
        table.push_back(Bind(prefix + "GetIsOnTop", [&pin] { return pin.GetIsOnTop(); }));
    }
    table.push_back(Bind(owner + "SaveSettings", [&pin] { pin.SaveSettings(); }));
    table.push_back(Bind(owner + "LoadSettings", [&pin] { pin.LoadSettings(); }));
}

void AddLayout(RoutineTable& table, Session& session) {
    auto& all = session.Routines();
    table.push_back(Bind("Form_Resize", [&all] { all.layout.Form_Resize(); }));
    table.push_back(Bind("ResizeSettingsWindow", [&all] { all.layout.ResizeSettingsWindow(); }));
    table.push_back(Bind("ArrangeLists", [&all] { all.layout.ArrangeLists(); }));
    table.push_back(Bind("SetVorschau", [&all] { all.layout.SetVorschau(); }));
    table.push_back(Bind("ChangeBorderstyle",
                         [&all](int mode) { support::ChangeBorderstyle(all.form, mode); }));
}

void AddPreview(RoutineTable& table, Session& session) {
    auto& previews = session.Routines().previews;
    table.push_back(Bind("FindPreviewPicture",
                         [&previews](string name) { return previews.FindPreviewPicture(name); }));
    table.push_back(
        Bind("ShowGamePreview", [&previews](int index) { previews.ShowGamePreview(index); }));
    table.push_back(Bind("ShowEmulatorPreview",
                         [&previews](int index) { previews.ShowEmulatorPreview(index); }));
    table.push_back(Bind("LoadVorschauImageFromPAth",
                         [&previews](string path) { previews.LoadVorschauImageFromPAth(path); }));
    table.push_back(
        Bind("SetVorschaubild", [&previews](bool showIt) { previews.SetVorschaubild(showIt); }));
}

void AddSkins(RoutineTable& table, Session& session) {
    auto& all = session.Routines();
    table.push_back(Bind("LoadSkinPictures", [&all] { all.skins.LoadSkinPictures(); }));
    // The window is told by its name.
    table.push_back(Bind("SetColors", [&session](string window, int back, int fore) {
        session.Routines().windowColors.SetColors(session.OpenWindows().Window(window), back, fore);
    }));
}

}  // namespace

void AddWindowRoutines(RoutineTable& table, Session& session) {
    AddGetters(table, session);
    AddPreview(table, session);
    AddPin(table, session);
    AddLayout(table, session);
    AddSkins(table, session);
    auto& all = session.Routines();
    table.push_back(Bind("SelectEmulator", [&all](bool addToGlobal) {
        all.emulatorSwitch.SelectEmulator(addToGlobal);
    }));
    table.push_back(Bind("InitEmulatorView", [&all] { all.emulatorSwitch.InitEmulatorView(); }));
    table.push_back(Bind("LoadSettings", [&all] { all.settingsLoader.LoadSettings(); }));
    table.push_back(Bind("HideAll", [&all](bool visible) { all.busy.HideAll(visible); }));
    table.push_back(Bind("MeCaption", [&all](string caption) { all.busy.MeCaption(caption); }));
    table.push_back(Bind("ExitBtn_Click", [&all] { all.shutDown.ExitBtn_Click(); }));
    table.push_back(Bind("Uhrzeit_Timer", [&all] { all.startUp.Uhrzeit_Timer(); }));
}

}  // namespace kivu::driver
