#pragma once

#include <string>
#include <utility>
#include <vector>

#include "core/form1.h"
#include "core/raised.h"
#include "favourites/favoriten.h"
#include "library/find_game.h"
#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "text/paths.h"
#include "text/text.h"

namespace kivu::bench {

// The repair of the favourites step by step, as it is told: each removal writes the file and reads
// it again, and each search walks the game list. What favourites::Repair must come out with, and
// what it is measured against.
class PlainRepair {
 public:
    PlainRepair(core::Form1& form, favourites::Favoriten& store, core::BusyState& busy,
                core::EventPacer& pacer, platform::Dialogs& dialogs,
                const platform::FileSystem& files)
        : form(form), store(store), busy(busy), pacer(pacer), dialogs(dialogs), files(files) {}

    void RepairFavoriten() {
        const core::Raised working(form.Busy);
        std::string report;
        const int rows = form.FavoritenListe.ListCount();
        for (int row = 0; row < rows && !form.Ended; ++row)
            RepairRow(row, report);
        if (form.Ended) return;
        if (report.empty())
            report = form.Say("Es wurden keine Fehler gefunden!", "No errors found!!");
        dialogs.MessageBox(report, form.Say("Reparatur - Ergebnis:", "Repair result:"),
                           platform::Buttons::Ok, platform::Icon::Information);
        store.SaveFavoriten();
        store.FillFavoritenListe();
    }

 private:
    int FindByPathPart(const std::string& text) const {
        const auto& entries = store.Entries();
        for (std::size_t i = 0; i < entries.size(); ++i) {
            const std::string& path = entries[i].FullPath;
            const bool found =
                path.find(text) != std::string::npos ||
                (!text::IsUtf8(path) && files.DecodeText(path).find(text) != std::string::npos);
            if (found) return static_cast<int>(i);
        }
        return -1;
    }

    void Replace(int record, const favourites::FavoritEntry& entry) {
        auto entries = store.Entries();
        if (record < 0 || record >= static_cast<int>(entries.size())) return;
        entries[static_cast<std::size_t>(record)] = entry;
        store.TakeEntries(std::move(entries));
    }

    void RepairRow(int row, std::string& report) {
        const std::string rowText = form.FavoritenListe.List(row);
        const int record = FindByPathPart(rowText);
        favourites::FavoritEntry entry;
        if (record >= 0) entry = store.Entries()[static_cast<std::size_t>(record)];
        if (entry.FullPath.empty()) {
            report += form.Say("Fehler!?:", "Error!?:") + rowText + "\r";
            if (record <= 0) {
                store.RemoveFavoritAt(row);
            } else {
                Replace(record, {});
            }
            return;
        }
        const int found = FindAgain(entry.FullPath, rowText);
        if (found <= 0) {
            report += form.Say("Gelöscht: ", "Deleted: ") + rowText + "\r";
            store.RemoveFavoritAt(row);
            return;
        }
        const std::string now = form.UAE_FULL.List(found);
        if (now == entry.FullPath || now.empty()) return;
        entry.FullPath = now;
        Replace(record, entry);
        report += form.Say("Repariert:", "Repaired:") + rowText + "\r";
    }

    int FindAgain(const std::string& path, const std::string& rowText) {
        const std::string name = text::GetFileNameOnly(path);
        int found = -1;
        for (const std::string& wanted : {path, name, name, rowText}) {
            found = library::FindGameInFullList(form, busy, pacer, wanted);
            if (found > 0) break;
        }
        return found;
    }

    core::Form1& form;
    favourites::Favoriten& store;
    core::BusyState& busy;
    core::EventPacer& pacer;
    platform::Dialogs& dialogs;
    const platform::FileSystem& files;
};

}  // namespace kivu::bench
