#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/ports.h"
#include "favourites/favorit_entry.h"
#include "favourites/store_in_memory.h"
#include "platform/file_system.h"
#include "profile/ini.h"
#include "profile/ini_document.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::favourites {

// The favourites of the emulator of the moment: the array, its file and its list. The file is read
// with one parse and replaced in one step; a store that could not be read is not written either.
class Favoriten {
 public:
    Favoriten(core::Form1& form, profile::Ini& ini, const platform::FileSystem& files,
              core::LoadedGames& games)
        : form(form), ini(ini), files(files), games(games) {}

    void LoadFavoriten();
    void SaveFavoriten();
    void ClearFavoriten();
    // Nothing is added without a name and a path, nor a path that is there already.
    void AddFavoritEntry(const std::string& Name, const std::string& FullPath, int Flag,
                         bool SaveNow);
    // Saves and loads the store. An index that is out of range has no effect.
    void RemoveFavoritAt(int Index);
    // By the first character alone.
    void SortFavoriten();
    void SwapFavoriten(int A, int B);
    // Selects the row again that was selected, which runs the list's click.
    void FillFavoritenListe();

    const std::vector<FavoritEntry>& Entries() const { return entries; }
    // A favourite has this path.
    bool Has(const std::string& FullPath) const;
    // The record that a row of FavoritenListe shows; -1 for none.
    int RecordOfRow(int row) const;
    // Other records in place of the array; the list and the file stay.
    void TakeEntries(std::vector<FavoritEntry> taken) { entries = std::move(taken); }
    // Gives the record of this row another name, in the file at once.
    void Rename(int row, const std::string& Name);

    // The array, the list and the file, for many changes at once. Empty: the file is there, but
    // cannot be read.
    std::optional<StoreInMemory> InMemory() const;
    // Makes the array and the list what they have become in memory.
    void TakeOver(const StoreInMemory& memory);
    // Writes what has been saved in memory. A file that refuses it is loaded again: the list shows
    // what is stored.
    void Write(const StoreInMemory& memory);

    // The list is being filled and takes its selection back.
    bool IsFilling() const { return filling; }

 private:
    bool IsRecord(int record) const;
    void Write(profile::IniDocument& profile, std::size_t number, std::string_view name,
               std::string_view path) const;

    core::Form1& form;
    profile::Ini& ini;
    const platform::FileSystem& files;
    core::LoadedGames& games;
    std::vector<FavoritEntry> entries;
    bool unread = false;  // the store is there, but could not be read
    bool filling = false;
};

}  // namespace kivu::favourites
