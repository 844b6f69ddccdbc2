#include "favourites/global_favoriten.h"

#include <algorithm>
#include <utility>

#include "core/form1.h"
#include "core/stored_names.h"

namespace kivu::favourites {

namespace {

constexpr const char* section = "Favoriten_Global";
constexpr const char* header =
    "[Favoriten_Global]\r\nFav0_Name=\r\nFav0_System=\r\nFav0_FullPath=\r\n";
constexpr int lastNumber = 1000;
constexpr int mostMisses = 50;  // incomplete entries, the empty first one included

std::string Key(int number, const char* field) {
    return "Fav" + std::to_string(number) + field;
}

std::string DisplayOf(const std::string& name, const std::string& system) {
    return name + "  :  " + system;
}

}  // namespace

bool GlobalFavoriten::AddGlobalFavorit(const std::string& Name, const std::string& System,
                                       const std::string& FullPath) {
    LoadGlobalFavoriten();
    // Hits on show keep the list as it is, but not the store from growing.
    if (!holdsStore) holdsStore = ReadRecords();
    if (!holdsStore || records.size() >= mostRecords) return false;
    records.push_back({System, FullPath, DisplayOf(Name, System), Name});
    return SaveGlobalFavoriten();
}

void GlobalFavoriten::LoadGlobalFavoriten() {
    records.clear();
    holdsStore = false;
    if (form.GlobalSearchList.Visible() && form.GlobalSearchList.ListCount() >= 3) return;
    form.FavoritenListeGlobal.Clear();
    holdsStore = ReadRecords();
    std::vector<std::string> rows;
    rows.reserve(records.size());
    for (const GlobalFavorit& record : records)
        rows.push_back(record.Display);
    form.FavoritenListeGlobal.AddItems(std::move(rows));
}

bool GlobalFavoriten::ReadRecords() {
    const auto stored = StoredTexts::Read(ini, files, form.FavoritenGlobalIni);
    if (!stored) return false;
    int misses = 0;
    for (int i = 0; i <= lastNumber; ++i) {
        GlobalFavorit record;
        record.Name = stored->Text(section, Key(i, "_Name"));
        record.System = StoredSystem(*stored, Key(i, "_System"));
        record.FullPath = stored->Path(section, Key(i, "_FullPath"), "");
        if (record.Name.empty() || record.System.empty() || record.FullPath.empty()) {
            if (++misses > mostMisses) break;
            continue;
        }
        record.Display = DisplayOf(record.Name, record.System);
        records.push_back(std::move(record));
    }
    return true;
}

std::string GlobalFavoriten::StoredSystem(const StoredTexts& stored, const std::string& key) const {
    std::string text = stored.Text(section, key);
    const int row =
        core::FindStoredName(files, form.EmuListbox.Rows(), {stored.Name(section, key), text});
    return row < 0 ? text : form.EmuListbox.List(row);
}

bool GlobalFavoriten::SaveGlobalFavoriten() {
    const std::string& file = form.FavoritenGlobalIni;
    const bool isThere = files.IdentityOf(file).has_value();
    if (isThere && (!holdsStore || !files.FileExists(file))) return false;
    profile::IniDocument profile = ini.ParseProfile(header);
    int number = 0;
    for (const GlobalFavorit& record : records) {
        if (record.Display.empty()) continue;
        ++number;
        profile.Set(section, Key(number, "_Name"), record.Name);
        profile.Set(section, Key(number, "_System"), record.System);
        profile.Set(section, Key(number, "_FullPath"), record.FullPath);
    }
    return !files.WriteFile(file, profile.Bytes());
}

bool GlobalFavoriten::RemoveGlobalFavorit() {
    const int row = form.FavoritenListeGlobal.ListIndex();
    const std::string display = form.FavoritenListeGlobal.List(row);
    const auto found = std::find_if(records.begin(), records.end(), [&](const auto& record) {
        return !display.empty() && record.Display == display;
    });
    if (found == records.end()) return true;
    GlobalFavorit removed = std::exchange(*found, {});
    if (!SaveGlobalFavoriten()) {
        *found = std::move(removed);
        return false;
    }
    // Left standing, the row would no longer answer to anything.
    form.FavoritenListeGlobal.RemoveItem(row);
    return true;
}

void GlobalFavoriten::ShowHeading() {
    const auto live = std::count_if(records.begin(), records.end(),
                                    [](const auto& record) { return !record.Display.empty(); });
    form.Label1.SetCaption("Globale Favoriten: " + std::to_string(live) + "  ");
}

const GlobalFavorit* GlobalFavoriten::FindByDisplay(const std::string& display) const {
    const auto found = std::find_if(records.begin(), records.end(), [&](const auto& record) {
        return !display.empty() && record.Display == display;
    });
    return found == records.end() ? nullptr : &*found;
}

}  // namespace kivu::favourites
