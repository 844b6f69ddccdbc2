#include "ui/layout.h"

#include <algorithm>
#include <array>

#include "library/short_names.h"
#include "ui/layout_numbers.h"

namespace kivu::ui {

namespace {
constexpr int cornerRadius = 30;  // pixels
constexpr int tabGap = 200;
}  // namespace

void Layout::Form_Resize() {
    if (form.State() == forms::WindowState::minimized) return;
    const bool normal = form.State() == forms::WindowState::normal;
    form.SetCornerRadius(normal ? cornerRadius : 0);
    if (!normal) hooks.ChangeBorderstyle(0);
    // A new top of the lists changes their height, which comes before it.
    for (int round = 0; round < 2; ++round) {
        Compute();
        PlaceLists();
        // In the busy state no list comes up, whatever the window's size does.
        if (form.ListsVisible || form.EmulatorLongListbox.Visible()) ArrangeLists();
        ResizeSettingsWindow();
        form.TopRightPic.SetLeft(form.Width() - form.TopRightPic.Width() - 230);
        SetVorschau();
        form.EmuListbox.SetWidth(static_cast<int>(220 * form.EmuListbox.FontSize()));
        const int top = form.EmuListbox.Bottom() + 150;
        if (top == form.FavoritenListe.Top()) break;
        form.FavoritenListe.SetTop(top);
    }
    PlaceBusySigns();
    ResizeSettingsWindow();
}

void Layout::Compute() {
    const LayoutNumbers numbers =
        ComputeLayout(form.Width(), form.Height(), form.ListLeft, form.FavoritenListe.Top());
    form.ListWidth = numbers.ListWidth;
    form.Col2Left = numbers.Col2Left;
    form.Col2Width = numbers.Col2Width;
    form.Col3Left = numbers.Col3Left;
    form.Col3Width = numbers.Col3Width;
    form.ListHeight = numbers.ListHeight;
    form.DriveBoxHeight = numbers.DriveBoxHeight;
    form.ThirdWidth = numbers.ThirdWidth;
    form.QuarterWidth = numbers.QuarterWidth;
    form.HalfWidth = numbers.HalfWidth;
}

void Layout::PlaceLists() {
    const int top = form.FavoritenListe.Top();
    for (forms::ListBox* list :
         {&form.FavoritenListe, &form.EmulatorLongListbox, &form.WIthoutDoubles, &form.UAE_Short,
          &form.SuchErgList, &form.UAE_FULL, &form.FavoritenListeGlobal, &form.GlobalSearchList}) {
        list->Move(form.ListLeft, top, form.ListWidth, form.ListHeight);
    }
}

void Layout::PlaceBusySigns() {
    const forms::ListBox& lists = form.FavoritenListe;
    form.LoadingBtn.Move(lists.Left(), lists.Top(), lists.Width(), lists.Height());
    forms::Image& running = form.AppRunningPicture;
    running.SetLeft(lists.Left() + (lists.Width() - running.Width()) / 2);
    running.SetTop(lists.Top() + lists.Height() / 2 + 900);
    const forms::ComboBox& box = form.EmuListbox;
    form.Current_LoadingSmallBtn.Move(
        box.Right() + tabGap, box.Top(),
        std::max(0, form.TopRightPic.Left() - box.Right() - 2 * tabGap), box.Height());
}

void Layout::SetVorschau() {
    const int width = form.Col2Width + form.Col3Width + 300;
    const int height = std::min(width, form.ListHeight - 400);
    form.VorschauBild.Move(form.Col2Left, form.FavoritenListe.Top(), width, height);
}

void Layout::ResizeSettingsWindow() {
    const int left = form.ListLeft + form.ListWidth + 100;
    const int top = form.VorschauBild.Top() + form.VorschauBild.Height();
    form.SettingsFrame.Move(left, top, form.Width() - left - 100, form.Height() - top);
    PlaceInFrame();
    PlaceFrameRows();
    PlaceDrivesHome();
    PlaceFavouriteButtons();
    KeepDrivesInside();
}

void Layout::PlaceInFrame() {
    forms::Label& name = form.Current_ProgramNameFull;
    const int width = form.SettingsFrame.Width() - 100;
    name.Move(100, 200, width, std::max(name.TextHeight(), 0));
    if (name.Height() > form.SettingsFrame.Height())
        form.SettingsFrame.SetHeight(2 * name.Height());
}

// From the right and from the bottom: the exit and the search, above them options and rescan, below
// them the font size and the pins.
void Layout::PlaceFrameRows() {
    constexpr int pitch = 540;
    const int frameWidth = form.SettingsFrame.Width();
    const int lowest = form.SettingsFrame.Height() - 800;
    const auto place = [](forms::Control& control, int left, int top) {
        control.Move(left, top, control.Width(), control.Height());
    };
    place(form.SettingsBtn, frameWidth - form.SettingsBtn.Width() - 300, lowest - 2 * pitch);
    form.SettingsShortBtn.Move(form.SettingsBtn.Left(), form.SettingsBtn.Top(),
                               form.SettingsBtn.Width(), form.SettingsBtn.Height());
    place(form.ExitBtn, frameWidth - form.ExitBtn.Width() - 300, lowest - pitch);
    place(form.SearchDblsTxt, form.ExitBtn.Left() - form.SearchDblsTxt.Width() - 300,
          lowest - pitch);
    place(form.SearchAllBtn, form.SearchDblsTxt.Left() - form.SearchAllBtn.Width() - 100,
          lowest - pitch);
    form.SuchErg.Move(form.SearchDblsTxt.Right() + 20, form.SearchDblsTxt.Top() + 75, 260, 260);
    place(form.LoadBtn, form.SearchAllBtn.Left(), lowest - 2 * pitch);
    place(form.FontSizeCombo, form.SearchAllBtn.Left(), lowest);
    place(form.AlwaysOnTop1, frameWidth - form.AlwaysOnTop1.Width() - 150, lowest);
    place(form.JoystickIcon, form.AlwaysOnTop1.Left() - form.JoystickIcon.Width() - 200, lowest);
}

// The panel lies in the frame, above its rows, until somebody drags it away.
void Layout::PlaceDrivesHome() {
    forms::PictureBox& panel = form.SettingsSubPicture;
    const bool atHome =
        drivesHomeLeft < 0 || (panel.Left() == drivesHomeLeft && panel.Top() == drivesHomeTop);
    drivesHomeLeft = form.SettingsFrame.Left() + 100;
    drivesHomeTop = form.SettingsFrame.Top() + form.LoadBtn.Top() - 750;
    if (atHome) panel.Move(drivesHomeLeft, drivesHomeTop, panel.Width(), panel.Height());
}

// Above the drives panel's home: one place for adding and removing, of which only one makes sense
// at a time, and one for the global list.
void Layout::PlaceFavouriteButtons() {
    constexpr int gap = 90;
    const int top = drivesHomeTop - form.AddToFavorit.Height() - gap;
    const auto place = [&](forms::CommandButton& button, int left) {
        button.Move(left, top, button.Width(), button.Height());
    };
    place(form.AddToFavorit, drivesHomeLeft);
    place(form.DeLFav, drivesHomeLeft);
    place(form.AddToFavorit_Global, form.AddToFavorit.Right() + gap);
}

void Layout::KeepDrivesInside() {
    forms::PictureBox& panel = form.SettingsSubPicture;
    if (panel.Left() > form.Width() - 300) panel.SetLeft(form.Width() - panel.Width() - 200);
    if (panel.Top() > form.Height() - 500) panel.SetTop(form.Height() - panel.Height() - 200);
    // Beyond the other edges nothing would be left to grab it by.
    constexpr int leastInside = 150;
    if (panel.Right() < leastInside) panel.SetLeft(200);
    if (panel.Bottom() < leastInside) panel.SetTop(200);
}

void Layout::ArrangeLists() {
    form.GlobalSearchList.SetVisible(false);
    form.SearchAllBtn.SetBackColor(forms::Rgb(255, 255, 255));
    if (form.WindowReady) {
        SetVorschau();
        form.GamePictureVis.Move(0, 0, form.VorschauBild.Width(), form.VorschauBild.Height());
    }
    form.EmulatorLongListbox.Move(form.ListLeft, form.FavoritenListe.Top(), form.ListWidth,
                                  form.ListHeight);
    ShowListOfMode();
    if (form.FavoritenListeGlobal.Visible()) form.FavoritenListeGlobal.BringToFront();
    ArrangeTabs();
}

void Layout::ShowListOfMode() {
    const int mode = form.Mode() == 7 ? 4 : form.Mode();
    const bool emulators = mode == 5 || mode == 10;
    const std::array<forms::ListBox*, 4> lists{&form.FavoritenListe, &form.WIthoutDoubles,
                                               &form.UAE_Short, &form.SuchErgList};
    for (int i = 0; i < 4; ++i) {
        const bool kept =
            mode == i + 1 || (emulators && lists[static_cast<std::size_t>(i)] == &form.UAE_Short);
        if (!kept) lists[static_cast<std::size_t>(i)]->SetVisible(false);
    }
    // While an emulator runs the window shows that, and no list.
    if (form.AppRunningPicture.Visible()) return;
    if (emulators) {
        form.EmulatorLongListbox.SetBackColor(form.EmulatorListColor);
        form.EmulatorLongListbox.SetFont(form.Label4.GetFont());
        form.EmulatorLongListbox.SetVisible(true);
        form.EmulatorLongListbox.BringToFront();
    } else if (mode >= 1 && mode <= 4) {
        lists[static_cast<std::size_t>(mode - 1)]->SetVisible(true);
    }
}

void Layout::ArrangeTabs() {
    const int mode = form.Mode() == 7 ? 4 : form.Mode();
    const bool running = form.AppRunningPicture.Visible();
    const std::array<forms::Label*, 4> tabs{&form.Label1, &form.Label2, &form.Label3, &form.Label4};
    for (int i = 0; i < 4; ++i) {
        forms::Label& tab = *tabs[static_cast<std::size_t>(i)];
        tab.SetBackColor(form.FormBackColor);
        tab.SetForeColor(form.FormForeColor);
        tab.SetOpaque(mode == i + 1);
        const bool favouritesAtRight = i == 0 && (mode == 5 || mode == 10);
        tab.SetVisible(!running && (mode < 3 ? i < 3 : mode <= 4 || favouritesAtRight));
    }
    PlaceTabs();
}

void Layout::PlaceTabs() {
    const bool choosing = form.Mode() == 5 || form.Mode() == 10;
    int left = form.EmuListbox.Right() + tabGap;
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

void Layout::DrivesResizeLabel_Click() {
    constexpr int foldedWidth = 480, foldedHeight = 210;
    forms::PictureBox& panel = form.SettingsSubPicture;
    const bool folded = panel.Width() == foldedWidth && panel.Height() == foldedHeight;
    if (folded) {
        panel.Move(panel.Left(), panel.Top(), drivesWidth, drivesHeight);
        form.DrivesResizeLabel.SetCaption(std::string(10, ' '));
        return;
    }
    drivesWidth = panel.Width();
    drivesHeight = panel.Height();
    panel.Move(panel.Left(), panel.Top(), foldedWidth, foldedHeight);
    form.DrivesResizeLabel.SetCaption(">");
}

void Layout::SettingsSubPicture_Resize() {
    form.DrivesResizeLabel.SetLeft(form.SettingsSubPicture.Width() -
                                   form.DrivesResizeLabel.Width());
    form.DrivesResizeLabel.SetTop(form.SettingsSubPicture.Height() -
                                  form.DrivesResizeLabel.Height());
}

void Layout::Current_ProgramNameFull_Change() {
    // Breaking the caption changes it, and comes back here.
    if (wrapping) return;
    const core::Raised once(wrapping);
    forms::Label& name = form.Current_ProgramNameFull;
    const auto width = [&](const std::string& caption) {
        return static_cast<double>(name.WidthOf(caption));
    };
    const library::WrappedCaption wrapped =
        library::WrapCaption(name.Caption(), width, name.Width());
    name.SetCaption(wrapped.caption);
    if (wrapped.hide) name.SetVisible(false);
    name.SetHeight(name.TextHeight());
}

}  // namespace kivu::ui
