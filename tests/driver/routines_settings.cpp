// Routines of the settings window, which is made for them where it is not there yet.

#include "driver/routines.h"
#include "settings/master_text.h"
#include "wiring/routines.h"

namespace kivu::driver {

using std::string;

void AddSettingsRoutines(RoutineTable& table, Session& session) {
    auto& all = session.Routines();
    auto& window = all.windowsBeside.settings;
    table.push_back(Bind("SettingsBtn_Click", [&all] { all.settingsOpener.SettingsBtn_Click(); }));
    table.push_back(
        Bind("SettingsShortBtn_Click", [&all] { all.settingsOpener.SettingsShortBtn_Click(); }));
    table.push_back(Bind("ShowMainSettingsOnly",
                         [&window](bool showIt) { window.Get().ShowMainSettingsOnly(showIt); }));
    table.push_back(Bind("DetectKnownEmulator", [&window](string exePath) {
        window.Get().Known().DetectKnownEmulator(exePath);
    }));
    table.push_back(
        Bind("SetEmulatorDefaults", [&window] { window.Get().Known().SetEmulatorDefaults(); }));
    table.push_back(Bind("ImportOfConfigStringAllowedValue", [](string line) {
        return settings::ImportOfConfigStringAllowedValue(line);
    }));
}

}  // namespace kivu::driver
