#include "library/game_lists.h"

#include <algorithm>
#include <numeric>
#include <vector>

#include "core/emulator_paths.h"
#include "core/form1.h"
#include "core/raised.h"
#include "library/file_scan_recursive.h"
#include "library/find_list_item.h"
#include "library/list_cache.h"
#include "library/short_names.h"
#include "support/fast_list_fill.h"
#include "support/path_forms.h"
#include "text/stored_path_order.h"
#include "text/stored_paths.h"
#include "text/text.h"

namespace kivu::library {

namespace {

// Paths and names in the order of the path list. A cache that another host or another language has
// written is in another order; sorted by itself, the path list would then no longer fit the names.
void SortPairs(const forms::ListBox& list, std::vector<std::string>& paths,
               std::vector<std::string>& names) {
    const auto before = [&](const std::string& a, const std::string& b) {
        return list.Precedes(a, b);
    };
    if (std::is_sorted(paths.begin(), paths.end(), before)) return;
    std::vector<std::size_t> places(paths.size());
    std::iota(places.begin(), places.end(), std::size_t{0});
    std::stable_sort(places.begin(), places.end(),
                     [&](std::size_t a, std::size_t b) { return before(paths[a], paths[b]); });
    std::vector<std::string> sortedPaths, sortedNames;
    sortedPaths.reserve(paths.size());
    sortedNames.reserve(paths.size());
    for (const std::size_t place : places) {
        sortedPaths.push_back(std::move(paths[place]));
        sortedNames.push_back(std::move(names[place]));
    }
    paths.swap(sortedPaths);
    names.swap(sortedNames);
}

}  // namespace

void GameLists::LoadCacheList() {
    busy.HideAll(false);
    const std::string noted = form.Caption();
    if (!form.CacheName.empty() && files.FileExists(form.CacheName)) {
        form.UAE_Short.Clear();
        form.UAE_FULL.Clear();
        form.UAE_Short.SetVisible(false);
        form.EmulatorLongListbox.SetVisible(false);
        form.FavoritenListe.SetVisible(false);
        form.SuchErgList.SetVisible(false);
        busy.MeCaption("Loading: ");
        busy.MeCaption("Loading: " + std::to_string(form.UAE_FULL.ListCount()));
        if (auto bytes = files.ReadFile(form.CacheName)) FillFromCache(*std::move(bytes));
        form.EmulatorLongListbox.SetVisible(false);
    }
    busy.MeCaption(noted);
    BuildDoublesList();
    UpdateListCaptions();
    busy.HideAll(false);
}

void GameLists::FillFromCache(std::string bytes) {
    const auto cache = std::make_shared<const LoadedCache>(std::move(bytes));
    // One look at the whole file is cheaper than one at each line.
    const bool utf8 = text::IsUtf8(cache->bytes);
    const bool asStored = utf8 && IsInOrder(cache->entries);
    std::vector<std::string> paths, names;
    const std::string base = form.BaseDirectory();
    int count = 0;
    for (const CacheEntry entry : cache->entries) {
        if (!asStored) {
            paths.push_back(utf8 ? text::StoredPath(base, entry.path)
                                 : text::StoredPath(base, PathOnDisk(entry.path)));
            names.push_back(utf8 || text::IsUtf8(entry.name) ? std::string(entry.name)
                                                             : files.DecodeText(entry.name));
        }
        if (++count % 500 != 0) continue;
        busy.MeCaption("Loading: " + std::to_string(count));
        pacer.DoEventsWhenDue();
    }
    if (asStored) {
        FillOnDemand(cache);
        return;
    }
    SortPairs(form.UAE_FULL, paths, names);
    // A path in an odd last line has no row for its name, if it is the last one in order too.
    if (!cache->entries.back().hasName && names.back().empty()) names.pop_back();
    form.UAE_FULL.AddSorted(std::move(paths));
    form.UAE_Short.AddItems(std::move(names));
}

// The paths as they are stored tell the order of the absolute ones if they all begin alike, as
// those of one directory do.
bool GameLists::IsInOrder(const CacheEntries& entries) const {
    if (entries.empty()) return true;
    const text::StoredPaths stored(form.BaseDirectory(), entries.front().path);
    std::string_view before;
    for (const CacheEntry entry : entries) {
        const auto rest = stored.Rest(entry.path);
        if (!rest || form.UAE_FULL.Precedes(*rest, before)) return false;
        before = *rest;
    }
    return true;
}

// Few of many thousand rows are ever looked at.
void GameLists::FillOnDemand(const std::shared_ptr<const LoadedCache>& cache) {
    const auto& entries = cache->entries;
    const auto count = static_cast<int>(entries.size());
    const bool nameless = count > 0 && !entries.back().hasName;
    form.UAE_FULL.AddOnDemand(count, [cache, base = form.BaseDirectory()](int row) {
        return text::StoredPath(base, cache->entries[static_cast<std::size_t>(row)].path);
    });
    form.UAE_Short.AddOnDemand(count - (nameless ? 1 : 0), [cache](int row) {
        return std::string(cache->entries[static_cast<std::size_t>(row)].name);
    });
    loaded = cache;
    loadedNames = form.UAE_Short.Changes();
}

std::string GameLists::PathOnDisk(std::string_view stored) const {
    if (text::IsUtf8(stored)) return std::string(stored);
    return support::NameOfStoredBytes(files, std::string(stored), [this](const std::string& path) {
        return text::StoredPath(form.BaseDirectory(), path);
    });
}

void GameLists::LoadBtn_Click() {
    // With no emulator loaded there is no directory to look into but the program's own.
    if (form.Busy || form.CurrentEmuIndex < 0) return;
    const core::Raised working(form.Busy);
    // Nobody chooses another emulator while this one's games are looked for.
    form.EmuListbox.SetVisible(false);
    emulators.choice.LeaveChoice();
    // The one tab that the busy state leaves; it would stand there alone.
    const bool hitsTab = form.Label4.Visible();
    form.Label4.SetVisible(false);
    const std::string noted = form.Caption();
    const std::string sign = form.LoadingBtn.Caption(), titleLine = form.MyCaptionLabel.Caption();
    form.LoadBtn.SetEnabled(false);
    busy.HideAll(false);
    hooks.SetVorschau();
    form.UAE_Short.Clear();
    form.UAE_FULL.Clear();
    busy.HideAll(false);
    pacer.DoEvents();
    form.StartPfad = text::AddPathSeparator(form.StartPfad);
    const std::string patterns = ini.Read(profile::keys::Dir_Parameter, core::ProfilesOf(form));
    form.LoadingBtn.SetCaption("Scanning...");
    form.UAE_FULL.Clear();
    scanner.Result_list().Clear();
    ScanPatterns(patterns);
    CutNames();
    const std::string aliases = core::FindByName(files, form.StartPfad, "AliasList.txt");
    if (files.FileExists(aliases)) {
        busy.MeCaption("Loading AliasList.txt ..");
        ApplyAliasList(aliases, ";");
    }
    SaveCache();
    ShowRescannedList();
    form.SetCaption(noted);
    form.MyCaptionLabel.SetCaption(noted);
    if (!form.EmulatorRuns()) {
        form.Label4.SetVisible(hitsTab);
        return;
    }
    // The window goes on telling about the emulator that runs.
    form.LoadingBtn.SetCaption(sign);
    form.MyCaptionLabel.SetCaption(titleLine);
    ports.watch->HideListsOfRunning();
}

void GameLists::RescanByButton() {
    LoadBtn_Click();
    // The button was off meanwhile and has lost the focus; the fresh list takes it.
    if (!form.Focus()) form.UAE_Short.SetFocus();
}

void GameLists::ShowRescannedList() {
    form.UAE_Short.SetVisible(true);
    form.LoadingBtn.SetCaption("Loading...");
    emulators.choice.EmuListbox_Click();
    ports.front->RefreshList();
    UpdateListCaptions();
    ini.Write(profile::keys::RomCount, core::ProfilesOf(form),
              std::to_string(form.UAE_FULL.ListCount()));
    busy.HideAll(true);
    // The list in front is the complete one: in the mode of an open emulator list, Escape would not
    // ask to quit and the next resize would open that list.
    form.SetMode(core::Front::complete);
    ports.front->RefreshList();
    form.EmuListbox.SetVisible(true);
    form.LoadBtn.SetEnabled(true);
}

// The comma list, walked by characters: a comma at the very end belongs to the last pattern.
void GameLists::ScanPatterns(const std::string& patterns) {
    std::size_t start = 0;
    for (std::size_t i = 0; i < patterns.size(); ++i) {
        const bool last = i + 1 == patterns.size();
        const bool comma = patterns[i] == ',';
        if (!last && !comma) continue;
        const std::size_t end = comma ? i : i + 1;
        ScanPattern(std::string(text::Trim(std::string_view(patterns).substr(start, end - start))));
        start = i + 1;
    }
}

void GameLists::ScanPattern(const std::string& pattern) {
    busy.MeCaption("Suche: " + pattern + "\r" + form.TxtRomPath.Text());
    scanner.ScanFiles(form.TxtRomPath.Text(), pattern, pattern + " searching... ",
                      &form.LoadingBtn);
    pacer.DoEvents();
    busy.MeCaption("Sorting Files: " + pattern);
    std::vector<std::string> found = scanner.Result_list().Rows();
    std::erase_if(found, [](const std::string& row) { return text::Trim(row).empty(); });
    form.UAE_FULL.AddItems(std::move(found));
}

void GameLists::CutNames() {
    busy.MeCaption(form.Say("Namen ermitteln..", "Cut Names.."));
    form.UAE_Short.Clear();
    std::vector<std::string> names;
    names.reserve(form.UAE_FULL.Rows().size());
    for (const std::string& path : form.UAE_FULL.Rows()) {
        std::string name = CutShortName(path, ")", true);
        names.push_back(text::IsUtf8(name) ? std::move(name) : files.DecodeText(name));
    }
    form.UAE_Short.AddItems(std::move(names));
}

void GameLists::SaveCache() {
    busy.HideAll(false);
    busy.MeCaption("Saving List..");
    const std::string base = form.BaseDirectory();
    std::string cache;
    for (int row = 0; row < form.UAE_FULL.ListCount(); ++row) {
        AppendCacheEntry(cache, text::PathToStore(base, form.UAE_FULL.List(row)),
                         form.UAE_Short.List(row));
    }
    // A disk that is full or read-only keeps the former cache; the lists in memory are the new
    // ones.
    (void)files.WriteFile(form.CacheName, files.EncodeText(cache));
}

void GameLists::UpdateListCaptions() {
    const auto caption = [&](const char* german, const char* english, const forms::ListBox& list) {
        return form.Say(german, english) + std::to_string(list.ListCount()) + ") ";
    };
    form.Label3.SetCaption(caption(" Komplett (", " Complete List (", form.UAE_Short));
    form.Label2.SetCaption(caption(" Einfach (", " Simple (", form.WIthoutDoubles));
    form.Label1.SetCaption(caption(" Favoriten (", " Favorites (", form.FavoritenListe));
}

void GameLists::BuildDoublesList() {
    const std::shared_ptr<const LoadedCache> cache =
        form.UAE_Short.Changes() == loadedNames ? loaded.lock() : nullptr;
    // A switch builds the list twice; what stands there already is not built anew.
    const bool unselected = form.WIthoutDoubles.ListIndex() == -1;
    if (!unselected || doubles != DoublesVersions()) {
        const std::vector<int> rows = RowsWithoutDoubles(cache.get());
        if (!unselected || !DoublesListHolds(rows)) FillDoublesList(rows, cache);
        doubles = DoublesVersions();
    }
    UpdateListCaptions();
}

std::array<std::uint64_t, 3> GameLists::DoublesVersions() const {
    return {form.UAE_FULL.Changes(), form.UAE_Short.Changes(), form.WIthoutDoubles.Changes()};
}

bool GameLists::DoublesListHolds(const std::vector<int>& rows) const {
    const forms::ListBox& list = form.WIthoutDoubles;
    if (list.ListCount() != static_cast<int>(rows.size())) return false;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (list.List(static_cast<int>(i)) != form.UAE_Short.List(rows[i])) return false;
    }
    return true;
}

