// Routines of the favourites.

#include "driver/routines.h"
#include "driver/windows.h"
#include "favourites/edit_alias_name.h"
#include "wiring/routines.h"

namespace kivu::driver {

using std::optional;
using std::string;

namespace {

void AddOwnFavourites(RoutineTable& table, Session& session) {
    auto& store = session.Routines().favoriten;
    table.push_back(Bind("LoadFavoriten", [&store] { store.LoadFavoriten(); }));
    table.push_back(Bind("SaveFavoriten", [&store] { store.SaveFavoriten(); }));
    table.push_back(Bind("ClearFavoriten", [&store] { store.ClearFavoriten(); }));
    table.push_back(Bind("AddFavoritEntry", [&store](string name, string path, optional<int> flag,
                                                     optional<bool> save) {
        store.AddFavoritEntry(name, path, flag.value_or(0), save.value_or(false));
    }));
    table.push_back(Bind("RemoveFavoritAt", [&store](int index) { store.RemoveFavoritAt(index); }));
    table.push_back(Bind("SortFavoriten", [&store] { store.SortFavoriten(); }));
    table.push_back(Bind("SwapFavoriten", [&store](int a, int b) { store.SwapFavoriten(a, b); }));
    table.push_back(Bind("FillFavoritenListe", [&store] { store.FillFavoritenListe(); }));
    table.push_back(Bind("Favoriten", [&store] {
        Json records = Json::array();
        for (const favourites::FavoritEntry& entry : store.Entries()) {
            records.push_back(
                {{"Name", entry.Name}, {"FullPath", entry.FullPath}, {"Flag", entry.Flag}});
        }
        return records;
    }));
}

void AddGlobalFavourites(RoutineTable& table, Session& session) {
    auto& store = session.Routines().globalFavoriten;
    table.push_back(Bind("AddGlobalFavorit", [&store](string name, string system, string path) {
        store.AddGlobalFavorit(name, system, path);
    }));
    table.push_back(Bind("LoadGlobalFavoriten", [&store] { store.LoadGlobalFavoriten(); }));
    table.push_back(Bind("SaveGlobalFavoriten", [&store] { store.SaveGlobalFavoriten(); }));
    table.push_back(Bind("RemoveGlobalFavorit", [&store] { store.RemoveGlobalFavorit(); }));
    table.push_back(Bind("FavoritenGlobal", [&store] {
        Json records = Json::array();
        for (const favourites::GlobalFavorit& record : store.Records()) {
            records.push_back({{"Name", record.Name},
                               {"System", record.System},
                               {"FullPath", record.FullPath},
                               {"Display", record.Display}});
        }
        return records;
    }));
}

}  // namespace

void AddFavouriteRoutines(RoutineTable& table, Session& session) {
    AddOwnFavourites(table, session);
    AddGlobalFavourites(table, session);
    auto& all = session.Routines();
    table.push_back(Bind("RepairFavoriten", [&all] { all.repair.RepairFavoriten(); }));
    table.push_back(
        Bind("FavoritenListe_Click", [&all] { all.favoritenEvents.FavoritenListe_Click(); }));
    table.push_back(
        Bind("AddToFavorit_Click", [&all] { all.favoritenEvents.AddToFavorit_Click(); }));
    table.push_back(Bind("AddToFavorit_Global_Click",
                         [&all] { all.globalEvents.AddToFavorit_Global_Click(); }));
    table.push_back(Bind("DeLFav_Click", [&all] { all.favoritenEvents.DeLFav_Click(); }));
    table.push_back(Bind("EditAliasName", [&all](string name) {
        return favourites::EditAliasName(name, all.form, all.host.dialogs);
    }));
}

}  // namespace kivu::driver
