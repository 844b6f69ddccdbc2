#include "ui/layout.h"

#include <algorithm>
#include <array>

#include "core/form1.h"
#include "core/raised.h"
#include "support/window_handling.h"
#include "text/text.h"
#include "ui/layout_numbers.h"
#include "ui/move_what_fits.h"
#include "ui/window_colors.h"

namespace kivu::ui {

namespace {
constexpr int cornerRadius = 30;  // pixels
constexpr int tabGap = 200;
constexpr int titleWidth = 9000;
constexpr int allRoom = 1'000'000'000;

// " Favorites (12) " as "Favorites".
std::string WithoutCount(std::string_view caption) {
    return std::string(text::Trim(caption.substr(0, caption.find(" ("))));
}
}  // namespace

void Layout::Form_Resize() {
    if (form.State() == forms::WindowState::minimized) return;
    const bool normal = form.State() == forms::WindowState::normal;
    form.SetCornerRadius(normal ? cornerRadius : 0);
    if (!normal) support::ChangeBorderstyle(form, 0);
    // A new top of the lists changes their height, which comes before it.
    for (int round = 0; round < 2; ++round) {
        static_cast<core::LayoutNumbers&>(form) =
            ComputeLayout(form.Width(), form.Height(), form.ListLeft, form.FavoritenListe.Top());
        PlaceLists();
        // In the busy state no list comes up, whatever the window's size does.
        if (form.ListsVisible || form.EmulatorLongListbox.Visible()) ArrangeLists();
        ResizeSettingsWindow();
        form.TopRightPic.SetLeft(form.Width() - form.TopRightPic.Width() - 230);
        // Words that are too long end there, and not below the clock. Beyond its own width the
        // window's surface begins, which has other uses.
        form.MyCaptionLabel.SetWidth(
            std::clamp(form.TopRightPic.Left() - form.MyCaptionLabel.Left(), 0, titleWidth));
        SetVorschau();
        // The open choice keeps it as wide as its list.
        form.EmuListbox.SetWidth(form.ChoiceInFront() ? form.EmulatorLongListbox.Width()
                                                      : form.EmuListboxWidth());
        const int top = form.EmuListbox.Bottom() + 150;
        if (top == form.FavoritenListe.Top()) break;
        form.FavoritenListe.SetTop(top);
    }
    PlaceBusySigns();
    ResizeSettingsWindow();
}

void Layout::PlaceLists() {
    const int top = form.FavoritenListe.Top();
    for (forms::ListBox* list :
         {&form.FavoritenListe, &form.EmulatorLongListbox, &form.WIthoutDoubles, &form.UAE_Short,
          &form.SuchErgList, &form.UAE_FULL, &form.FavoritenListeGlobal, &form.GlobalSearchList}) {
        MoveWhatFits(*list, form.ListLeft, top, form.ListWidth, form.ListHeight);
    }
}

void Layout::PlaceBusySigns() {
    const forms::ListBox& lists = form.FavoritenListe;
    form.LoadingBtn.Move(lists.Left(), lists.Top(), lists.Width(), lists.Height());
    forms::Image& running = form.AppRunningPicture;
    running.SetLeft(lists.Left() + (lists.Width() - running.Width()) / 2);
    running.SetTop(lists.Top() + lists.Height() / 2 + 900);
    const forms::ComboBox& box = form.EmuListbox;
    // It shows beside a closed choice alone.
    const int most = box.MostShownWidth();
    const int closed = most > 0 ? std::min(most, form.EmuListboxWidth()) : form.EmuListboxWidth();
    const int left = box.Left() + closed + tabGap;
    form.Current_LoadingSmallBtn.Move(
        left, box.Top(), std::max(0, form.TopRightPic.Left() - left - tabGap), box.Height());
}

void Layout::ArrangeLists() {
    form.GlobalSearchList.SetVisible(false);
    form.SearchAllBtn.SetBackColor(forms::Rgb(255, 255, 255));
    if (form.WindowReady) {
        SetVorschau();
        VorschauBild_Resize();
    }
    MoveWhatFits(form.EmulatorLongListbox, form.ListLeft, form.FavoritenListe.Top(), form.ListWidth,
                 form.ListHeight);
    ApplyListColors(form);
    ShowListOfMode();
    if (form.FavoritenListeGlobal.Visible()) form.FavoritenListeGlobal.BringToFront();
    // There is nothing to remove where no favourite is on show.
    if (!form.FavoritenListe.Visible() && !form.FavoritenListeGlobal.Visible())
        form.DeLFav.SetVisible(false);
    ArrangeTabs();
}

void Layout::ShowListOfMode() {
    const core::Front mode = form.ListOfMode();
    const bool emulators = form.ModeIsChoice();
    const bool globalFavourites = form.FavoritenListeGlobal.Visible();
    const std::array<forms::ListBox*, 4> lists{&form.FavoritenListe, &form.WIthoutDoubles,
                                               &form.UAE_Short, &form.SuchErgList};
    for (int i = 0; i < 4; ++i) {
        const bool kept = (IndexOf(mode) == i && !globalFavourites) ||
                          (emulators && lists[static_cast<std::size_t>(i)] == &form.UAE_Short);
        if (!kept) lists[static_cast<std::size_t>(i)]->SetVisible(false);
    }
    // While an emulator runs the window shows that, and no list.
    if (form.AppRunningPicture.Visible()) return;
    if (emulators) {
        form.EmulatorLongListbox.SetFont(form.Label4.GetFont());
        form.EmulatorLongListbox.SetVisible(true);
        form.EmulatorLongListbox.BringToFront();
    } else if (form.Mode() == core::Front::searchBox && form.EmulatorLongListbox.Visible()) {
        // A search typed over the open choice goes through all emulators, which stay in front.
        return;
    } else if (IsGameList(mode) && !globalFavourites) {
        lists[static_cast<std::size_t>(IndexOf(mode))]->SetVisible(true);
    }
}

void Layout::ArrangeTabs() {
    const core::Front mode = form.ListOfMode();
    const bool running = form.AppRunningPicture.Visible();
    const std::array<forms::Label*, 4> tabs{&form.Label1, &form.Label2, &form.Label3, &form.Label4};
    for (int i = 0; i < 4; ++i) {
        forms::Label& tab = *tabs[static_cast<std::size_t>(i)];
        tab.SetBackColor(form.FormBackColor);
        tab.SetForeColor(form.FormForeColor);
        tab.SetOpaque(IndexOf(mode) == i);
        const bool favouritesAtRight = i == 0 && form.ModeIsChoice();
        tab.SetVisible(!running && (mode < core::Front::complete
                                        ? i < 3
                                        : mode <= core::Front::results || favouritesAtRight));
    }
    PlaceTabs();
}

// What a large font or a small window leaves no room for: first the counts go, that of the tab in
// front last, then the words of the others are cut. A tool tip tells them.
void Layout::FitTabs(int left, bool choosing) {
    // Over the hits of all emulators one caption covers the others, and the window's edge cuts it.
    // Over the open choice there is but one tab.
    const bool covered = form.GlobalSearchList.Visible() || choosing;
    std::vector<forms::Label*> tabs;
    std::vector<TabNeed> needs;
    std::size_t current = 0;
    for (forms::Label* tab : {&form.Label1, &form.Label2, &form.Label3, &form.Label4}) {
        if (!tab->Visible() || (covered && tab == &form.Label4)) continue;
        if (tab->IsOpaque()) current = tabs.size();
        tabs.push_back(tab);
        constexpr int edges = 2 * forms::twipsPerPixel;
        needs.push_back(
            {tab->TextWidth() + edges, tab->WidthOf(WithoutCount(tab->Caption())) + edges});
    }
    const int gaps = static_cast<int>(tabs.size()) * tabGap;
    const int room = covered ? allRoom : form.Width() - left - gaps;
    const std::vector<TabWidth> fitting = FitTabWidths(needs, current, room, 300);
    for (std::size_t i = 0; i < tabs.size(); ++i) {
        forms::Label& tab = *tabs[i];
        const bool whole = fitting[i].counted && fitting[i].width == needs[i].whole;
        tab.SetShownText(fitting[i].counted ? "" : WithoutCount(tab.Caption()));
        tab.SetAutoSize(whole);
        tab.SetToolTipText(whole ? "" : std::string(text::Trim(tab.Caption())));
        if (!whole) tab.SetWidth(fitting[i].width);
    }
}

// A large font makes it wider than a small window can bear beside the words of its tabs. There it
// is shown no wider than the lists, whichever of the tabs are there.
void Layout::FitEmuListbox() {
    forms::ComboBox& box = form.EmuListbox;
    int tabs = 0;
    for (const forms::Label* tab : {&form.Label1, &form.Label2, &form.Label3, &form.Label4})
        tabs += tabGap + tab->WidthOf(WithoutCount(tab->Caption()));
    const bool crowded = box.Left() + form.EmuListboxWidth() + tabs > form.Width();
    constexpr int least = 1500;
    box.SetMostShownWidth(crowded ? std::max(least, form.ListWidth) : 0);
}

void Layout::PlaceTabs() {
    // A width that is set comes back here.
    if (placingTabs) return;
    const core::Raised once(placingTabs);
    const bool choosing = form.ModeIsChoice();
    FitEmuListbox();
    int left = form.EmuListbox.Left() + form.EmuListbox.ShownWidth() + tabGap;
    FitTabs(left, choosing);
    for (forms::Label* tab : {&form.Label1, &form.Label2, &form.Label3, &form.Label4}) {
        tab->SetTop(form.EmuListbox.Top() + (form.EmuListbox.Height() - tab->Height()) / 2);
        if (choosing && tab == &form.Label1) {
            tab->SetLeft(form.Width() - tab->Width() - 400);
            continue;
        }
        tab->SetLeft(left);
        left = tab->Right() + tabGap;
    }
}

}  // namespace kivu::ui
