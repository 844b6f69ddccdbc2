#include "launch/drive_slots.h"

#include <algorithm>
#include <vector>

#include "core/emulator_paths.h"
#include "core/form1.h"
#include "library/short_names.h"
#include "text/paths.h"

namespace kivu::launch {

namespace {
constexpr int reachForward = 14;  // rows behind the selected one
}  // namespace

void DriveSlots::SelectSimilarDisks(int FromRow, int RowsBack, int, int Limit) {
    const int first = std::max(FromRow - RowsBack, 0);
    const int last =
        std::min(form.UAE_Short.ListIndex() + reachForward, form.UAE_Short.ListCount() - 1);
    const std::string wanted = text::GetFileNameOnly(form.UAE_FULL.SelectedText());
    std::size_t drive = 0;
    for (int row = first; row <= last && drive < form.Check_Dfx.size(); ++row) {
        const std::string& path = form.UAE_FULL.List(row);
        const std::string_view name = text::FileNameView(path);
        if (library::getCharDiff(name, wanted, Limit) >= Limit) continue;
        Show(drive, path);
        form.DiskSlots[drive] = path;
        if (!form.ShortListHasFocus) form.UAE_Short.SetSelected(row, true);
        ++drive;
    }
}

void DriveSlots::FillFromFile() {
    const bool smart = SmartRomSelection() == 1;
    Empty();
    if (smart) {
        const std::vector<int> chosen = form.UAE_Short.SelectedRows();
        // From the end, where a row goes out of a long choice without moving the others.
        for (auto row = chosen.rbegin(); row != chosen.rend(); ++row) {
            if (*row != form.UAE_Short.ListIndex()) form.UAE_Short.SetSelected(*row, false);
        }
        // Also after a click that has taken its mark away.
        form.UAE_Short.SetSelected(form.UAE_Short.ListIndex(), true);
        Show(0, form.UAE_FULL.SelectedText());
        form.DiskSlots[0] = form.UAE_FULL.SelectedText();
    } else {
        FillByHand();
    }
    form.OfferFavourites();
    if (!smart) return;
    form.DiskSlots[0] = form.UAE_FULL.SelectedText();
    SelectSimilarDisks(form.UAE_Short.ListIndex(), 4, reachForward, 5);
}

// Only the boxes are filled: the drives stay empty, and the game reaches the emulator by its
// command line.
void DriveSlots::FillByHand() {
    std::size_t drive = 0;
    for (const int row : form.UAE_Short.SelectedRows()) {
        if (drive == form.Check_Dfx.size()) {
            beeper.Beep();
            form.MyCaptionLabel.SetCaption(form.Say("Keine Laufw. mehr frei", "No empty drive"));
            return;
        }
        Show(drive, form.UAE_FULL.List(row));
        ++drive;
    }
}

void DriveSlots::FillFromGame(int row) {
    // Any number but 0, where a click on a file asks for 1.
    if (SmartRomSelection() != 0) SelectSimilarDisks(row, 0, reachForward, 1);
}

void DriveSlots::ShowOneDisk() {
    if (form.WIthoutDoubles.Width() <= form.QuarterWidth) return;
    for (std::size_t drive = 0; drive < form.Check_Dfx.size(); ++drive)
        form.Check_Dfx[drive].SetValue(drive == 0 ? 1 : 0);
}

void DriveSlots::Check_Dfx_MouseUp(int Index) {
    if (Index < 0 || Index >= static_cast<int>(form.Check_Dfx.size())) return;
    const auto drive = static_cast<std::size_t>(Index);
    if (form.DiskSlots[drive].empty()) form.Check_Dfx[drive].SetValue(0);
}

void DriveSlots::Check_Dfx_KeyPress(int Index, forms::Character& character) {
    if (character.code != U' ' || Index < 0 || Index >= static_cast<int>(form.Check_Dfx.size()))
        return;
    if (!form.DiskSlots[static_cast<std::size_t>(Index)].empty()) return;
    Check_Dfx_MouseUp(Index);
    character.code = 0;
}

bool DriveSlots::SelectsByHand() const {
    return ini.Read(profile::keys::SmartRomSelectionAsked, core::ProfilesOf(form)) != 1;
}

int DriveSlots::SmartRomSelection() {
    return ini.Read(profile::keys::SmartRomSelectionInList, core::ProfilesOf(form));
}

void DriveSlots::Empty() {
    for (std::size_t drive = 0; drive < form.Check_Dfx.size(); ++drive) {
        form.Check_Dfx[drive].SetValue(0);
        form.Check_Dfx[drive].SetToolTipText("");
        form.DiskSlots[drive].clear();
    }
}

void DriveSlots::Show(std::size_t drive, const std::string& path) {
    form.Check_Dfx[drive].SetValue(1);
    form.Check_Dfx[drive].SetToolTipText(text::GetFileNameOnly(path));
}

}  // namespace kivu::launch