void GameLists::FillDoublesList(const std::vector<int>& rows,
                                const std::shared_ptr<const LoadedCache>& cache) {
    form.WIthoutDoubles.Clear();
    if (cache) {
        form.WIthoutDoubles.AddOnDemand(static_cast<int>(rows.size()), [cache, rows](int row) {
            const auto entry = static_cast<std::size_t>(rows[static_cast<std::size_t>(row)]);
            return std::string(cache->entries[entry].name);
        });
        return;
    }
    support::FastListFill fill(form.WIthoutDoubles);
    fill.Reserve(rows.size());
    for (const int row : rows)
        fill.Add(form.UAE_Short.List(row));
}

std::vector<int> GameLists::RowsWithoutDoubles(const LoadedCache* cache) const {
    const int games = std::min(form.UAE_FULL.ListCount(), form.UAE_Short.ListCount());
    std::vector<int> rows;
    rows.reserve(static_cast<std::size_t>(games));
    std::string_view last;
    for (int row = 0; row < games; ++row) {
        const std::string_view name = cache ? cache->entries[static_cast<std::size_t>(row)].name
                                            : std::string_view(form.UAE_Short.List(row));
        if (name.empty() || name == last) continue;
        rows.push_back(row);
        last = name;
    }
    return rows;
}

