#include "ui/hints.h"

#include "core/form1.h"
#include "library/list_search.h"
#include "support/writable.h"
#include "text/text.h"

namespace kivu::ui {

namespace {

// A scan leaves the simple list as it was.
std::string GamesInCompleteList(const core::Form1& form) {
    return form.Say("Die Spiele stehen in der Liste \"Komplett\",\rhier ab dem nächsten Start.",
                    "The games are in \"Complete List\",\rand here from the next start on.");
}

}  // namespace

void Hints::Refresh() {
    const std::string none = form.CurrentEmuIndex < 0 ? FirstStep() : "";
    form.EmulatorLongListbox.SetHint(FirstStep());
    const std::string games = none.empty() ? NoGames() : none;
    const bool scanned = none.empty() && form.UAE_Short.ListCount() > 0;
    form.WIthoutDoubles.SetHint(scanned ? GamesInCompleteList(form) : games);
    form.UAE_Short.SetHint(games);
    form.FavoritenListe.SetHint(
        none.empty()
            ? form.Say("Noch keine Favoriten.\rWähle ein Spiel und drücke \"Add Favorite\".",
                       "No favorites yet.\rSelect a game and press \"Add Favorite\".")
            : none);
    form.FavoritenListeGlobal.SetHint(form.Say(
        "Noch keine globalen Favoriten.\rWähle ein Spiel und drücke \"Add to global Favorites\".",
        "No global favorites yet.\rSelect a game and press \"Add to global Favorites\"."));
    form.SuchErgList.SetHint(NoHits(
        form.Say("Strg+Return sucht in allen Emulatoren.", "Ctrl+Return searches all emulators.")));
    // While the lists are searched nobody knows yet.
    form.GlobalSearchList.SetHint(
        form.Busy ? ""
                  : NoHits(form.Say("Gesucht wurde in den Listen aller Emulatoren.",
                                    "The lists of all emulators have been searched.")));
}

void Hints::ShowFirstSteps() {
    if (form.Ended) return;
    storesNothing = !support::CanWriteIn(files, form.ConfigPath);
    // By its name, as the desktop's menu finds it.
    demoIsThere = form.EmuListbox.ListCount() == 0 && !starter.FindInPath("kivu-demo").empty();
    Refresh();
    MyCaptionLabel_Change();
    if (form.CurrentEmuIndex >= 0 || !form.LoadingBtn.Visible()) return;
    form.LoadingBtn.SetHint(FirstStep());
    // What they tell to press; a screen reader says nothing where nothing has the focus. The empty
    // drop-down would open its list over them.
    if (form.EmuListbox.ListCount() == 0 && !form.Focus()) form.SettingsBtn.SetFocus();
}

void Hints::MyCaptionLabel_Change() {
    if (!storesNothing) return;
    forms::Label& line = form.MyCaptionLabel;
    // The path stands where a line that is too long is cut, and is whole in the tool tip.
    line.SetShownText(line.Caption() +
                      form.Say(" – Nichts wird gespeichert, nicht beschreibbar: ",
                               " – Nothing will be stored, not writable: ") +
                      form.ConfigPath);
    line.SetToolTipText(NotStored());
}

// Where nothing can be stored, there is no sense in making an emulator.
std::string Hints::FirstStep() const {
    if (!storesNothing) return NoEmulator();
    return form.EmuListbox.ListCount() > 0 ? NoEmulator() + "\r\r" + NotStored() : NotStored();
}

std::string Hints::NotStored() const {
    return form.Say("In das Verzeichnis\r", "The directory\r") + form.ConfigPath +
           form.Say(
               "\rkann nicht geschrieben werden: nichts wird gespeichert.\r"
               "\"Kivu --data VERZEICHNIS\" nimmt ein anderes.",
               "\rcannot be written to: nothing will be stored.\r"
               "\"Kivu --data DIRECTORY\" takes another one.");
}

std::string Hints::NoEmulator() const {
    if (form.EmuListbox.ListCount() > 0)
        return form.Say("Wähle oben links einen Emulator.", "Choose an emulator at the top left.");
    const std::string demo =
        form.Say("\r\rZum Ausprobieren: \"Kivu-Demo\" im Menü\rder Anwendungen.",
                 "\r\rTo look around first: \"Kivu Demo\"\rin the menu of applications.");
    return form.Say("Noch kein Emulator.\rDrücke unten rechts auf \"",
                    "No emulator yet.\rPress \"") +
           form.SettingsBtn.Caption() +
           form.Say("\"\rund dort auf \"Neuer Emulator..\".",
                    "\" at the bottom right\rand there \"New emulator..\".") +
           (demoIsThere ? demo : "");
}

std::string Hints::NoGames() const {
    // Nobody has said yet where they are.
    if (form.TxtRomPath.Text() == form.AppDir) {
        return form.Say("Noch keine Spiele.\r\"", "No games yet.\r\"") +
               form.SettingsBtn.Caption() +
               form.Say("\" fragt nach dem Emulator\rund dem Verzeichnis der Spiele.",
                        "\" asks for the emulator\rand the directory of the games.");
    }
    return form.Say("Keine Spiele in der Liste. Gesucht wird in\r",
                    "No games in the list. They are looked for in\r") +
           form.TxtRomPath.Text() +
           form.Say("\r\"Liste Neu einlesen\" sucht dort noch einmal.",
                    "\r\"Liste Neu einlesen\" looks there once more.");
}

std::string Hints::NoHits(const char* where) const {
    const std::string& words = form.SearchDblsTxt.Text();
    if (library::IsIdleText(words) || !library::IsLongEnough(words)) {
        return form.Say("Gib zwei oder mehr Zeichen in das Suchfeld ein.",
                        "Type two or more characters into the search box.");
    }
    return form.Say("Kein Spiel mit \"", "No game with \"") + std::string(text::Trim(words)) +
           "\".\r" + where;
}

}  // namespace kivu::ui
