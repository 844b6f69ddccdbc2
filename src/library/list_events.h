#pragma once

#include "core/hook.h"
#include "core/ports.h"
#include "forms/list_control.h"
#include "forms/types.h"

namespace kivu::core {
struct Form1;
enum class Front : int;
}  // namespace kivu::core

namespace kivu::library {

class AllEmulatorsSearch;
class MarkedGame;

// Clicks, keys and focus of the game lists and of their tabs. The selected row of UAE_FULL is what
// a list hands on to a launch.
class ListEvents : public core::ListFront {
 public:
    struct Hooks {
        core::Hook<void(int)> ShowGamePreview{"ListEvents.ShowGamePreview"};
        core::Hook<void()> RefreshPreview{"ListEvents.RefreshPreview"};
        core::Hook<void()> RefreshHints{"ListEvents.RefreshHints"};
    };
    struct Ports {
        core::Port<core::Launching> launching{"ListEvents.launching"};
        core::Port<core::Drives> drives{"ListEvents.drives"};
        core::Port<core::MarkedFavourite> favourite{"ListEvents.favourite"};
        core::Port<core::GlobalFavourites> globalFavourites{"ListEvents.globalFavourites"};
        core::Port<core::WindowLayout> layout{"ListEvents.layout"};
    };
    struct Routines {
        core::EmulatorChoice& choice;
        core::LoadedGames& games;
        AllEmulatorsSearch& search;
    };

    ListEvents(core::Form1& form, MarkedGame& marked, Routines routines)
        : form(form), marked(marked), routines(routines) {}

    void RefreshList() override;
    void UAE_FULL_Click();
    void UAE_Short_Click();
    void UAE_Short_DblClick();
    void UAE_Short_GotFocus() override;
    void UAE_Short_LostFocus();
    void UAE_Short_KeyPress(forms::Character& character);
    void WIthoutDoubles_Click();
    void WIthoutDoubles_DblClick();
    void WIthoutDoubles_GotFocus() override;
    void WIthoutDoubles_LostFocus();
    void WIthoutDoubles_KeyPress(forms::Character& character);
    void FavoritenListe_GotFocus() override;
    void FavoritenListe_LostFocus();
    void SuchErgList_GotFocus() override;
    void Label1_Click() override;
    void Label2_Click() override;
    void Label3_Click();
    void Label4_Click() override;

    // By the name at the right, which is that of the marked row's game.
    void Current_ProgramNameFull_DblClick();

    Hooks hooks;
    Ports ports;

 private:
    void Launch(forms::ListBox& list);
    void PutInFront(forms::ListBox& list, core::Front front);

    core::Form1& form;
    MarkedGame& marked;
    Routines routines;
};

}  // namespace kivu::library
