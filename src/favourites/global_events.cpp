#include "favourites/global_events.h"

#include "core/form1.h"

namespace kivu::favourites {

namespace keys = forms::keys;

void GlobalEvents::FavoritenListeGlobal_Click() {
    const GlobalFavorit* record = store.FindByDisplay(form.FavoritenListeGlobal.SelectedText());
    const int row = record && !record->System.empty() ? RowOfEmulator(record->System) : -1;
    if (row < 0) {
        services.beeper.Beep();
        return;
    }
    // The drop-down's click means the list of emulators; it stays behind this one.
    const std::string mode = form.ListMode;
    form.EmuListbox.SetListIndex(row);
    form.ListMode = mode;
}

void GlobalEvents::FavoritenListeGlobal_DblClick() {
    const GlobalFavorit* found = store.FindByDisplay(form.FavoritenListeGlobal.SelectedText());
    if (!found || form.Busy) return;
    // The array may be loaded anew meanwhile.
    const GlobalFavorit favourite = *found;
    const int row = RowOfEmulator(favourite.System);
    // No other emulator may be handed the file.
    if (row < 0) {
        services.beeper.Beep();
        return;
    }
    if (!SwitchTo(row)) return;
    SearchFor(favourite.Name);
    routines.alwaysOnTop.SetToNormal();
    form.EmuListbox.SetVisible(false);
    ports.launching->StartGame(favourite.FullPath);
    if (form.Ended) return;
    form.EmuListbox.SetVisible(true);
    busy.HideAll(false);
    form.FavoritenListeGlobal.SetVisible(true);
    form.FavoritenListeGlobal.BringToFront();
    form.FavoritenListeGlobal.SetFocus();
}

int GlobalEvents::RowOfEmulator(const std::string& name) const {
    for (int row = 0; row < form.EmuListbox.ListCount(); ++row) {
        if (form.EmuListbox.List(row) == name) return row;
    }
    return -1;
}

bool GlobalEvents::SwitchTo(int row) {
    form.EmuListbox.SetListIndex(row);
    routines.emulators.SelectEmulator(false);
    return !form.Ended && form.CurrentEmuIndex == row;
}

void GlobalEvents::SearchFor(const std::string& name) {
    if (form.SearchDblsTxt.Text() != name) {
        form.SearchDblsTxt.SetText(name);
    } else if (const auto change = form.SearchDblsTxt.onChange) {
        // The same text once more is no change.
        change();
    }
    form.SuchErgList.SetVisible(true);
}

void GlobalEvents::FavoritenListeGlobal_KeyDown(forms::Key& key) {
    if (key.code != keys::back && key.code != keys::escape) return;
    key.code = 0;
    routines.choice.LeaveEmulatorBox();
}

void GlobalEvents::FavoritenListeGlobal_KeyPress(forms::Character& character) {
    if (character.code == keys::enter) FavoritenListeGlobal_DblClick();
}

void GlobalEvents::AddToFavorit_Global_Click() {
    services.events.DoEvents();
    if (!routines.marked.SelectToStore()) {
        FocusListInFront();
        return;
    }
    const int row = form.UAE_Short.ListIndex();
    const std::string name = form.UAE_Short.List(row);
    const std::string path = form.UAE_FULL.List(row);
    const bool added = !name.empty() && !path.empty() &&
                       store.AddGlobalFavorit(name, form.EmuListbox.SelectedText(), path);
    if (added) {
        form.MyCaptionLabel.SetCaption(form.Say("Globaler Favorit: ", "Add global Favorite: ") +
                                       name);
    }
    services.beeper.Beep();
    FocusListInFront();
}

void GlobalEvents::FocusListInFront() {
    for (forms::ListBox* list : {&form.FavoritenListeGlobal, &form.FavoritenListe,
                                 &form.WIthoutDoubles, &form.UAE_Short, &form.SuchErgList}) {
        if (!list->Visible()) continue;
        list->SetFocus();
        return;
    }
}

bool GlobalEvents::ShowGlobalFavourites() {
    if (!form.EmulatorLongListbox.Visible()) return false;
    store.LoadGlobalFavoriten();
    store.ShowHeading();
    // The open choice has made the drop-down as wide as the lists; the tabs stand beside it.
    form.EmuListbox.SetWidth(form.EmuListboxWidth());
    routines.choice.RestoreColours();
    ports.layout->ArrangeLists();
    form.DeLFav.SetVisible(true);
    // The choice of a font size leaves this list out.
    form.FavoritenListeGlobal.SetFontSize(form.FavoritenListe.FontSize());
    form.FavoritenListeGlobal.SetVisible(true);
    form.FavoritenListeGlobal.BringToFront();
    form.FavoritenListeGlobal.SetFocus();
    form.FavoritenListe.SetVisible(false);
    return true;
}

void GlobalEvents::LeaveGlobalFavourites() {
    if (!form.FavoritenListeGlobal.Visible()) return;
    routines.choice.ShowEmulatorBox(false);
    form.EmuListbox.SetListIndex(form.CurrentEmuIndex);
    busy.HideAll(true);
}

}  // namespace kivu::favourites
