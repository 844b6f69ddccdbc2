#include "library/list_search.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "core/form1.h"
#include "library/search_colors.h"
#include "text/text.h"

namespace kivu::library {

namespace keys = forms::keys;
namespace shifts = forms::shifts;

namespace {

constexpr const char* idleGerman = "Suche..";
constexpr const char* idleEnglish = "Search here..";
constexpr int tabGap = 200;

}  // namespace

bool IsIdleText(std::string_view text) {
    return text == idleEnglish || text == idleGerman;
}

bool IsLongEnough(std::string_view text) {
    return text::CodePointCount(text::Trim(text)) >= 2;
}

bool BeginsSearch(const forms::Character& character) {
    return (character.code >= 'a' && character.code <= 'z') ||
           (character.code >= 'A' && character.code <= 'Z') ||
           (character.code >= '0' && character.code <= '9');
}

ListSearch::ListSearch(core::Form1& form, MarkedGame& marked, core::EmulatorChoice& choice)
    : form(form), marked(marked), choice(choice), titles(form.WIthoutDoubles, form.SuchErgList) {
}

void ListSearch::SearchInList(const std::string& Text, int StartRow) {
    if (text::Trim(Text).empty()) {
        form.SuchErgList.Clear();
        return;
    }
    form.SuchErgList.Clear();
    const RowNumbers& found = titles.Find(Text, static_cast<std::size_t>(std::max(StartRow, 0)));
    // Its picture shows while the user types.
    if (!found.empty()) SelectGame(static_cast<int>(found.front()));
    titles.FillResults();
}

// The row may be selected already while another list has chosen another game since. That one would
// be started in place of the one in sight.
void ListSearch::SelectGame(int row) {
    forms::ListBox& games = form.WIthoutDoubles;
    const bool already = games.ListIndex() == row;
    if (already && form.UAE_Short.SelectedText() != games.SelectedText()) {
        games.ClickRow(row);
    } else {
        games.SetListIndex(row);
    }
}

void ListSearch::SearchDblsTxt_Change() {
    const std::string text = form.SearchDblsTxt.Text();
    if (IsIdleText(text)) return;
    if (form.FavoritenListeGlobal.Visible()) {
        form.FavoritenListeGlobal.SetVisible(false);
        form.DeLFav.SetVisible(form.FavoritenListe.Visible());
    }
    const bool enough = IsLongEnough(text);
    if (!enough) form.SuchErgList.Clear();
    form.SearchAllBtn.SetEnabled(enough);
    // No list to search in while the user chooses an emulator.
    if (form.EmulatorLongListbox.Visible()) return;
    if (form.GlobalSearchList.Visible()) {
        NarrowGlobalList(text);
    } else {
        FilterCurrentList(text);
        ShowTab();
    }
    ShowMeantRow(form.SearchDblsTxt.HasFocus());
    ShowCount();
}

void ListSearch::FilterCurrentList(const std::string& text) {
    form.SearchAllBtn.SetBackColor(currentListColor);
    const forms::ListBox& place = form.FavoritenListe;
    form.SuchErgList.Move(place.Left(), place.Top(), place.Width(), place.Height());
    form.SuchErgList.SetVisible(true);
    if (IsLongEnough(text)) SearchInList(text, 0);
}

// Rows that go come back only with a new search.
void ListSearch::NarrowGlobalList(const std::string& text) {
    forms::ListBox& list = form.GlobalSearchList;
    form.SearchAllBtn.SetBackColor(allEmulatorsColor);
    if (text.empty()) {
        list.Clear();
        return;
    }
    const SearchWords words(text);
    std::vector<std::string> kept;
    for (const std::string& row : list.Rows()) {
        if (words.AreIn(row)) kept.push_back(row);
    }
    const int goes = list.ListCount() - static_cast<int>(kept.size());
    constexpr int few = 100;
    if (goes <= few) {
        for (int row = list.ListCount() - 1; row >= 0; --row) {
            if (!words.AreIn(list.List(row))) list.RemoveItem(row);
        }
        return;
    }
    // Taking many rows out one by one moves the others as often. The selected row stays selected,
    // if it stays at all.
    const std::vector<std::string>& rows = list.Rows();
    const int selected = list.ListIndex();
    const bool stays = selected >= 0 && words.AreIn(list.List(selected));
    const auto before = std::count_if(rows.begin(), rows.begin() + std::max(selected, 0),
                                      [&](const std::string& row) { return words.AreIn(row); });
    list.Clear();
    list.AddSorted(std::move(kept));
    if (!stays) return;
    const auto click = std::exchange(list.onClick, {});
    list.SetListIndex(static_cast<int>(before));
    list.onClick = click;
}

void ListSearch::ShowCount() {
    form.Label4.SetCaption(form.Say(" Suchergebnisse (", " Search results (") +
                           std::to_string(form.SuchErgList.ListCount()) + ") ");
    // Over the hits of all emulators it was as wide as all tabs.
    form.Label4.SetAutoSize(true);
}

// The tab comes up with the first search, whatever list is in front.
void ListSearch::ShowTab() {
    if (form.Label4.Visible()) return;
    int left = form.EmuListbox.Right();
    for (const forms::Label* tab : {&form.Label1, &form.Label2, &form.Label3}) {
        if (tab->Visible()) left = std::max(left, tab->Right());
    }
    form.Label4.Move(left + tabGap, form.Label3.Top(), form.Label4.Width(), form.Label4.Height());
    form.Label4.SetVisible(true);
}

void ListSearch::SearchDblsTxt_GotFocus() {
    form.Current_ProgramNameFull.SetFontSize(form.EmulatorLongListbox.FontSize() + 4);
    form.SetMode(core::Front::results);
    // As in every text box, the window's two colours change places.
    form.SearchDblsTxt.SetBackColor(form.FormForeColor);
    form.SearchDblsTxt.SetForeColor(form.FormBackColor);
    if (form.GlobalSearchList.Visible()) return;
    // The global favourites lie over everything that a search shows.
    form.FavoritenListeGlobal.SetVisible(false);
    // From the list of emulators a search goes through them all, so it stays in front. The tabs
    // stand beside the drop-down, which the open choice has made as wide as the list.
    const bool choosing = form.EmulatorLongListbox.Visible();
    if (choosing) form.EmuListbox.SetWidth(form.EmuListboxWidth());
    ports.front->RefreshList();
    if (choosing) {
        form.EmulatorLongListbox.BringToFront();
        form.SuchErgList.SetVisible(false);
    }
    form.SetMode(core::Front::searchBox);
    ShowMeantRow(true);
    if (IsIdleText(form.SearchDblsTxt.Text())) form.SearchDblsTxt.SetText("");
}

void ListSearch::SearchDblsTxt_LostFocus() {
    if (text::Trim(form.SearchDblsTxt.Text()).empty())
        form.SearchDblsTxt.SetText(form.Say(idleGerman, idleEnglish));
    form.SearchDblsTxt.SetBackColor(form.SuchErgList.BackColor());
    form.SearchDblsTxt.SetForeColor(form.SuchErgList.ForeColor());
    ShowMeantRow(false);
}

// Enter in the box goes to the first result, whatever the arrows have chosen.
void ListSearch::ShowMeantRow(bool inBox) {
    form.SuchErgList.SetMeantRow(inBox && form.SuchErgList.ListCount() > 0 ? 0 : -1);
}

bool ListSearch::EnterSearchesAll() const {
    return form.EmulatorLongListbox.Visible() || form.GlobalSearchList.Visible();
}

void ListSearch::SearchDblsTxt_KeyDown(forms::Key& key) {
    if (key.code == keys::enter && key.shift == shifts::ctrl) hooks.SearchAllBtn_Click();
    if (form.SearchDblsTxt.Text().empty()) return;
    if (key.code == keys::f3 && key.shift == 0) FindNext();
    const bool arrow = key.code == keys::down || key.code == keys::up;
    // The list that gets the focus must not move its row once more.
    if (arrow && (key.shift & shifts::alt) == 0 && MoveIntoResults(key.code)) key.code = 0;
}

void ListSearch::FindNext() {
    const std::string text = form.SearchDblsTxt.Text();
    if (EnterSearchesAll()) {
        hooks.SearchAllBtn_Click();
    } else if (!IsIdleText(text)) {
        SearchInList(text, form.WIthoutDoubles.ListIndex() + 1);
    }
}

bool ListSearch::MoveIntoResults(int keyCode) {
    if (form.EmulatorLongListbox.Visible()) return false;
    forms::ListBox& list =
        form.GlobalSearchList.Visible() ? form.GlobalSearchList : form.SuchErgList;
    if (list.ListCount() == 0) return false;
    const int row = list.ListIndex();
    if (keyCode == keys::up && row < 1) return false;
    list.SetListIndex(keyCode == keys::down ? row + 1 : row - 1);
    SearchDblsTxt_LostFocus();
    list.SetFocus();
    return true;
}

void ListSearch::SearchDblsTxt_KeyPress(forms::Character& character) {
    if (character.code != keys::enter) return;
    character.code = 0;
    if (EnterSearchesAll()) {
        hooks.SearchAllBtn_Click();
        return;
    }
    form.SuchErgList.SetFocus();
    form.SuchErgList.SetListIndex(0);
}

void ListSearch::SuchErg_Click() {
    form.DeLFav.SetVisible(false);
    form.WIthoutDoubles.SetFontSize(form.FavoritenListe.FontSize());
    form.SuchErgList.SetFontSize(form.WIthoutDoubles.FontSize());
    form.Label2.SetFontSize(form.Label1.FontSize());
    form.Label4.SetCaption(form.Say(" Suchergebnisse (", " Search results: (") +
                           std::to_string(form.SuchErgList.ListCount()) + ") ");
    ports.front->SuchErgList_GotFocus();
}

void ListSearch::SuchErgList_Click() {
    const std::vector<std::string>& rows = form.WIthoutDoubles.Rows();
    const auto found = std::find(rows.begin(), rows.end(), form.SuchErgList.SelectedText());
    if (found != rows.end()) SelectGame(static_cast<int>(found - rows.begin()));
    form.OfferFavourites();
}

void ListSearch::SuchErgList_DblClick() {
    if (marked.Select(form.SuchErgList)) ports.launching->LaunchBtn_Click();
}

void ListSearch::SuchErgList_KeyPress(forms::Character& character) {
    if (character.code == keys::enter) {
        SuchErgList_DblClick();
    } else if (BeginsSearch(character)) {
        choice.EmuListbox_KeyPress(character);
    }
}

}  // namespace kivu::library
