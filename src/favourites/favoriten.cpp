#include "favourites/favoriten.h"

#include <algorithm>
#include <utility>

#include "core/form1.h"
#include "core/raised.h"
#include "favourites/stored_texts.h"
#include "text/stored_paths.h"
#include "text/text.h"

namespace kivu::favourites {

namespace {

constexpr const char* section = favoritenSection;

char32_t FirstCharacter(const std::string& text) {
    return text::DecodeAt(text, 0).codePoint;
}

bool IsBlank(const std::string& text) {
    return text::Trim(text).empty();
}

}  // namespace

void Favoriten::LoadFavoriten() {
    ClearFavoriten();
    const auto stored = StoredTexts::Read(ini, files, form.FavoritenIni);
    unread = !stored;
    if (stored) {
        const std::string base = form.BaseDirectory();
        for (std::size_t i = 0; i < mostEntries; ++i) {
            const std::string name = stored->Text(section, NameKey(i));
            if (!name.empty()) {
                AddFavoritEntry(name, stored->Path(section, PathKey(i), base), 0, false);
            } else if (stored->Text(section, NameKey(i + 1)).empty()) {
                // One gap is stepped over, two in a row are the end.
                break;
            }
        }
    }
    FillFavoritenListe();
}

void Favoriten::SaveFavoriten() {
    if (unread) return;
    auto profile = ini.LoadProfile(form.FavoritenIni);
    if (!profile) return;
    const std::string base = form.BaseDirectory();
    const int count = static_cast<int>(entries.size());
    std::size_t written = 0;
    int skipped = 0;
    for (const FavoritEntry& entry : entries) {
        if (entry.Name.empty() || entry.FullPath.empty()) {
            ++skipped;
            continue;
        }
        Write(*profile, written++, entry.Name, text::PathToStore(base, entry.FullPath));
    }
    if (count > 0 && written == 0) return;
    if (count == 0) Write(*profile, 0, "", "");
    // As many keys behind the last one as there are live ones, less one: the last of two favourites
    // leaves its keys behind, and comes back with the next load.
    const std::size_t last = static_cast<std::size_t>(std::max(count - 1 - skipped, 0));
    for (std::size_t j = 1; j <= last; ++j)
        Write(*profile, last + j, "", "");
    ini.StoreProfile(*profile, form.FavoritenIni, true);
}

void Favoriten::Write(profile::IniDocument& profile, std::size_t number, std::string_view name,
                      std::string_view path) const {
    profile.Set(section, NameKey(number), name);
    profile.Set(section, PathKey(number), path);
}

void Favoriten::ClearFavoriten() {
    entries.clear();
    form.FavoritenListe.Clear();
}

void Favoriten::AddFavoritEntry(const std::string& Name, const std::string& FullPath, int Flag,
                                bool SaveNow) {
    if (!IsStorable(Name) || !IsStorable(FullPath) || entries.size() >= mostEntries) return;
    if (Has(FullPath)) return;
    entries.push_back({FullPath, Name, Flag});
    if (SaveNow) FillFavoritenListe();
}

bool Favoriten::Has(const std::string& FullPath) const {
    return std::any_of(entries.begin(), entries.end(),
                       [&](const FavoritEntry& entry) { return entry.FullPath == FullPath; });
}

void Favoriten::RemoveFavoritAt(int Index) {
    if (!IsRecord(Index)) return;
    entries.erase(entries.begin() + Index);
    SaveFavoriten();
    LoadFavoriten();
}

void Favoriten::SortFavoriten() {
    bool swapped = true;
    while (std::exchange(swapped, false)) {
        for (int i = 0; i + 1 < static_cast<int>(entries.size()); ++i) {
            const std::string& first = entries[static_cast<std::size_t>(i)].Name;
            const std::string& second = entries[static_cast<std::size_t>(i) + 1].Name;
            // A blank record keeps its place and parts the ones around it.
            if (first.empty() || second.empty()) continue;
            if (FirstCharacter(first) <= FirstCharacter(second)) continue;
            SwapFavoriten(i, i + 1);
            swapped = true;
        }
    }
}

void Favoriten::SwapFavoriten(int A, int B) {
    if (!IsRecord(A) || !IsRecord(B) || A == B) return;
    std::swap(entries[static_cast<std::size_t>(A)], entries[static_cast<std::size_t>(B)]);
}

void Favoriten::FillFavoritenListe() {
    const core::Raised once(filling);
    const int row = form.FavoritenListe.ListIndex();
    form.FavoritenListe.Clear();
    std::vector<std::string> names;
    names.reserve(entries.size());
    for (const FavoritEntry& entry : entries) {
        if (!IsBlank(entry.Name)) names.push_back(entry.Name);
    }
    form.FavoritenListe.AddItems(std::move(names));
    if (row >= 0 && row < form.FavoritenListe.ListCount()) form.FavoritenListe.SetListIndex(row);
    games.UpdateListCaptions();
}

int Favoriten::RecordOfRow(int row) const {
    if (row < 0) return -1;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (!IsBlank(entries[i].Name) && row-- == 0) return static_cast<int>(i);
    }
    return -1;
}

std::optional<StoreInMemory> Favoriten::InMemory() const {
    auto stored = StoredTexts::Read(ini, files, form.FavoritenIni);
    if (unread || !stored) return std::nullopt;
    return StoreInMemory(files, *std::move(stored), form.BaseDirectory(), entries,
                         form.FavoritenListe.Rows());
}

void Favoriten::TakeOver(const StoreInMemory& memory) {
    entries = memory.Entries();
    if (!memory.HasLoaded()) return;
    const core::Raised once(filling);
    form.FavoritenListe.Clear();
    form.FavoritenListe.AddItems(memory.Rows());
    games.UpdateListCaptions();
}

void Favoriten::Write(const StoreInMemory& memory) {
    auto profile = ini.LoadProfile(form.FavoritenIni);
    if (profile) memory.WriteTo(*profile);
    const bool done =
        profile && (!profile->IsChanged() || ini.StoreProfile(*profile, form.FavoritenIni, true));
    if (!done) LoadFavoriten();
}

void Favoriten::Rename(int row, const std::string& Name) {
    const int record = RecordOfRow(row);
    if (record < 0 || unread) return;
    FavoritEntry& entry = entries[static_cast<std::size_t>(record)];
    entry.Name = Name;
    const auto stored = StoredTexts::Read(ini, files, form.FavoritenIni);
    if (!stored) return;
    // After a gap or a double entry in the file its numbers are not those of the rows until the
    // next save.
    const auto number = static_cast<std::size_t>(row);
    const bool numbered =
        stored->Path(section, PathKey(number), form.BaseDirectory()) == entry.FullPath;
    if (numbered) {
        ini.WriteIniValue(section, NameKey(number), Name, form.FavoritenIni, true);
    } else {
        SaveFavoriten();
    }
}

bool Favoriten::IsRecord(int record) const {
    return record >= 0 && record < static_cast<int>(entries.size());
}

}  // namespace kivu::favourites