void GameLists::ApplyAliasList(const std::string& IniFile, const std::string& TRENNZ) {
    if (IniFile.empty() || TRENNZ.empty() || !files.FileExists(IniFile)) return;
    const auto bytes = files.ReadFile(IniFile);
    if (!bytes) return;
    const auto rules = ParseAliasList(*bytes, TRENNZ);
    busy.MeCaption("Alias names: ");
    int start = 0;
    int number = 0;
    for (const auto& rule : rules) {
        int from = start;
        const int row =
            FindListItem(files.DecodeText(rule.find), form.UAE_Short.Rows(), false, from);
        if (++number % 2 == 0) {
            busy.MeCaption("Alias Names: " + std::to_string(number));
            pacer.DoEventsWhenDue();
        }
        if (row >= 0) form.UAE_Short.SetList(row, files.DecodeText(rule.newName));
        start = row >= 0 ? row + 1 : -1;
    }
}

void GameLists::AddToALL_LIST() {
    if (form.GlobalListName.empty() || form.CacheName.empty()) return;
    const auto cache = files.ReadFile(form.CacheName);
    if (!cache) return;
    std::string lines;
    for (const std::string_view line : text::SplitLines(*cache)) {
        if (!line.empty()) lines.append(line).append("\r\n");
    }
    (void)files.AppendFile(form.GlobalListName, lines);
}

void GameLists::ReloadEmulatorsAll() {
    const std::string noted = form.Caption();
    for (int row = 0; row < form.EmuListbox.ListCount(); ++row) {
        const std::string mode = form.ListMode;
        form.EmuListbox.SetListIndex(row);
        if (form.EmuListbox.SelectedText() == "-ALL-") {
            form.ListMode = mode;
            continue;
        }
        emulators.switching.SelectEmulator(true);
        if (form.Ended) return;
        LoadBtn_Click();
        pacer.DoEvents();
    }
    // The reserved name may have been the last row.
    emulators.choice.LeaveChoice();
    form.SetCaption(noted);
}

}  // namespace kivu::library
