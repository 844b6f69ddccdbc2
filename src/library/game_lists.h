#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "core/busy_state.h"
#include "core/hook.h"
#include "core/ports.h"
#include "library/list_cache.h"
#include "platform/file_system.h"
#include "profile/ini.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::library {

class FileScanRecursive;

// The three lists of the current emulator's games, their cache and their rescan.
class GameLists : public core::LoadedGames {
 public:
    struct Ports {
        core::Port<core::ListFront> front{"GameLists.front"};
        core::Port<core::RunningEmulator> watch{"GameLists.watch"};
    };
    struct Hooks {
        // The picture in its place, not over the sign of the rescan.
        core::Hook<void()> SetVorschau{"GameLists.SetVorschau"};
    };
    struct Emulators {
        core::EmulatorChoice& choice;
        core::EmulatorSwitching& switching;
    };

    GameLists(core::Form1& form, profile::Ini& ini, platform::FileSystem& files,
              core::BusyState& busy, core::EventPacer& pacer, FileScanRecursive& scanner,
              Emulators emulators)
        : form(form),
          ini(ini),
          files(files),
          busy(busy),
          pacer(pacer),
          scanner(scanner),
          emulators(emulators) {}

    // Fills the lists from the cache. A cache that exists is used, whatever has become of its
    // files.
    void LoadCacheList() override;
    // Full rescan of the current emulator's directory.
    void LoadBtn_Click();
    // By the button itself, which takes the focus.
    void RescanByButton();
    void UpdateListCaptions() override;
    // Fills WIthoutDoubles: runs of equal display names become one row.
    void BuildDoublesList() override;
    // Display names by the user's own rules. A missing file or an empty separator changes nothing.
    void ApplyAliasList(const std::string& IniFile, const std::string& TRENNZ);
    // Appends the current cache to the collected list, which nobody ever reads.
    void AddToALL_LIST() override;
    void ReloadEmulatorsAll();

    Hooks hooks;
    Ports ports;

 private:
    void FillFromCache(std::string bytes);
    void FillOnDemand(const std::shared_ptr<const LoadedCache>& cache);
    bool IsInOrder(const CacheEntries& entries) const;
    std::string PathOnDisk(std::string_view stored) const;
    void ScanPatterns(const std::string& patterns);
    void ScanPattern(const std::string& pattern);
    void CutNames();
    void SaveCache();
    void ShowRescannedList();
    // The rows of display names, of a run of equal ones the first, empty ones left out.
    std::vector<int> RowsWithoutDoubles(const LoadedCache* cache) const;
    bool DoublesListHolds(const std::vector<int>& rows) const;
    void FillDoublesList(const std::vector<int>& rows,
                         const std::shared_ptr<const LoadedCache>& cache);
    std::array<std::uint64_t, 3> DoublesVersions() const;

    core::Form1& form;
    profile::Ini& ini;
    platform::FileSystem& files;
    core::BusyState& busy;
    core::EventPacer& pacer;
    FileScanRecursive& scanner;
    Emulators emulators;

    // What the rows of UAE_Short are made of, while they are those of the cache.
    std::weak_ptr<const LoadedCache> loaded;
    std::uint64_t loadedNames = 0;  // version of UAE_Short then
    // Versions of UAE_FULL, UAE_Short and WIthoutDoubles when this was filled from those.
    std::array<std::uint64_t, 3> doubles{};
};

}  // namespace kivu::library
