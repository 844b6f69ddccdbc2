#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/form1.h"
#include "core/hook.h"
#include "core/ini.h"
#include "core/ini_document.h"
#include "platform/file_system.h"

namespace kivu::favourites {

struct FavoritEntry {
    std::string FullPath;  // absolute
    std::string Name;      // as FavoritenListe shows it
    int Flag = 0;          // the caller's own, not stored
};

// The favourites of the emulator of the moment: the array, its file and its list. The file is read
// with one parse and replaced in one step; a store that could not be read is not written either.
class Favoriten {
 public:
    struct Hooks {
        core::Hook<void()> UpdateListCaptions;
    };

    // So many are read back from the file; one more would push another out.
    static constexpr std::size_t mostEntries = 1001;

    Favoriten(core::Form1& form, core::Ini& ini, const platform::FileSystem& files)
        : form(form), ini(ini), files(files) {}

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
    // The first record whose path contains the text, with regard to case; -1 for none.
    int FindByPathPart(const std::string& text) const;
    void SetPath(int record, const std::string& FullPath);
    void Blank(int record);
    // Gives the record of this row another name, in the file at once.
    void Rename(int row, const std::string& Name);
    // The list is being filled and takes its selection back.
    bool IsFilling() const { return filling; }

    Hooks hooks;

 private:
    bool IsRecord(int record) const;
    void Write(core::IniDocument& profile, int number, std::string_view name,
               std::string_view path) const;

    core::Form1& form;
    core::Ini& ini;
    const platform::FileSystem& files;
    std::vector<FavoritEntry> entries;
    bool unread = false;  // the store is there, but could not be read
    bool filling = false;
};

}  // namespace kivu::favourites
