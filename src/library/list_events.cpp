#include "library/list_events.h"

#include "core/form1.h"
#include "core/raised.h"
#include "library/find_list_item.h"
#include "library/global_search.h"
#include "library/marked_game.h"
#include "text/paths.h"
#include "text/text.h"

namespace kivu::library {

using core::Front;

void ListEvents::RefreshList() {
    routines.search.LeaveResults();
    ports.layout->ArrangeLists();
    routines.games.UpdateListCaptions();
    marked.ShowNameInFront();
    hooks.RefreshPreview();
    hooks.RefreshHints();
}

void ListEvents::UAE_FULL_Click() {
    form.Current_ProgramNameFull.SetCaption(text::GetFileNameOnly(form.UAE_FULL.SelectedText()));
    form.Current_ProgramNameFull.SetVisible(true);
}

void ListEvents::UAE_Short_Click() {
    hooks.ShowGamePreview(form.UAE_Short.ListIndex());
    // The lists are often moved by the program itself; only the user's click goes on.
    if (!form.ShortListHasFocus) return;
    form.UAE_FULL.SetListIndex(form.UAE_Short.ListIndex());
    ports.drives->FillFromFile();
}

void ListEvents::UAE_Short_DblClick() {
    Launch(form.UAE_Short);
}

void ListEvents::Launch(forms::ListBox& list) {
    if (!marked.Select(list)) return;
    ports.launching->LaunchBtn_Click();
    form.SetCaption(core::defaultTitle);
    form.MyCaptionLabel.SetCaption(core::defaultTitle);
}

void ListEvents::UAE_Short_GotFocus() {
    form.SetMode(Front::complete);
    form.DeLFav.SetVisible(false);
    form.JoystickFocus = 3;
    form.ShortListHasFocus = true;
    form.UAE_Short.SetVisible(true);
    RefreshList();
    form.UAE_Short.SetListIndex(form.UAE_Short.ListIndex());
    form.UAE_Short.SetFocus();
}

void ListEvents::UAE_Short_LostFocus() {
    form.ShortListHasFocus = false;
}

void ListEvents::UAE_Short_KeyPress(forms::Character& character) {
    // There the list itself takes the blank, to choose a row or no longer.
    if (character.code == forms::keys::space && ports.drives->SelectsByHand()) return;
    if (character.code == forms::keys::enter) {
        UAE_Short_DblClick();
    } else {
        routines.choice.EmuListbox_KeyPress(character);
    }
}

void ListEvents::WIthoutDoubles_Click() {
    if (form.DoublesListBusy) return;
    const core::Raised busy(form.DoublesListBusy);
    form.Current_ProgramNameFull.SetVisible(true);
    int start = 0;
    const std::string name = form.WIthoutDoubles.SelectedText();
    const int row = FindListItem(
        name, form.UAE_Short.ListCount(),
        [this](int at) -> std::string_view { return form.UAE_Short.List(at); }, false, start);
    if (row >= 0) {
        ports.drives->ShowOneDisk();
        form.UAE_Short.SetListIndex(row);
        form.UAE_FULL.SetListIndex(row);
        form.DeLFav.SetVisible(false);
        form.OfferFavourites();
    } else {
        // Its game has gone since, and no other's picture is meant.
        hooks.RefreshPreview();
    }
    ports.drives->FillFromGame(row);
}

void ListEvents::WIthoutDoubles_DblClick() {
    Launch(form.WIthoutDoubles);
}

void ListEvents::WIthoutDoubles_GotFocus() {
    form.SetMode(Front::simple);
    if (form.DoublesListBusy) return;
    {
        const core::Raised busy(form.DoublesListBusy);
        form.DoublesListHasFocus = true;
        form.Current_ProgramNameFull.SetVisible(true);
        form.WIthoutDoubles.SetVisible(true);
        form.JoystickFocus = 2;
        RefreshList();
        form.DeLFav.SetVisible(false);
        form.OfferFavourites();
        // There and back, so that the row does not sit at the bottom edge.
        const int row = form.WIthoutDoubles.ListIndex();
        form.WIthoutDoubles.SetListIndex(row + 4);
        form.WIthoutDoubles.SetListIndex(row);
    }
    form.WIthoutDoubles.SetFocus();
}

void ListEvents::WIthoutDoubles_LostFocus() {
    form.DoublesListHasFocus = false;
}

void ListEvents::WIthoutDoubles_KeyPress(forms::Character& character) {
    if (character.code == forms::keys::enter) {
        WIthoutDoubles_DblClick();
    } else {
        routines.choice.EmuListbox_KeyPress(character);
    }
}

void ListEvents::FavoritenListe_GotFocus() {
    form.SetMode(Front::favourites);
    if (form.FavouritesListBusy) return;
    {
        const core::Raised busy(form.FavouritesListBusy);
        form.FavoritenListe.SetVisible(true);
        if (ports.globalFavourites->ShowGlobalFavourites()) return;
        // A favourite that is still chosen can be removed at once.
        if (form.FavoritenListe.ListIndex() >= 0) ports.favourite->OfferButtons();
        form.JoystickFocus = 1;
        RefreshList();
    }
    form.FavoritenListe.SetFocus();
}

void ListEvents::FavoritenListe_LostFocus() {
    form.FavouritesListBusy = false;
}

void ListEvents::SuchErgList_GotFocus() {
    form.SetMode(Front::results);
    form.JoystickFocus = 4;
    form.SuchErgList.SetMeantRow(-1);
    form.SuchErgList.SetVisible(true);
    RefreshList();
    form.SuchErgList.SetFocus();
}

void ListEvents::Current_ProgramNameFull_DblClick() {
    if (marked.SelectInFront()) ports.launching->LaunchBtn_Click();
}

void ListEvents::PutInFront(forms::ListBox& list, Front front) {
    if (&list != &form.FavoritenListe) ports.globalFavourites->LeaveGlobalFavourites();
    form.SetMode(front);
    list.SetVisible(true);
    // A list that has the focus already still has to come forward.
    if (list.HasFocus()) {
        const auto handler = list.onGotFocus;
        if (handler) handler();
    } else {
        list.SetFocus();
    }
}

void ListEvents::Label1_Click() {
    PutInFront(form.FavoritenListe, Front::favourites);
}

void ListEvents::Label2_Click() {
    PutInFront(form.WIthoutDoubles, Front::simple);
}

void ListEvents::Label3_Click() {
    PutInFront(form.UAE_Short, Front::complete);
}

void ListEvents::Label4_Click() {
    PutInFront(form.SuchErgList, Front::results);
}

}  // namespace kivu::library
