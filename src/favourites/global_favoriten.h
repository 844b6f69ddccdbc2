#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "favourites/stored_texts.h"
#include "platform/file_system.h"
#include "profile/ini.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::favourites {

struct GlobalFavorit {
    std::string System;    // the emulator's row in EmuListbox
    std::string FullPath;  // absolute, in the file as well
    std::string Display;   // the row of FavoritenListeGlobal; empty: deleted
    std::string Name;
};

// Favourites of all emulators: the array, its file and its list. The array is held until its next
// load. The file is replaced in one step; a store that has not been read is never replaced.
class GlobalFavoriten {
 public:
    // So many are read back from the file.
    static constexpr std::size_t mostRecords = 1000;

    GlobalFavoriten(core::Form1& form, profile::Ini& ini, platform::FileSystem& files)
        : form(form), ini(ini), files(files) {}

    // False: it is not in the store, which is full or could not be read or written.
    bool AddGlobalFavorit(const std::string& Name, const std::string& System,
                          const std::string& FullPath);
    // Does not touch the list, and leaves the array empty, while a global search shows its hits.
    void LoadGlobalFavoriten();
    // False: the file is as it was.
    bool SaveGlobalFavoriten();
    // The record of the selected row, and the row. False: both stay, as the file is as it was.
    bool RemoveGlobalFavorit();

    // The number of records, on the tab of the favourites.
    void ShowHeading();

    // Deleted ones included.
    const std::vector<GlobalFavorit>& Records() const { return records; }
    // Null: no record has this row text. Valid until the next change of the array.
    const GlobalFavorit* FindByDisplay(const std::string& display) const;

 private:
    // False: the store is there and cannot be read.
    bool ReadRecords();
    // The emulator's row in EmuListbox; of an emulator that is not there, the name as it is read.
    std::string StoredSystem(const StoredTexts& stored, const std::string& key) const;

    core::Form1& form;
    profile::Ini& ini;
    platform::FileSystem& files;
    std::vector<GlobalFavorit> records;
    bool holdsStore = false;  // the array is what the file had, and changes since
};

}  // namespace kivu::favourites
