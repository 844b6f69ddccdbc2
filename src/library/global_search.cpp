#include "library/global_search.h"

#include <algorithm>
#include <deque>
#include <utility>

#include "core/form1.h"
#include "core/raised.h"
#include "library/list_search.h"
#include "library/search_colors.h"
#include "text/string_ops.h"
#include "text/text.h"

namespace kivu::library {

namespace {

constexpr int tabGap = 200;
constexpr int margin = 120;  // a screen draws tabs with air around them
constexpr std::int32_t linesPerTurn = 100;

// Behind the caption, so that the label covers the tabs beside it.
const std::string& Backing() {
    static const std::string blanks(67, ' ');
    return blanks;
}

std::string EmulatorOf(std::string_view row) {
    return std::string(text::Trim(row.substr(0, row.find(':'))));
}

}  // namespace

std::string GlobalSearchRow(std::string_view emulator, std::string_view name) {
    std::string row(emulator);
    row.append(":  ").append(name);
    const std::size_t length = text::CodePointCount(name);
    for (const std::size_t below : {std::size_t{20}, std::size_t{40}, std::size_t{60}}) {
        if (length >= below) continue;
        row.append(below + 1 - length, ' ');
        break;
    }
    return row;
}

void AllEmulatorsSearch::SearchAllBtn_Click() {
    SearchForBox();
    hooks.RefreshHints();
}

void AllEmulatorsSearch::SearchForBox() {
    if (form.Busy) return;
    const bool fromBox = form.SearchDblsTxt.HasFocus();
    ArrangeForSearch();
    DressList();
    const std::string text = form.SearchDblsTxt.Text();
    if (form.Ended) return;
    if (IsIdleText(text)) {
        LeaveWithoutResults(fromBox);
        return;
    }
    if (!IsLongEnough(text)) {
        form.GlobalSearchList.Clear();
        form.SuchErgList.Clear();
        ShowResults();
        LeaveWithoutResults(fromBox);
        return;
    }
    form.GlobalSearchList.SetVisible(true);
    const Outcome outcome = Search(std::string(text::Trim(text)));
    if (form.Ended) return;
    if (outcome == Outcome::left) {
        LeaveForOtherList();
        return;
    }
    const int count = form.GlobalSearchList.ListCount();
    form.Label4.SetCaption(" Globale Suche: " + std::to_string(count) +
                           (count >= limit ? " (Abbr.)" : "") + Backing());
    ShowResults();
}

void AllEmulatorsSearch::ArrangeForSearch() {
    // The row that was chosen there so far has not been loaded.
    if (form.EmulatorLongListbox.Visible()) choice.CloseChoice();
    // Another list's picture may have been on view since.
    shownEmulator = -1;
    busy.HideAll(false);
    // It tells what is searched for, and takes the next search.
    form.ShowSearchBox(true);
    form.SearchAllBtn.SetBackColor(allEmulatorsColor);
    form.EmuListbox.SetWidth(form.EmuListboxWidth());
    PlaceLabel4();
    CoverTabs();
    form.SetMode(core::Front::results);
    ports.front->RefreshList();
}

void AllEmulatorsSearch::DressList() {
    forms::ListBox& list = form.GlobalSearchList;
    const forms::ListBox& place = form.SuchErgList;
    list.Clear();
    form.Label4.SetBackColor(list.BackColor());
    form.Label4.SetForeColor(list.ForeColor());
    list.Move(place.Left(), place.Top(), place.Width(), place.Height());
    forms::Font font = place.GetFont();
    font.name = form.EmuListbox.GetFont().name;
    font.size = form.EmuListbox.FontSize();
    list.SetFont(font);
    form.Label4.SetForeColor(list.ForeColor());
    list.SetBackColor(HitListColor(form.FormBackColor));
    form.SuchErgList.SetVisible(false);
}

// As wide with a counter as with the result, so that no tab looks out from under it.
void AllEmulatorsSearch::PlaceLabel4() {
    const std::string& caption = form.Label4.Caption();
    const bool backed = caption.ends_with(Backing());
    const int left = form.EmuListbox.Right() + tabGap;
    int width =
        form.Label4.WidthOf(backed ? caption : caption + Backing()) + 2 * forms::twipsPerPixel;
    // Counts of five digits make tabs that are wider than that.
    for (const forms::Label* tab : {&form.Label1, &form.Label2, &form.Label3}) {
        if (tab->Visible()) width = std::max(width, tab->Right() + margin - left);
    }
    form.Label4.SetAutoSize(false);
    form.Label4.SetWidth(width);
    form.Label4.SetLeft(left);
}

// The label covers the other tabs, of which one may have been brought to the front, and none of
// what stands in front of them all.
void AllEmulatorsSearch::CoverTabs() {
    form.Label4.BringToFront();
    form.SettingsSubPicture.BringToFront();
}

void AllEmulatorsSearch::ShowResults() {
    PlaceLabel4();
    form.Label4.SetBackColor(form.GlobalSearchList.BackColor());
    form.Label4.SetForeColor(form.GlobalSearchList.ForeColor());
    form.Label4.SetVisible(true);
    form.LoadingBtn.SetVisible(false);
    form.GlobalSearchList.SetListIndex(0);
    form.GlobalSearchList.SetFocus();
}

// Nothing has been searched for, so the window goes back to the current emulator's results.
void AllEmulatorsSearch::LeaveWithoutResults(bool backToBox) {
    busy.HideAll(true);
    ports.front->RefreshList();
    // The button that was clicked may have gone, and the focus with it.
    if (backToBox || !form.Focus()) form.SearchDblsTxt.SetFocus();
}

void AllEmulatorsSearch::LeaveForOtherList() {
    // The choice has arranged the window already.
    if (form.EmulatorLongListbox.Visible()) return;
    busy.HideAll(true);
    ports.front->RefreshList();
}

void AllEmulatorsSearch::LeaveResults() {
    if (form.Label4.Caption().ends_with(Backing())) {
        form.Label4.SetCaption(form.Say(" Suchergebnisse (", " Search results (") +
                               std::to_string(form.SuchErgList.ListCount()) + ") ");
    }
    const bool leaves =
        form.GlobalSearchList.Visible() && !form.Busy && !form.AppRunningPicture.Visible();
    if (leaves) busy.HideAll(true);
}

void AllEmulatorsSearch::SearchDblsTxt_Change() {
    if (!restoring) search.SearchDblsTxt_Change();
}

void AllEmulatorsSearch::GlobalSearch(const std::string& Text) {
    (void)Search(Text);
}

AllEmulatorsSearch::Outcome AllEmulatorsSearch::Search(const std::string& text) {
    // From here on events run; the window has been arranged in one go.
    const core::Raised working(form.Busy);
    form.SearchAllBtn.SetBackColor(allEmulatorsColor);
    form.SuchErgList.Clear();
    GlobalSearchText = text;
    if (text::Trim(text).empty()) return Outcome::through;
    const std::string notedText = form.SearchDblsTxt.Text();
    const std::string notedCaption = form.Label4.Caption();
    form.SearchDblsTxt.SetEnabled(false);
    form.SearchDblsTxt.SetText("Searching: " + notedText);
    hits = 0;
    lines = 0;
    watchingList = form.GlobalSearchList.Visible();
    ScanCaches(SearchWords(text));
    const bool left = !MayGoOn();
    {
        const core::Raised quiet(restoring);
        if (left) form.SearchDblsTxt.SetText(notedText);
    }
    if (!left) form.SearchDblsTxt.SetText(notedText);
    form.SearchDblsTxt.SetEnabled(true);
    form.Label4.SetCaption(notedCaption);
    return left ? Outcome::left : Outcome::through;
}

bool AllEmulatorsSearch::MayGoOn() const {
    return !form.Ended && (!watchingList || form.GlobalSearchList.Visible());
}

// A few caches are opened ahead, for both cores to have something to do.
void AllEmulatorsSearch::ScanCaches(const SearchWords& words) {
    CacheCrew crew(limit);
    std::deque<std::string> emulators;
    for (int row = 0; MayGoOn();) {
        while (crew.Count() < CacheCrew::enough) {
            auto cache = OpenNext(row, words);
            if (!cache) break;
            emulators.push_back(std::move(cache->emulator));
            crew.Add(std::move(cache->search));
        }
        if (crew.Count() == 0 || !Scan(emulators.front(), crew)) return;
        emulators.pop_front();
    }
}

// The next emulator with a cache from `row` on, which moves behind it.
std::optional<AllEmulatorsSearch::Cache> AllEmulatorsSearch::OpenNext(int& row,
                                                                      const SearchWords& words) {
    while (row < form.EmuListbox.ListCount()) {
        const std::string emulator = form.EmuListbox.List(row++);
        if (emulator.empty()) continue;
        auto cache = files.OpenFile(form.ConfigPath + emulator + files.Separator() + form.EXE +
                                    "_Cache.txt");
        if (!cache) continue;
        const auto decode = [this](std::string_view bytes) { return files.DecodeText(bytes); };
        return Cache{emulator, std::make_unique<CacheSearch>(std::move(cache), words, decode)};
    }
    return {};
}

// The cache in front. False: the search ends.
bool AllEmulatorsSearch::Scan(const std::string& emulator, CacheCrew& crew) {
    ShowProgress(emulator, lines);
    for (CacheSearch::Part part; MayGoOn();) {
        switch (crew.Next(part)) {
            case CacheCrew::Progress::found:
                if (!TakePart(emulator, part)) return false;
                break;
            case CacheCrew::Progress::busy:
                pacer.DoEventsWhenDue();
                break;
            case CacheCrew::Progress::through:
                return true;
        }
    }
    return false;
}

bool AllEmulatorsSearch::TakePart(const std::string& emulator, const CacheSearch::Part& part) {
    std::vector<std::string> rows;
    for (const CacheSearch::Hit& hit : part.hits) {
        if (hit.lowerName == GlobalLastName) continue;
        GlobalLastName = hit.lowerName;
        rows.push_back(GlobalSearchRow(emulator, hit.name));
        if (++hits > limit) break;
    }
    form.GlobalSearchList.AddItems(std::move(rows));
    if (hits > limit) return false;
    const std::int32_t before = lines;
    lines += static_cast<std::int32_t>(part.lineCount);
    if (lines / linesPerTurn == before / linesPerTurn) return true;
    form.Label4.SetVisible(true);
    ShowProgress(emulator, lines - lines % linesPerTurn);
    return true;
}

void AllEmulatorsSearch::ShowProgress(const std::string& emulator, std::int32_t linesShown) {
    form.Label4.SetCaption(emulator + ": (" + std::to_string(hits) + "/" +
                           std::to_string(linesShown) + ")");
    PlaceLabel4();
    pacer.DoEventsWhenDue();
}

int AllEmulatorsSearch::EmulatorRow(std::string_view name) const {
    const std::vector<std::string>& rows = form.EmuListbox.Rows();
    const auto found = std::find(rows.begin(), rows.end(), name);
    return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
}

void AllEmulatorsSearch::GlobalSearchList_Click() {
    const std::string row = form.GlobalSearchList.SelectedText();
    form.Current_ProgramNameFull.SetCaption(text::replaceall(text::Trim(row), ":", ":\r"));
    // Behind the caption: an emulator's name that is too wide to be broken must not hide the title,
    // of which the list may show little.
    form.Current_ProgramNameFull.SetVisible(true);
    const int emulator = EmulatorRow(EmulatorOf(row));
    if (emulator < 0 || emulator == shownEmulator) return;
    shownEmulator = emulator;
    hooks.ShowEmulatorPreview(emulator);
}

void AllEmulatorsSearch::GlobalSearchList_DblClick() {
    if (form.Busy) return;
    const std::string hit = form.GlobalSearchList.SelectedText();
    if (hit.find(':') == std::string::npos) return;
    const std::string name = EmulatorOf(hit);
    for (int row = 0; row < form.EmuListbox.ListCount() && !form.Ended; ++row) {
        if (form.EmuListbox.List(row) == name) OpenHit(row);
    }
}

// The game itself is not looked for: its emulator's results for the same text come up.
void AllEmulatorsSearch::OpenHit(int row) {
    form.EmuListbox.SetEnabled(true);
    choice.EmuListbox_GotFocus();
    form.EmuListbox.SetListIndex(row);
    form.GlobalSearchList.SetVisible(false);
    choice.EmuListbox_DblClick();
    if (form.Ended) return;
    // The same text again would not run the change routine by itself.
    const std::string text = std::exchange(GlobalSearchText, {});
    const bool same = form.SearchDblsTxt.Text() == text;
    form.SearchDblsTxt.SetText(text);
    if (same) search.SearchDblsTxt_Change();
    form.SuchErgList.SetVisible(false);
    form.SuchErgList.SetListIndex(0);
    ports.front->Label4_Click();
    form.SuchErgList.SetFocus();
}

void AllEmulatorsSearch::GlobalSearchList_KeyPress(forms::Character& character) {
    // While the caches are searched the box shows what for.
    if (form.Busy) return;
    if (character.code == forms::keys::enter) {
        GlobalSearchList_DblClick();
    } else if (BeginsSearch(character)) {
        choice.EmuListbox_KeyPress(character);
    }
}

}  // namespace kivu::library
