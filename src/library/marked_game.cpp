#include "library/marked_game.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "core/form1.h"
#include "library/find_list_item.h"
#include "text/paths.h"
#include "text/text.h"

namespace kivu::library {

namespace {

// A label breaks its caption to its width; each break has taken one character's place.
bool IsBrokenFrom(std::string_view caption, std::string_view name) {
    for (const char character : caption) {
        if (name.empty()) return false;
        const bool isBreak = character == '\r';
        if (!isBreak && character != name.front()) return false;
        name.remove_prefix(isBreak ? text::CodePointOffset(name, 1) : 1);
    }
    return name.empty();
}

}  // namespace

forms::ListBox* MarkedGame::ListInFront() const {
    if (form.EmulatorLongListbox.Visible() || form.FavoritenListeGlobal.Visible() ||
        form.GlobalSearchList.Visible())
        return nullptr;
    const std::array<forms::ListBox*, 4> lists{&form.FavoritenListe, &form.WIthoutDoubles,
                                               &form.UAE_Short, &form.SuchErgList};
    const core::Front front = form.ListOfMode();
    if (core::IsGameList(front)) {
        forms::ListBox* const list = lists[static_cast<std::size_t>(core::IndexOf(front))];
        if (list->Visible()) return list;
    }
    const auto shown = std::find_if(lists.begin(), lists.end(),
                                    [](const forms::ListBox* list) { return list->Visible(); });
    return shown == lists.end() ? nullptr : *shown;
}

bool MarkedGame::Select(forms::ListBox& list) {
    if (list.ListIndex() < 0) return false;
    if (IsInStep(list)) return true;
    if (&list == &form.FavoritenListe) return ports.favourite->SelectGame();
    if (RowOf(list) >= 0) {
        ClickMarkedRow(list);
        if (IsInStep(list)) return true;
    }
    // The simple list and its hits keep their rows over a rescan.
    dialogs.MessageBox("File not found:\r" + list.SelectedText(), "Game - File not found!",
                       platform::Buttons::Ok, platform::Icon::Information);
    return false;
}

bool MarkedGame::SelectInFront() {
    forms::ListBox* list = ListInFront();
    if (!list) return false;
    return list->ListIndex() >= 0 ? Select(*list) : form.UAE_Short.ListIndex() >= 0;
}

bool MarkedGame::SelectToStore() {
    forms::ListBox* list = ListInFront();
    return !list || list->ListIndex() < 0 || Select(*list);
}

void MarkedGame::ShowName() {
    // In the busy state the label is empty on purpose.
    if (!form.ListsVisible || !form.Current_ProgramNameFull.Caption().empty()) return;
    WriteName();
}

void MarkedGame::ShowNameInFront() {
    const int selected = form.UAE_Short.ListIndex();
    if (form.ListsVisible && selected >= 0 && !IsNamed(selected) && NamedRow() >= 0) {
        WriteName();
    } else {
        ShowName();
    }
}

void MarkedGame::WriteName() {
    const forms::ListBox* list = ListInFront();
    if (!list) return;
    // With no row marked the selected game counts, whose picture is on view.
    const int row = list->ListIndex() < 0 ? form.UAE_Short.ListIndex() : RowInFront();
    const std::string& path = form.UAE_FULL.List(row);
    if (path.empty()) return;
    form.Current_ProgramNameFull.SetCaption(text::GetFileNameOnly(path));
    form.Current_ProgramNameFull.SetVisible(true);
}

int MarkedGame::RowOnShow() const {
    const int selected = form.UAE_Short.ListIndex();
    if (selected < 0) return RowInFront();
    if (IsNamed(selected)) return selected;
    const int named = NamedRow();
    return named >= 0 ? named : selected;
}

int MarkedGame::NamedRow() const {
    if (form.Current_ProgramNameFull.Caption().empty()) return -1;
    for (const forms::ListBox* list :
         {&form.WIthoutDoubles, &form.FavoritenListe, &form.SuchErgList}) {
        const int row = list->ListIndex() < 0 ? -1 : RowOf(*list);
        if (IsNamed(row)) return row;
    }
    return -1;
}

bool MarkedGame::IsNamed(int row) const {
    const std::string name = text::GetFileNameOnly(form.UAE_FULL.List(row));
    return !name.empty() && IsBrokenFrom(form.Current_ProgramNameFull.Caption(), name);
}

int MarkedGame::RowInFront() const {
    const forms::ListBox* list = ListInFront();
    if (!list || list->ListIndex() < 0) return -1;
    return IsInStep(*list) ? form.UAE_Short.ListIndex() : RowOf(*list);
}

int MarkedGame::RowOf(const forms::ListBox& list) const {
    if (&list == &form.FavoritenListe) return ports.favourite->RowOfGame();
    if (&list == &form.UAE_Short) return list.ListIndex();
    int start = 0;
    return FindListItem(list.SelectedText(), form.UAE_Short.Rows(), false, start);
}

// Of a game with several files any may be selected.
bool MarkedGame::IsInStep(const forms::ListBox& list) const {
    const int row = form.UAE_Short.ListIndex();
    if (row < 0 || form.UAE_FULL.ListIndex() != row) return false;
    const bool favourite = &list == &form.FavoritenListe;
    return (!favourite && form.UAE_Short.List(row) == list.SelectedText()) || row == RowOf(list);
}

void MarkedGame::ClickMarkedRow(forms::ListBox& list) {
    if (&list == &form.UAE_Short) {
        // Clicked anew, the row would take the marks of the others away.
        list.Click();
        form.UAE_FULL.SetListIndex(list.ListIndex());
        return;
    }
    forms::ListBox& games = form.WIthoutDoubles;
    const std::vector<std::string>& rows = games.Rows();
    const auto found = std::find(rows.begin(), rows.end(), list.SelectedText());
    if (found != rows.end()) games.ClickRow(static_cast<int>(found - rows.begin()));
}

}  // namespace kivu::library
