#pragma once

#include <string>

#include "core/form1.h"
#include "core/hook.h"
#include "library/marked_game.h"
#include "platform/file_system.h"

namespace kivu::library {

// Clicks, keys and focus of the game lists and of their tabs. The selected row of UAE_FULL is what
// a list hands on to a launch.
class ListEvents {
 public:
    struct Hooks {
        core::Hook<void()> RefreshList;  // the list in front, the tabs and their counts
        core::Hook<void()> LaunchBtn_Click;
        core::Hook<void(forms::Character&)> EmuListbox_KeyPress;
        core::Hook<void(int)> ShowGamePreview;
        core::Hook<void(int)> FillDrivesFromFile;  // a click of the user on this row of UAE_Short
        core::Hook<void()> ShowOneDisk;            // WIthoutDoubles: a game has been found
        core::Hook<void(int)>
            FillDrivesFromGame;  // WIthoutDoubles: the row found in UAE_Short, or -1
        // True: the global favourites have come up in place of the emulator's own.
        core::Hook<bool()> ShowGlobalFavourites;
        core::Hook<void()> LeaveGlobalFavourites;
        core::Hook<void()> OfferFavouriteButtons;
        core::Hook<bool()> SelectsByHand;  // the user chooses disks row by row
    };

    ListEvents(core::Form1& form, MarkedGame& marked) : form(form), marked(marked) {}

    void UAE_FULL_Click();
    void UAE_Short_Click();
    void UAE_Short_DblClick();
    void UAE_Short_GotFocus();
    void UAE_Short_LostFocus();
    void UAE_Short_KeyPress(forms::Character& character);
    void WIthoutDoubles_Click();
    void WIthoutDoubles_DblClick();
    void WIthoutDoubles_GotFocus();
    void WIthoutDoubles_LostFocus();
    void WIthoutDoubles_KeyPress(forms::Character& character);
    void FavoritenListe_GotFocus();
    void FavoritenListe_LostFocus();
    void SuchErgList_GotFocus();
    // The tabs: each puts its list in front and gives it the focus.
    void Label1_Click();
    void Label2_Click();
    void Label3_Click();
    void Label4_Click();

    Hooks hooks;

 private:
    void Launch(forms::ListBox& list);
    void PutInFront(forms::ListBox& list, const char* mode);

    core::Form1& form;
    MarkedGame& marked;
};

}  // namespace kivu::library
