#include "favourites/repair_favoriten.h"

#include "library/find_game.h"
#include "support/run_file.h"

namespace kivu::favourites {

void Repair::RepairFavoriten() {
    if (running) return;
    const core::Raised once(running);
    // No switch and no rescan while the searches let events run.
    const core::Raised working(form.Busy);
    std::string report;
    // A removal moves the rows behind it up by one: the walk passes over them, and ends beyond
    // them.
    const int rows = form.FavoritenListe.ListCount();
    for (int row = 0; row < rows && !form.Ended; ++row)
        RepairRow(row, report);
    if (form.Ended) return;
    if (report.empty()) {
        report = form.Say("Es wurden keine Fehler gefunden!", "No errors found!!");
    }
    dialogs.MessageBox(report, form.Say("Reparatur - Ergebnis:", "Repair result:"),
                       platform::Buttons::Ok, platform::Icon::Information);
    store.SaveFavoriten();
    store.FillFavoritenListe();
}

void Repair::RepairRow(int row, std::string& report) {
    const std::string rowText = form.FavoritenListe.List(row);
    const int record = store.FindByPathPart(rowText);
    const auto path = [&]() -> std::string {
        if (record < 0 || record >= static_cast<int>(store.Entries().size())) return {};
        return store.Entries()[static_cast<std::size_t>(record)].FullPath;
    };
    const std::string stored = path();
    if (stored.empty()) {
        report += form.Say("Fehler!?:", "Error!?:") + rowText + "\r";
        if (record <= 0) {
            store.RemoveFavoritAt(row);
        } else {
            store.Blank(record);
        }
        return;
    }
    const int found = FindAgain(stored, path(), rowText);
    if (found <= 0) {
        report += form.Say("Gelöscht: ", "Deleted: ") + rowText + "\r";
        store.RemoveFavoritAt(row);
        return;
    }
    const std::string& now = form.UAE_FULL.List(found);
    if (now == stored || now.empty()) return;
    store.SetPath(record, now);
    report += form.Say("Repariert:", "Repaired:") + rowText + "\r";
}

int Repair::FindAgain(const std::string& path, const std::string& recordPath,
                      const std::string& rowText) {
    int found = -1;
    for (const std::string& wanted :
         {path, support::GetFileNameOnly(path), support::GetFileNameOnly(recordPath), rowText}) {
        found = library::FindGameInFullList(form, busy, pacer, wanted);
        if (found > 0) break;
    }
    return found;
}

}  // namespace kivu::favourites
