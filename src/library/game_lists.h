#pragma once

#include <string>
#include <vector>

#include "core/busy_state.h"
#include "core/form1.h"
#include "core/hook.h"
#include "core/ini.h"
#include "library/file_scan_recursive.h"
#include "platform/file_system.h"

namespace kivu::library {

// The three lists of the current emulator's games, their cache and their rescan.
class GameLists {
 public:
    struct Hooks {
        core::Hook<void()> EmuListbox_Click;
        core::Hook<void()> RefreshList;  // the list in front, the tabs and their counts
        core::Hook<void()> LeaveChoice;  // of an emulator, whose row has not been loaded
        core::Hook<void()> HideListsOfRunning;
        core::Hook<void(bool)> SelectEmulator;
    };

    GameLists(core::Form1& form, core::Ini& ini, platform::FileSystem& files, core::BusyState& busy,
              core::EventPacer& pacer, FileScanRecursive& scanner)
        : form(form), ini(ini), files(files), busy(busy), pacer(pacer), scanner(scanner) {}

    // Fills the lists from the cache. A cache that exists is used, whatever has become of its
    // files.
    void LoadCacheList();
    // Full rescan of the current emulator's directory.
    void LoadBtn_Click();
    // Row counts into the tabs.
    void UpdateListCaptions();
    // Fills WIthoutDoubles: runs of equal display names become one row.
    void BuildDoublesList();
    // Display names by the user's own rules. A missing file or an empty separator changes nothing.
    void ApplyAliasList(const std::string& IniFile, const std::string& TRENNZ);
    // Appends the current cache to the collected list, which nobody ever reads.
    void AddToALL_LIST();
    void ReloadEmulatorsAll();

    Hooks hooks;

 private:
    void FillFromCache(const std::string& bytes);
    std::string PathOnDisk(std::string_view stored) const;
    void ScanPatterns(const std::string& patterns);
    void ScanPattern(const std::string& pattern);
    void CutNames();
    void SaveCache();
    void ShowRescannedList();
    // The display names, a run of equal ones once, empty ones left out.
    std::vector<const std::string*> NamesWithoutDoubles() const;

    core::Form1& form;
    core::Ini& ini;
    platform::FileSystem& files;
    core::BusyState& busy;
    core::EventPacer& pacer;
    FileScanRecursive& scanner;
};

}  // namespace kivu::library
