#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "core/busy_state.h"
#include "core/hook.h"
#include "core/ports.h"
#include "forms/types.h"
#include "library/cache_crew.h"
#include "library/cache_search.h"
#include "library/search_words.h"
#include "platform/file_system.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::library {

class ListSearch;

// The row of GlobalSearchList for a hit: the emulator, then the game's title, padded with blanks to
// 21, 41 or 61 characters.
std::string GlobalSearchRow(std::string_view emulator, std::string_view name);

// One search through the list caches of all emulators, which are read from the disk block by block.
// A hit holds the emulator's name and the game's title and leads to the emulator's own results.
class AllEmulatorsSearch {
 public:
    struct Hooks {
        core::Hook<void(int)> ShowEmulatorPreview{"AllEmulatorsSearch.ShowEmulatorPreview"};
        core::Hook<void()> RefreshHints{"AllEmulatorsSearch.RefreshHints"};
    };
    struct Ports {
        core::Port<core::ListFront> front{"AllEmulatorsSearch.front"};
    };

    // The scan stops when it has more hits.
    static constexpr std::int32_t limit = 32000;

    AllEmulatorsSearch(core::Form1& form, const platform::FileSystem& files, core::BusyState& busy,
                       core::EventPacer& pacer, ListSearch& search, core::EmulatorChoice& choice)
        : form(form), files(files), busy(busy), pacer(pacer), search(search), choice(choice) {}

    // Searches for the box's text. Does nothing while another long routine runs.
    void SearchAllBtn_Click();
    // Puts the hits for `Text` into GlobalSearchList, behind those that are there. Events run
    // meanwhile; a user who turns to another list ends the search.
    void GlobalSearch(const std::string& Text);

    void SearchDblsTxt_Change();
    void GlobalSearchList_Click();
    void GlobalSearchList_DblClick();
    void GlobalSearchList_KeyPress(forms::Character& character);

    // Gives the window back to the game lists when one of them comes to the front.
    void LeaveResults();

    Hooks hooks;
    Ports ports;

 private:
    enum class Outcome { through, left };

    void SearchForBox();
    Outcome Search(const std::string& text);
    void ArrangeForSearch();
    void DressList();
    void ShowResults();
    void LeaveWithoutResults(bool backToBox);
    void LeaveForOtherList();
    void PlaceLabel4();
    void CoverTabs();
    struct Cache {
        std::string emulator;
        std::unique_ptr<CacheSearch> search;
    };

    void ScanCaches(const SearchWords& words);
    std::optional<Cache> OpenNext(int& row, const SearchWords& words);
    bool Scan(const std::string& emulator, CacheCrew& crew);
    bool TakePart(const std::string& emulator, const CacheSearch::Part& part);
    void ShowProgress(const std::string& emulator, std::int32_t linesShown);
    bool MayGoOn() const;
    int EmulatorRow(std::string_view name) const;
    void OpenHit(int row);

    core::Form1& form;
    const platform::FileSystem& files;
    core::BusyState& busy;
    core::EventPacer& pacer;
    ListSearch& search;
    core::EmulatorChoice& choice;

    std::string GlobalSearchText;
    std::string GlobalLastName;  // lower-case title of the last hit, held from search to search
    std::int32_t hits = 0;
    std::int32_t lines = 0;
    int shownEmulator = -1;     // row whose preview was shown last
    bool watchingList = false;  // the search ends when GlobalSearchList goes out of sight
    bool restoring = false;     // the box gets its text back without a search
};

}  // namespace kivu::library
