#pragma once

#include <string>
#include <string_view>

#include "core/hook.h"
#include "core/ports.h"
#include "forms/types.h"
#include "library/marked_game.h"
#include "library/title_search.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::library {

// What the search box shows while nobody searches; never searched for.
bool IsIdleText(std::string_view text);
// Below two characters a text hits too much to be searched for.
bool IsLongEnough(std::string_view text);
// A key that goes to the search box from whatever list has the focus.
bool BeginsSearch(const forms::Character& character);

// The search box, and the results that it filters out of the current emulator's games. The same box
// narrows the results of a search over all emulators.
class ListSearch {
 public:
    struct Hooks {
        core::Hook<void()> SearchAllBtn_Click{"ListSearch.SearchAllBtn_Click"};
    };
    struct Ports {
        core::Port<core::ListFront> front{"ListSearch.front"};
        core::Port<core::Launching> launching{"ListSearch.launching"};
    };

    ListSearch(core::Form1& form, MarkedGame& marked, core::EmulatorChoice& choice);

    // Fills SuchErgList with the rows of WIthoutDoubles, from `StartRow` on, that contain every
    // word of `Text`, and selects the first of them there.
    void SearchInList(const std::string& Text, int StartRow);

    void SearchDblsTxt_Change();
    void SearchDblsTxt_GotFocus();
    void SearchDblsTxt_LostFocus();
    void SearchDblsTxt_KeyDown(forms::Key& key);
    void SearchDblsTxt_KeyPress(forms::Character& character);
    void SuchErg_Click();
    void SuchErgList_Click();
    void SuchErgList_DblClick();
    void SuchErgList_KeyPress(forms::Character& character);

    // The number of results into their tab.
    void ShowCount();

    Hooks hooks;
    Ports ports;

 private:
    void SelectGame(int row);
    void FilterCurrentList(const std::string& text);
    void NarrowGlobalList(const std::string& text);
    void FindNext();
    bool MoveIntoResults(int keyCode);
    bool EnterSearchesAll() const;
    void ShowMeantRow(bool inBox);
    void ShowTab();

    core::Form1& form;
    MarkedGame& marked;
    core::EmulatorChoice& choice;
    TitleSearch titles;
};

}  // namespace kivu::library
