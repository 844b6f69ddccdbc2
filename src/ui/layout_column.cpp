// The frame below the picture: the name, the buttons and the search.

#include <algorithm>

#include "core/form1.h"
#include "core/raised.h"
#include "library/short_names.h"
#include "text/string_ops.h"
#include "ui/column_grid.h"
#include "ui/layout.h"

namespace kivu::ui {

namespace {
constexpr int nameTop = 200;
// For the words on the favourites' buttons.
constexpr int leastButton = 1700, longestButton = 2350;

// Every step is a whole number of pixels, so that what stands in a frame whose top and height
// change by it stays on its pixel.
int WholePixels(int twips) {
    return twips / forms::twipsPerPixel * forms::twipsPerPixel;
}
}  // namespace

void Layout::ResizeSettingsWindow() {
    const int left = form.ListLeft + form.ListWidth + 100;
    const int width = form.Width() - left - 100;
    FitDrives(width - columnLeft - columnRight);
    // The picture may still be that of a larger window.
    const int below = std::max(0, form.Height() - form.VorschauBild.Bottom());
    const int height = HeightOfFrame(width, below);
    form.SettingsFrame.Move(left, form.Height() - height, width, height);
    PlaceName();
    PlaceFrameRows();
    PlaceDrivesHome();
    PlaceFavouriteButtons();
    KeepDrivesInside();
}

// Two buttons beside one another need so much for their words.
bool Layout::Stacked(int frameWidth) const {
    return frameWidth - columnLeft - columnRight < leastButton + longestButton + rowGap;
}

// From the name's bottom edge to the frame's: the favourites' buttons, the drives and the rows.
int Layout::RoomBelowName(int frameWidth) const {
    return (Stacked(frameWidth) ? 2 : 1) * rowPitch + rowGap + belowDrives + drivesHeight;
}

int Layout::HeightOfName(int width) const {
    const forms::Label& name = form.Current_ProgramNameFull;
    if (name.Caption().empty()) return 0;
    return name.ShownLines(std::max(1, width)) * name.ShownLineHeight();
}

// A name of many lines needs more than the picture leaves. The frame then begins higher, since the
// rows at its bottom have to stay in the window, but not above the lists.
int Layout::HeightOfFrame(int width, int height) const {
    const int text = HeightOfName(width - 100);
    if (text == 0) return height;
    const int wanted = nameTop + text + RoomBelowName(width);
    const int most = form.Height() - form.FavoritenListe.Top();
    const int more = std::min(wanted, most) - height;
    if (more <= 0) return height;
    const int step = WholePixels(more + forms::twipsPerPixel - 1);
    return height + (height + step > most ? WholePixels(more) : step);
}

void Layout::PlaceName() {
    forms::Label& name = form.Current_ProgramNameFull;
    const int width = form.SettingsFrame.Width() - 100;
    const int text = HeightOfName(width);
    const int line = name.ShownLineHeight();
    const int room =
        form.SettingsFrame.Height() - nameTop - RoomBelowName(form.SettingsFrame.Width());
    const int lines = std::max(1, room / line);
    name.Move(100, nameTop, width, std::clamp(text, line, lines * line));
    // What is cut can be read there.
    const bool whole = text <= lines * line;
    name.SetToolTipText(whole ? "" : text::replaceall(fullName, "\r", " "));
}

// From the right and from the bottom: the exit and the search, above them options and rescan, below
// them the font size and the pins.
void Layout::PlaceFrameRows() {
    const int frameWidth = form.SettingsFrame.Width();
    const int lowest = form.SettingsFrame.Height() - lowestRow;
    const int middle = lowest - rowPitch, highest = lowest - 2 * rowPitch;
    const bool narrow = frameWidth < 3800;
    const int buttons = narrow ? 1050 : 1200;
    const int right = frameWidth - buttons - columnRight;
    for (forms::CommandButton* button : {&form.LoadBtn, &form.SettingsBtn, &form.SettingsShortBtn,
                                         &form.SearchAllBtn, &form.ExitBtn})
        button->SetFontSize(narrow ? 8 : 10);
    form.SettingsBtn.Move(right, highest, buttons, rowHeight);
    form.SettingsShortBtn.Move(right, highest, buttons, rowHeight);
    form.ExitBtn.Move(right, middle, buttons, rowHeight);
    // Between the search box and the exit the magnifier has its place.
    constexpr int magnifier = 260, besides = 300;
    const int leftEnd = right - besides;
    const auto within = [](int left, int end) { return std::max(300, end - left); };
    const int all = narrow ? 580 : 660, gap = narrow ? 50 : 100;
    const int search = within(columnLeft + all + gap, leftEnd);
    form.SearchDblsTxt.Move(leftEnd - search, middle, search, rowHeight);
    form.SearchAllBtn.Move(form.SearchDblsTxt.Left() - all - gap, middle, all, rowHeight);
    form.SuchErg.Move(leftEnd + (besides - magnifier) / 2, middle + (rowHeight - magnifier) / 2,
                      magnifier, magnifier);
    form.LoadBtn.Move(columnLeft, highest, within(columnLeft, narrow ? right - 90 : leftEnd),
                      rowHeight);
    form.AlwaysOnTop1.Move(frameWidth - form.AlwaysOnTop1.Width() - 150, lowest,
                           form.AlwaysOnTop1.Width(), form.AlwaysOnTop1.Height());
    form.JoystickIcon.Move(form.AlwaysOnTop1.Left() - form.JoystickIcon.Width() - 200, lowest,
                           form.JoystickIcon.Width(), form.JoystickIcon.Height());
    const int sizesEnd = narrow ? form.JoystickIcon.Left() - 60 : leftEnd;
    form.FontSizeCombo.Move(columnLeft, lowest, within(columnLeft, sizesEnd), rowHeight);
}

// Above the drives panel's home: one place for adding and removing, of which only one makes sense
// at a time, and one for the global list, on top of them where they do not fit beside one another.
void Layout::PlaceFavouriteButtons() {
    const int room = form.SettingsFrame.Width() - columnLeft - columnRight;
    const bool stacked = Stacked(form.SettingsFrame.Width());
    const int both = room - rowGap;
    const int global = std::max(0, stacked ? room : std::max(both / 2, longestButton));
    const int width = std::max(0, stacked ? room : both - global);
    const int top = drivesHomeTop - rowPitch;
    form.AddToFavorit.Move(drivesHomeLeft, top, width, rowHeight);
    form.DeLFav.Move(drivesHomeLeft, top, width, rowHeight);
    form.AddToFavorit_Global.Move(drivesHomeLeft + room - global, stacked ? top - rowPitch : top,
                                  global, rowHeight);
}

void Layout::Current_ProgramNameFull_Change() {
    // Breaking the caption changes it, and comes back here.
    if (wrapping) return;
    const core::Raised once(wrapping);
    forms::Label& name = form.Current_ProgramNameFull;
    const std::string given = name.Caption();
    // More may be put behind a caption as it has been broken here.
    const bool goesOn = !brokenName.empty() && given.starts_with(brokenName);
    fullName = goesOn ? fullName + given.substr(brokenName.size()) : given;
    const auto width = [&](const std::string& caption) {
        return static_cast<double>(name.WidthOf(caption));
    };
    const library::WrappedCaption wrapped = library::WrapCaption(given, width, name.Width());
    brokenName = wrapped.caption;
    name.SetCaption(wrapped.caption);
    // The breaks have taken letters away.
    name.SetShownText(fullName == wrapped.caption ? "" : fullName);
    if (wrapped.hide) name.SetVisible(false);
    ResizeSettingsWindow();
}

void Layout::Current_ProgramNameFull_FontChange() {
    ResizeSettingsWindow();
}

}  // namespace kivu::ui
