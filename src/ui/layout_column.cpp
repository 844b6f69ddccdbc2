// The frame below the picture: the name, the buttons and the search.

#include <algorithm>

#include "core/form1.h"
#include "core/raised.h"
#include "library/short_names.h"
#include "text/string_ops.h"
#include "text/text.h"
#include "ui/column_grid.h"
#include "ui/layout.h"
#include "ui/move_what_fits.h"

namespace kivu::ui {

namespace {
// For the words on the favourites' buttons.
constexpr int leastButton = 1700, longestButton = 2350;
constexpr const char* ellipsis = "…";
}  // namespace

void Layout::ResizeSettingsWindow() {
    const int left = form.ListLeft + form.ListWidth + 100;
    const int width = form.Width() - left - 100;
    FitDrives(width - columnLeft - columnRight);
    const int top = PictureBottom();
    MoveWhatFits(form.SettingsFrame, left, top, width, form.Height() - top);
    rows = FitColumn({form.SettingsFrame.Height(), form.Current_ProgramNameFull.ShownLineHeight(),
                      drivesHeight, Stacked() ? 2 : 1});
    PlaceName();
    PlaceFrameRows();
    PlaceDrivesHome();
    PlaceFavouriteButtons();
    ShowPictureAboveButtons();
    KeepDrivesInside();
}

// Two buttons beside one another need so much for their words.
bool Layout::Stacked() const {
    return form.SettingsFrame.Width() - columnLeft - columnRight <
           leastButton + longestButton + columnGap;
}

// As many of its lines as there is room for; what is cut can be read in the tool tip.
void Layout::PlaceName() {
    forms::Label& name = form.Current_ProgramNameFull;
    const int width = std::max(1, form.SettingsFrame.Width() - 100);
    const int line = name.ShownLineHeight();
    int below = rows.AboveRows();
    if (!rows.outside) below += drivesHeight + (Stacked() ? 2 : 1) * rows.Pitch() + rows.gap;
    const int room = std::max(0, (form.SettingsFrame.Height() - nameTop - below) / line);
    const std::string& whole = fullName.empty() ? name.Caption() : fullName;
    const int lines = whole.empty() ? 0 : name.LinesOf(whole, width);
    name.Move(100, nameTop, width, std::min(std::max(1, lines), room) * line);
    const bool fits = lines <= room;
    name.SetShownText(!fits                     ? Shortened(whole, width, std::max(1, room))
                      : whole == name.Caption() ? std::string()
                                                : whole);
    name.SetToolTipText(fits ? "" : text::replaceall(whole, "\r", " "));
}

// The longest beginning that fits into so many lines, with the sign that something is left out.
std::string Layout::Shortened(std::string_view whole, int width, int lines) const {
    const forms::Label& name = form.Current_ProgramNameFull;
    if (name.LinesOf(whole, width) <= lines) return std::string(whole);
    const auto upTo = [&](std::size_t characters) {
        const std::string_view kept = whole.substr(0, text::CodePointOffset(whole, characters));
        return std::string(text::TrimRight(kept)) + ellipsis;
    };
    std::size_t least = 0, most = text::CodePointCount(whole);
    while (least < most) {
        const std::size_t middle = (least + most + 1) / 2;
        if (name.LinesOf(upTo(middle), width) <= lines) {
            least = middle;
        } else {
            most = middle - 1;
        }
    }
    return upTo(least);
}

// From the right and from the bottom: the exit and the search, above them options and rescan, below
// them the font size and the pins.
void Layout::PlaceFrameRows() {
    const int frameWidth = form.SettingsFrame.Width();
    const int height = form.SettingsFrame.Height();
    // In a window with little room the sizes go first, then the options; the exit stays.
    const auto topOf = [&](int row) {
        return row < 0 || row > 2 - rows.hidden ? height : height - rows.TopOf(row);
    };
    const int lowest = topOf(rows.hidden > 0 ? -1 : 0);
    const int middle = topOf(rows.hidden > 0 ? 0 : 1), highest = topOf(rows.hidden > 0 ? 1 : 2);
    const bool narrow = frameWidth < 3800;
    const int buttons = narrow ? 1050 : 1200;
    const int right = frameWidth - buttons - columnRight;
    for (forms::CommandButton* button : {&form.LoadBtn, &form.SettingsBtn, &form.SettingsShortBtn,
                                         &form.DonateBtn, &form.SearchAllBtn, &form.ExitBtn})
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
    // The donations only where the rescan's words have room beside them.
    const int donateWidth = 1080, leastRescan = 1950;
    const int donate = right - 90 - donateWidth;
    const bool donations = form.DonateBtn.Visible() && donate - 90 - columnLeft >= leastRescan;
    form.DonateBtn.Move(donate, donations ? highest : height, donateWidth, rowHeight);
    const int rescanEnd = donations ? donate - 90 : narrow ? right - 90 : leftEnd;
    form.LoadBtn.Move(columnLeft, highest, within(columnLeft, rescanEnd), rowHeight);
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
    const bool stacked = Stacked();
    const int both = room - columnGap;
    const int global = std::max(0, stacked ? room : std::max(both / 2, longestButton));
    const int width = std::max(0, stacked ? room : both - global);
    const int top = drivesHomeTop - rows.Pitch();
    form.AddToFavorit.Move(drivesHomeLeft, top, width, rowHeight);
    form.DeLFav.Move(drivesHomeLeft, top, width, rowHeight);
    form.AddToFavorit_Global.Move(drivesHomeLeft + room - global,
                                  stacked ? top - rows.Pitch() : top, global, rowHeight);
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
    if (wrapped.hide) name.SetVisible(false);
    ResizeSettingsWindow();
}

void Layout::Current_ProgramNameFull_FontChange() {
    ResizeSettingsWindow();
}

}  // namespace kivu::ui
