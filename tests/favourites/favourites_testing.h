#pragma once

#include <functional>
#include <gtest/gtest.h>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "core/busy_state.h"
#include "core/form1.h"
#include "favourites/favoriten.h"
#include "favourites/favoriten_events.h"
#include "favourites/global_events.h"
#include "favourites/global_favoriten.h"
#include "favourites/repair_favoriten.h"
#include "forms/user_input.h"
#include "library/marked_game.h"
#include "profile/ini.h"
#include "support/always_on_top.h"
#include "testing/memory_file_system.h"
#include "testing/quiet_ports.h"
#include "testing/scripted_host.h"

namespace kivu::favourites {

using Texts = std::vector<std::string>;

// The favourites over one main window and a disk in memory; the program lies in /k.
struct Room {
    struct AskedGames : testing::QuietGames {
        explicit AskedGames(Room& room) : room(room) {}
        void UpdateListCaptions() override { ++room.captionUpdates; }
        Room& room;
    };
    struct AskedChoice : testing::QuietChoice {
        explicit AskedChoice(Room& room) : room(room) {}
        void ShowEmulatorBox(bool show) override { room.steps.push_back(show ? "open" : "close"); }
        void LeaveEmulatorBox() override { room.steps.push_back("leave"); }
        void EmuListbox_KeyPress(forms::Character& key) override { room.letters += key.code; }
        Room& room;
    };
    struct AskedSwitching : testing::QuietSwitching {
        explicit AskedSwitching(Room& room) : room(room) {}
        void SelectEmulator(bool add) override {
            if (room.onSelect) room.onSelect(add);
        }
        Room& room;
    };
    struct AskedLaunching : testing::QuietLaunching {
        explicit AskedLaunching(Room& room) : room(room) {}
        void LaunchBtn_Click() override {
            room.launches.push_back(room.form.UAE_FULL.List(room.form.UAE_Short.ListIndex()));
        }
        void StartGame(const std::string& path) override {
            room.steps.push_back(room.form.IsTopmost() ? "on top" : "normal");
            room.steps.push_back(room.form.EmuListbox.Visible() ? "box visible" : "box hidden");
            room.steps.push_back("start " + path);
        }
        Room& room;
    };
    struct AskedDrives : testing::QuietDrives {
        explicit AskedDrives(Room& room) : room(room) {}
        void SelectSimilarDisks(int row, int back, int forward, int limit) override {
            room.similar.push_back({row, back, forward, limit});
        }
        Room& room;
    };
    struct AskedLayout : testing::QuietLayout {
        explicit AskedLayout(Room& room) : room(room) {}
        void ArrangeLists() override { room.steps.push_back("arrange"); }
        Room& room;
    };

    explicit Room(platform::FileSystem& files, const std::string& directory = "/k")
        : host(files),
          ini(files),
          pacer(host.events, host.clock),
          busy(form, host.events),
          store(form, ini, files, games),
          global(form, ini, files),
          repair(form, store, busy, pacer, host.dialogs),
          events(form, store, global, repair, busy, pacer, {host.dialogs, host.beeper},
                 {choice, front, marked}),
          globalEvents(form, global, busy, {host.beeper, host.events},
                       {switching, choice, marked, alwaysOnTop}),
          hands(form) {
        const char separator = files.Separator();
        form.AppDir = directory + separator;
        form.EXE = "Kivu";
        form.CurrentLanguage = 2;
        form.ConfigPath = form.AppDir + "Config" + separator;
        form.FavoritenIni = form.ConfigPath + "Amiga" + separator + "Favoriten.ini";
        form.FavoritenGlobalIni = form.ConfigPath + "Favoriten_Global.ini";
        marked.ports.favourite = events;
        events.ports.launching = launching;
        events.ports.drives = drives;
        globalEvents.ports.launching = launching;
        globalEvents.ports.layout = layout;
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
    support::AlwaysOnTop alwaysOnTop{
        form, {form.AOT_Enabled, form.AOT_Disabled, form.AOT_MouseMove}, host.userStore};
    AskedGames games{*this};
    AskedChoice choice{*this};
    AskedSwitching switching{*this};
    AskedLaunching launching{*this};
    AskedDrives drives{*this};
    AskedLayout layout{*this};
    testing::QuietFront front;
    library::MarkedGame marked{form, host.dialogs};
    Favoriten store;
    GlobalFavoriten global;
    Repair repair;
    FavoritenEvents events;
    GlobalEvents globalEvents;
    forms::UserInput hands;

    // What has been asked of the main window's other routines.
    Texts steps;
    std::function<void(bool add)> onSelect;
    std::u32string letters;
    int captionUpdates = 0;
    std::vector<std::string> launches;
    std::vector<std::vector<int>> similar;
};

}  // namespace kivu::favourites
