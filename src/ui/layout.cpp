#include "ui/layout.h"

#include <algorithm>
#include <array>

#include "library/short_names.h"
#include "support/string_ops.h"
#include "support/text.h"
#include "ui/layout_numbers.h"

namespace kivu::ui {

namespace {
constexpr int cornerRadius = 30;  // pixels
constexpr int tabGap = 200;
constexpr int nameTop = 200;  // of the current entry's name, in its frame
constexpr int rowPitch = 540;
constexpr int buttonGap = 90;
constexpr int lowestRow = 800;  // from the frame's bottom
constexpr int drivesRow = lowestRow + 2 * rowPitch + 750;

// How many lines a line becomes where it breaks between words, and wherever it must within one.
int BrokenLines(const forms::Label& label, std::string_view line, int width) {
    int lines = 1;
    std::size_t begin = 0, word = 0;
    while (word < line.size()) {
        const std::size_t end = std::min(line.find(' ', word), line.size());
        if (label.WidthOf(line.substr(begin, end - begin)) > width) {
            lines += word > begin;
            begin = word;
            lines += std::max(0, label.WidthOf(line.substr(begin, end - begin)) - 1) / width;
        }
        word = end + 1;
    }
    return lines;
}
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
        // The open choice keeps it as wide as its list.
        form.EmuListbox.SetWidth(form.ChoiceInFront() ? form.EmulatorLongListbox.Width()
                                                      : WidthOfEmuListbox());
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

int Layout::WidthOfEmuListbox() const {
    return static_cast<int>(220 * form.EmuListbox.FontSize());
}

void Layout::PlaceBusySigns() {
    const forms::ListBox& lists = form.FavoritenListe;
    form.LoadingBtn.Move(lists.Left(), lists.Top(), lists.Width(), lists.Height());
    forms::Image& running = form.AppRunningPicture;
    running.SetLeft(lists.Left() + (lists.Width() - running.Width()) / 2);
    running.SetTop(lists.Top() + lists.Height() / 2 + 900);
    const forms::ComboBox& box = form.EmuListbox;
    // It shows beside a closed choice alone.
    const int left = box.Left() + WidthOfEmuListbox() + tabGap;
    form.Current_LoadingSmallBtn.Move(
        left, box.Top(), std::max(0, form.TopRightPic.Left() - left - tabGap), box.Height());
}

void Layout::SetVorschau() {
    const int width = form.Col2Width + form.Col3Width + 300;
    const int height = std::min(width, form.ListHeight - 400);
    form.VorschauBild.Move(form.Col2Left, form.FavoritenListe.Top(), width, height);
}

void Layout::ResizeSettingsWindow() {
    const int left = form.ListLeft + form.ListWidth + 100;
    const int width = form.Width() - left - 100;
    stacked =
        100 + form.AddToFavorit.Width() + buttonGap + form.AddToFavorit_Global.Width() > width;
    const int height = HeightOfFrame(width, form.Height() - form.VorschauBild.Bottom());
    form.SettingsFrame.Move(left, form.Height() - height, width, height);
    PlaceName();
    PlaceFrameRows();
    PlaceDrivesHome();
    PlaceFavouriteButtons();
    KeepDrivesInside();
}

// From the name's bottom edge to the frame's: the favourites' buttons, the drives and the rows.
int Layout::RoomBelowName() const {
    return (stacked ? 2 : 1) * (form.AddToFavorit.Height() + buttonGap) + buttonGap + drivesRow;
}

int Layout::LineOfName() const {
    const std::string& caption = form.Current_ProgramNameFull.Caption();
    const auto breaks = static_cast<int>(std::count(caption.begin(), caption.end(), '\r'));
    return std::max(1, form.Current_ProgramNameFull.TextHeight() / (breaks + 1));
}

// With the breaks that the view adds where a line is too wide all the same.
int Layout::HeightOfName(int width) const {
    const forms::Label& name = form.Current_ProgramNameFull;
    const std::string_view caption = name.Caption();
    if (caption.empty()) return 0;
    int lines = 0;
    for (std::size_t start = 0; start <= caption.size();) {
        const std::size_t end = std::min(caption.find('\r', start), caption.size());
        lines += BrokenLines(name, caption.substr(start, end - start), std::max(1, width));
        start = end + 1;
    }
    return lines * LineOfName();
}

// A name of many lines needs more than the picture leaves. The frame then begins higher, since the
// rows at its bottom have to stay in the window, but not above the lists.
int Layout::HeightOfFrame(int width, int height) const {
    const int text = HeightOfName(width - 100);
    if (text == 0) return height;
    const int wanted = nameTop + text + RoomBelowName();
    return std::max(height, std::min(wanted, form.Height() - form.FavoritenListe.Top()));
}

void Layout::PlaceName() {
    forms::Label& name = form.Current_ProgramNameFull;
    const int width = form.SettingsFrame.Width() - 100;
    const int text = HeightOfName(width);
    const int line = LineOfName();
    const int lines = std::max(1, (form.SettingsFrame.Height() - nameTop - RoomBelowName()) / line);
    name.Move(100, nameTop, width, std::clamp(text, line, lines * line));
    // What is cut, or has lost a letter to a break, can be read there.
    const bool whole = text <= lines * line && name.WidthOf(name.Caption()) <= width;
    name.SetToolTipText(whole ? "" : support::replaceall(fullName, "\r", " "));
}

// From the right and from the bottom: the exit and the search, above them options and rescan, below
// them the font size and the pins.
void Layout::PlaceFrameRows() {
    const int frameWidth = form.SettingsFrame.Width();
    const int lowest = form.SettingsFrame.Height() - lowestRow;
    const auto place = [](forms::Control& control, int left, int top) {
        control.Move(left, top, control.Width(), control.Height());
    };
    place(form.SettingsBtn, frameWidth - form.SettingsBtn.Width() - 300, lowest - 2 * rowPitch);
    form.SettingsShortBtn.Move(form.SettingsBtn.Left(), form.SettingsBtn.Top(),
                               form.SettingsBtn.Width(), form.SettingsBtn.Height());
    place(form.ExitBtn, frameWidth - form.ExitBtn.Width() - 300, lowest - rowPitch);
    // A narrow window leaves less for the search box.
    constexpr int widest = 2250, narrowest = 900, margin = 150;
    const int room = form.ExitBtn.Left() - 300 - 100 - form.SearchAllBtn.Width() - margin;
    form.SearchDblsTxt.SetWidth(std::clamp(room, narrowest, widest));
    place(form.SearchDblsTxt, form.ExitBtn.Left() - form.SearchDblsTxt.Width() - 300,
          lowest - rowPitch);
    place(form.SearchAllBtn, form.SearchDblsTxt.Left() - form.SearchAllBtn.Width() - 100,
          lowest - rowPitch);
    form.SuchErg.Move(form.SearchDblsTxt.Right() + 20, form.SearchDblsTxt.Top() + 75, 260, 260);
    place(form.LoadBtn, form.SearchAllBtn.Left(), lowest - 2 * rowPitch);
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
    drivesHomeTop = form.SettingsFrame.Bottom() - drivesRow;
    if (atHome) panel.Move(drivesHomeLeft, drivesHomeTop, panel.Width(), panel.Height());
}

// Above the drives panel's home: one place for adding and removing, of which only one makes sense
// at a time, and one for the global list, on top of them where they do not fit beside one another.
void Layout::PlaceFavouriteButtons() {
    const int top = drivesHomeTop - form.AddToFavorit.Height() - buttonGap;
    const auto place = [](forms::CommandButton& button, int left, int top) {
        button.Move(left, top, button.Width(), button.Height());
    };
    place(form.AddToFavorit, drivesHomeLeft, top);
    place(form.DeLFav, drivesHomeLeft, top);
    forms::CommandButton& toGlobal = form.AddToFavorit_Global;
    if (stacked) {
        place(toGlobal, drivesHomeLeft, top - toGlobal.Height() - buttonGap);
    } else {
        place(toGlobal, form.AddToFavorit.Right() + buttonGap, top);
    }
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
    // There is nothing to remove where no favourite is on show.
    if (!form.FavoritenListe.Visible() && !form.FavoritenListeGlobal.Visible())
        form.DeLFav.SetVisible(false);
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

// What a large font or a small window leaves no room for is cut, and told by a tool tip.
void Layout::FitTabs(int left, bool choosing) {
    std::vector<forms::Label*> tabs;
    std::vector<int> widths;
    std::size_t current = 0;
    for (forms::Label* tab : {&form.Label1, &form.Label2, &form.Label3, &form.Label4}) {
        if (!tab->Visible()) continue;
        if (tab->IsOpaque()) current = tabs.size();
        tabs.push_back(tab);
        widths.push_back(tab->TextWidth() + 2 * forms::twipsPerPixel);
    }
    const int gaps = static_cast<int>(tabs.size()) * tabGap;
    const std::vector<int> fitting = TabWidths(widths, current, form.Width() - left - gaps, 300);
    // Over the hits of all emulators one caption covers the others, and the window's edge cuts it.
    // Over the open choice there is but one tab.
    const bool covered = form.GlobalSearchList.Visible() || choosing;
    for (std::size_t i = 0; i < tabs.size(); ++i) {
        if (covered && tabs[i] == &form.Label4) continue;
        const bool whole = covered || fitting[i] == widths[i];
        tabs[i]->SetAutoSize(whole);
        tabs[i]->SetToolTipText(whole ? "" : std::string(support::Trim(tabs[i]->Caption())));
        if (!whole) tabs[i]->SetWidth(fitting[i]);
    }
}

void Layout::PlaceTabs() {
    // A width that is set comes back here.
    if (placingTabs) return;
    const core::Raised once(placingTabs);
    const bool choosing = form.Mode() == 5 || form.Mode() == 10;
    int left = form.EmuListbox.Right() + tabGap;
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
    fullName = name.Caption();
    const auto width = [&](const std::string& caption) {
        return static_cast<double>(name.WidthOf(caption));
    };
    const library::WrappedCaption wrapped =
        library::WrapCaption(name.Caption(), width, name.Width());
    name.SetCaption(wrapped.caption);
    if (wrapped.hide) name.SetVisible(false);
    ResizeSettingsWindow();
}

}  // namespace kivu::ui
