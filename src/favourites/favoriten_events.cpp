#include "favourites/favoriten_events.h"

#include "core/form1.h"
#include "favourites/edit_alias_name.h"
#include "library/find_game.h"
#include "text/paths.h"

namespace kivu::favourites {

namespace keys = forms::keys;

void FavoritenEvents::FavoritenListe_Click() {
    // A list that is filled behind another one must not take the game away that is selected there.
    if (store.IsFilling() && !form.FavoritenListe.Visible()) return;
    const unsigned click = ++clicks;
    gameFound = false;
    for (forms::CheckBox& box : form.Check_Dfx)
        box.SetValue(0);
    const int record = store.RecordOfRow(form.FavoritenListe.ListIndex());
    if (record < 0) return;
    const FavoritEntry favourite = store.Entries()[static_cast<std::size_t>(record)];
    const bool shown = form.FavoritenListe.Visible();
    const int row = FindGame(favourite);
    // Events have run: there may be another click, or another list in front.
    if (click != clicks || (shown && !form.FavoritenListe.Visible())) return;
    gameFound = row >= 0;
    if (row >= 0) {
        ShowGame(row);
    } else if (!AskForRepair(favourite) || click != clicks) {
        return;
    }
    OfferButtons();
    // The pad may go through it behind the results of a search, where nothing is removed.
    if (!form.FavoritenListe.Visible()) form.DeLFav.SetVisible(false);
}

void FavoritenEvents::OfferButtons() {
    form.AddToFavorit.SetVisible(false);
    form.AddToFavorit_Global.SetVisible(true);
    // A pad goes through the favourites behind the hits of a search, too.
    form.DeLFav.SetVisible(form.FavoritenListe.Visible());
}

int FavoritenEvents::FindGame(const FavoritEntry& favourite) {
    if (favourite.FullPath.empty()) return -1;
    const int row = library::FindGameInFullList(form, busy, pacer, favourite.FullPath);
    if (row >= 0) return row;
    const std::string name = text::GetFileNameOnly(favourite.FullPath);
    return name.empty() ? -1 : library::FindGameInFullList(form, busy, pacer, name);
}

bool FavoritenEvents::AskForRepair(const FavoritEntry& favourite) {
    if (repair.IsRunning() || form.FavoritenListe.ListIndex() < 0) return true;
    const std::string text =
        form.Say("Datei wurde nicht gefunden!\r", "Rom/Image - File not found!\r") +
        favourite.Name +
        form.Say("\rSollen die Favoriten repariert werden?",
                 "\rDo you want to try to repair the favorites?");
    const auto answer = services.dialogs.MessageBox(
        text, form.Say("Nicht gefunden - Reparieren", "Favorite not found - Repair?"),
        platform::Buttons::YesNo, platform::Icon::Question);
    if (answer != platform::Answer::Yes) return true;
    repair.RepairFavoriten();
    // Rows that went have moved others to their places.
    if (form.FavoritenListe.SelectedText() != favourite.Name) gameFound = false;
    return form.FavoritenListe.ListIndex() >= 0;
}

void FavoritenEvents::ShowGame(int row) {
    form.UAE_Short.SetListIndex(row);
    form.UAE_FULL.SetListIndex(row);
    if (form.SettingsSubPicture.Visible()) ports.drives->SelectSimilarDisks(row, 4, 14, 2);
    form.Check_Dfx[0].SetToolTipText(text::GetFileNameOnly(form.UAE_FULL.List(row)));
    form.Check_Dfx[0].SetValue(1);
}

void FavoritenEvents::FavoritenListe_DblClick() {
    // With no game of its own the click has left another one selected, and has asked already.
    if (gameFound && SelectGame()) ports.launching->LaunchBtn_Click();
}

bool FavoritenEvents::SelectGame() {
    if (form.FavoritenListe.ListIndex() < 0) return false;
    if (IsInStep()) return true;
    FavoritenListe_Click();
    return gameFound;
}

bool FavoritenEvents::IsInStep() const {
    const int row = RowOfGame();
    return row >= 0 && form.UAE_Short.ListIndex() == row && form.UAE_FULL.ListIndex() == row;
}

int FavoritenEvents::RowOfGame() const {
    const int record = store.RecordOfRow(form.FavoritenListe.ListIndex());
    if (record < 0) return -1;
    const std::string& path = store.Entries()[static_cast<std::size_t>(record)].FullPath;
    if (path.empty()) return -1;
    const std::vector<std::string>& paths = form.UAE_FULL.Rows();
    const int row = library::RowOfGame(paths, path);
    const std::string name = text::GetFileNameOnly(path);
    return row >= 0 || name.empty() ? row : library::RowOfGame(paths, name);
}

void FavoritenEvents::FavoritenListe_MouseDown(const forms::Mouse& mouse) {
    const int row = form.FavoritenListe.ListIndex();
    if (mouse.button != forms::buttons::right || row < 0 || repair.IsRunning()) return;
    const std::string name = form.FavoritenListe.List(row);
    const std::string title = EditAliasName(name, form, services.dialogs);
    // Behind the box the list may have become another one.
    if (title == name || form.FavoritenListe.List(row) != name) return;
    form.FavoritenListe.SetList(row, title);
    store.Rename(row, title);
}

void FavoritenEvents::FavoritenListe_KeyDown(forms::Key& key) {
    const std::string name = form.FavoritenListe.SelectedText();
    const bool asked = key.code == keys::del && key.shift == 0 &&
                       form.FavoritenListe.ListIndex() >= 0 && form.FavoritenListe.Visible();
    if (!asked) return;
    const std::string text =
        std::string(form.Say("Aus Favoriten entfernen", "Remove from Favorite-List")) + ":\r\r" +
        name + "?";
    const auto answer = services.dialogs.MessageBox(
        text, core::defaultTitle, platform::Buttons::YesNo, platform::Icon::Question);
    if (answer == platform::Answer::Yes && form.FavoritenListe.SelectedText() == name)
        DeLFav_Click();
}

void FavoritenEvents::FavoritenListe_KeyPress(forms::Character& character) {
    if (character.code == keys::enter) {
        if (SelectGame()) ports.launching->LaunchBtn_Click();
    } else if (character.code != keys::space) {
        routines.choice.EmuListbox_KeyPress(character);
    }
}

void FavoritenEvents::AddToFavorit_Click() {
    if (repair.IsRunning() || !routines.marked.SelectToStore()) return;
    const int row = form.UAE_Short.ListIndex();
    const std::string name = form.UAE_Short.List(row);
    const std::string path = form.UAE_FULL.List(row);
    store.AddFavoritEntry(name, path, 0, true);
    store.SortFavoriten();
    store.FillFavoritenListe();
    store.SaveFavoriten();
    store.LoadFavoriten();
    // What the file could not take has gone with the load.
    if (store.Has(path)) {
        form.MyCaptionLabel.SetCaption(form.Say("Neuer Favorit: ", "Favorite add: ") + name);
    } else {
        services.beeper.Beep();
    }
    routines.front.RefreshList();
}

void FavoritenEvents::DeLFav_Click() {
    if (repair.IsRunning()) return;
    if (form.FavoritenListeGlobal.Visible()) {
        if (!global.RemoveGlobalFavorit()) services.beeper.Beep();
        global.ShowHeading();
        form.FavoritenListeGlobal.SetFocus();
        return;
    }
    form.EmuListbox.SetVisible(false);
    if (!form.FavoritenListe.Visible()) {
        services.beeper.Beep();
        return;
    }
    store.RemoveFavoritAt(store.RecordOfRow(form.FavoritenListe.ListIndex()));
    // The button goes, and with it the focus, which must not come to the drop-down: that would open
    // the choice of emulators.
    form.FavoritenListe.SetFocus();
    form.DeLFav.SetVisible(false);
    form.EmuListbox.SetVisible(true);
}

}  // namespace kivu::favourites
