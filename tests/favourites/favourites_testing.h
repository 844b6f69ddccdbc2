#pragma once

#include <gtest/gtest.h>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "core/busy_state.h"
#include "favourites/favoriten.h"
#include "favourites/favoriten_events.h"
#include "favourites/global_events.h"
#include "favourites/global_favoriten.h"
#include "favourites/repair_favoriten.h"
#include "forms/user_input.h"
#include "profile/ini.h"
#include "testing/memory_file_system.h"
#include "testing/scripted_host.h"

namespace kivu::favourites {

// The favourites over one main window and a disk in memory; the program lies in /k.
struct Room {
    explicit Room(platform::FileSystem& files, const std::string& directory = "/k")
        : host(files),
          ini(files),
          pacer(host.events, host.clock),
          busy(form, host.events),
          store(form, ini, files),
          global(form, ini, files),
          repair(form, store, busy, pacer, host.dialogs),
          events(form, store, global, repair, busy, pacer, {host.dialogs, host.beeper}),
          globalEvents(form, global, busy, {host.beeper, host.events}),
          hands(form) {
        const char separator = files.Separator();
        form.AppDir = directory + separator;
        form.EXE = "Kivu";
        form.CurrentLanguage = 2;
        form.ConfigPath = form.AppDir + "Config" + separator;
        form.FavoritenIni = form.ConfigPath + "Amiga" + separator + "Favoriten.ini";
        form.FavoritenGlobalIni = form.ConfigPath + "Favoriten_Global.ini";
        store.hooks.UpdateListCaptions = [this] { ++captionUpdates; };
        events.hooks.LaunchBtn_Click = [this] {
            launches.push_back(form.UAE_FULL.List(form.UAE_Short.ListIndex()));
        };
        events.hooks.SelectSimilarDisks = [this](int row, int back, int forward, int limit) {
            similar.push_back({row, back, forward, limit});
        };
        form.FavoritenListe.onClick = [this] { events.FavoritenListe_Click(); };
        form.FavoritenListe.SetVisible(true);
    }

    // The game list, in the order of the paths.
    void Games(std::initializer_list<std::pair<const char*, const char*>> games) {
        for (const auto& [path, name] : games) {
            form.UAE_FULL.AddItem(path);
            form.UAE_Short.AddItem(name);
        }
    }
    // As a repair leaves a record that it could not tell anything about.
    void Blank(std::size_t record) {
        auto entries = store.Entries();
        if (record < entries.size()) entries[record] = {};
        store.TakeEntries(std::move(entries));
    }
    void Select(int row) { form.FavoritenListe.ClickRow(row); }

    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const FavoritEntry& entry : store.Entries())
            names.push_back(entry.Name);
        return names;
    }

    testing::ScriptedHost host;
    core::Form1 form{forms::Toolkit{}};
    profile::Ini ini;
    core::EventPacer pacer;
    core::BusyState busy;
    Favoriten store;
    GlobalFavoriten global;
    Repair repair;
    FavoritenEvents events;
    GlobalEvents globalEvents;
    forms::UserInput hands;

    int captionUpdates = 0;
    std::vector<std::string> launches;
    std::vector<std::vector<int>> similar;
};

using Texts = std::vector<std::string>;

}  // namespace kivu::favourites
