#include "favourites/repair_favoriten.h"

#include "core/form1.h"
#include "core/raised.h"
#include "text/paths.h"

namespace kivu::favourites {

namespace {

// The row of UAE_FULL, 0 or less when it is not found: the first row counts as none.
int FindAgain(library::GameIndex& games, const std::string& path, const std::string& rowText) {
    int found = -1;
    for (const std::string& wanted : {path, text::GetFileNameOnly(path), rowText}) {
        found = games.Find(wanted);
        if (found > 0) break;
    }
    return found;
}

}  // namespace

void Repair::RepairFavoriten() {
    if (running) return;
    const core::Raised once(running);
    // No switch and no rescan while the searches let events run.
    const core::Raised working(form.Busy);
    auto memory = store.InMemory();
    std::string report;
    if (memory) {
        report = Walk(*memory);
        store.TakeOver(*memory);
    } else {
        store.LoadFavoriten();
    }
    if (form.Ended) {
        if (memory) store.Write(*memory);
        return;
    }
    if (report.empty()) {
        report = form.Say("Es wurden keine Fehler gefunden!", "No errors found!!");
    }
    dialogs.MessageBox(report, form.Say("Reparatur - Ergebnis:", "Repair result:"),
                       platform::Buttons::Ok, platform::Icon::Information);
    if (memory) {
        memory->SaveFavoriten();
        store.Write(*memory);
    }
    store.FillFavoritenListe();
}

// Gives the report.
std::string Repair::Walk(StoreInMemory& memory) {
    library::GameIndex games(form, busy, pacer);
    for (const FavoritEntry& favourite : memory.Entries()) {
        games.Expect(favourite.FullPath);
        games.Expect(text::GetFileNameOnly(favourite.FullPath));
    }
    std::string report;
    const std::vector<std::string> rows = memory.Rows();
    for (const std::string& row : rows)
        games.Expect(row);
    // A removal moves the rows behind it up by one: the walk passes over them, and ends beyond
    // them.
    for (int row = 0; row < static_cast<int>(rows.size()) && !form.Ended; ++row)
        RepairRow(memory, games, row, report);
    return report;
}

void Repair::RepairRow(StoreInMemory& memory, library::GameIndex& games, int row,
                       std::string& report) {
    const std::string rowText = memory.Row(row);
    const int record = memory.FindByPathPart(rowText);
    const std::string stored = memory.PathOf(record);
    if (stored.empty()) {
        report += form.Say("Fehler!?:", "Error!?:") + rowText + "\r";
        if (record <= 0) {
            memory.RemoveFavoritAt(row);
        } else {
            memory.Blank(record);
        }
        return;
    }
    const int found = FindAgain(games, stored, rowText);
    if (found <= 0) {
        report += form.Say("Gelöscht: ", "Deleted: ") + rowText + "\r";
        memory.RemoveFavoritAt(row);
        return;
    }
    const std::string& now = form.UAE_FULL.List(found);
    if (now == stored || now.empty()) return;
    memory.SetPath(record, now);
    report += form.Say("Repariert:", "Repaired:") + rowText + "\r";
}

}  // namespace kivu::favourites
