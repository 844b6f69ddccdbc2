// Routines of the emulator list, the scanner and the game lists.

#include "driver/routines.h"
#include "driver/windows.h"
#include "library/find_game.h"
#include "library/short_names.h"
#include "wiring/routines.h"

namespace kivu::driver {

using std::optional;
using std::string;

namespace {

forms::Label& LabelOf(Session& session, const string& name) {
    const string full = name.find('.') == string::npos ? "Form1." + name : name;
    auto* label = dynamic_cast<forms::Label*>(&session.OpenWindows().Control(full));
    if (!label) throw CommandError(name + " is no label");
    return *label;
}

void AddScannerRoutines(RoutineTable& table, Session& session) {
    auto& scanner = session.Routines().scanner;
    table.push_back(
        Bind("ScanFiles", [&session, &scanner](string path, string pattern,
                                               optional<string> progress, optional<string> label) {
            forms::Label* shown = label ? &LabelOf(session, *label) : nullptr;
            return scanner.ScanFiles(path, pattern, progress.value_or(""), shown);
        }));
    table.push_back(Bind("ScanDirs", [&scanner](string path, optional<string> progress) {
        return scanner.ScanDirs(path, progress.value_or(""));
    }));
    table.push_back(Bind("Result_list", [&scanner] { return scanner.Result_list().Rows(); }));
    table.push_back(Bind("BreakScan", [&scanner] { scanner.BreakScan(); }));
}

void AddListRoutines(RoutineTable& table, Session& session) {
    auto& lists = session.Routines().gameLists;
    table.push_back(Bind("LoadCacheList", [&lists] { lists.LoadCacheList(); }));
    table.push_back(Bind("LoadBtn_Click", [&lists] { lists.LoadBtn_Click(); }));
    table.push_back(Bind("UpdateListCaptions", [&lists] { lists.UpdateListCaptions(); }));
    table.push_back(Bind("BuildDoublesList", [&lists] { lists.BuildDoublesList(); }));
    table.push_back(Bind("ApplyAliasList", [&lists](string file, string separator) {
        lists.ApplyAliasList(file, separator);
    }));
    table.push_back(Bind("AddToALL_LIST", [&lists] { lists.AddToALL_LIST(); }));
    table.push_back(Bind("ReloadEmulatorsAll", [&lists] { lists.ReloadEmulatorsAll(); }));
}

void AddListEvents(RoutineTable& table, Session& session) {
    auto& events = session.Routines().listEvents;
    using Events = library::ListEvents;
    const auto add = [&](const char* name, void (Events::*routine)()) {
        table.push_back(Bind(name, [&events, routine] { (events.*routine)(); }));
    };
    add("UAE_FULL_Click", &Events::UAE_FULL_Click);
    add("UAE_Short_Click", &Events::UAE_Short_Click);
    add("UAE_Short_DblClick", &Events::UAE_Short_DblClick);
    add("UAE_Short_GotFocus", &Events::UAE_Short_GotFocus);
    add("WIthoutDoubles_Click", &Events::WIthoutDoubles_Click);
    add("WIthoutDoubles_GotFocus", &Events::WIthoutDoubles_GotFocus);
    add("FavoritenListe_GotFocus", &Events::FavoritenListe_GotFocus);
    add("SuchErgList_GotFocus", &Events::SuchErgList_GotFocus);
    add("Label1_Click", &Events::Label1_Click);
    add("Label2_Click", &Events::Label2_Click);
    add("Label3_Click", &Events::Label3_Click);
    add("Label4_Click", &Events::Label4_Click);
}

void AddSearchRoutines(RoutineTable& table, Session& session) {
    auto& search = session.Routines().listSearch;
    auto& all = session.Routines().globalSearch;
    table.push_back(Bind("SearchInList", [&search](string text, std::optional<int> startRow) {
        search.SearchInList(text, startRow.value_or(0));
    }));
    table.push_back(Bind("SearchDblsTxt_Change", [&search] { search.SearchDblsTxt_Change(); }));
    table.push_back(Bind("SuchErg_Click", [&search] { search.SuchErg_Click(); }));
    table.push_back(Bind("SearchAllBtn_Click", [&all] { all.SearchAllBtn_Click(); }));
    table.push_back(Bind("GlobalSearch", [&all](string text) { all.GlobalSearch(text); }));
}

}  // namespace

void AddLibraryRoutines(RoutineTable& table, Session& session) {
    auto& box = session.Routines().emulatorBox;
    table.push_back(Bind("ShowEmulatorBox", [&box](bool show) { box.ShowEmulatorBox(show); }));
    table.push_back(Bind("LeaveEmulatorBox", [&box] { box.LeaveEmulatorBox(); }));
    AddScannerRoutines(table, session);
    AddListRoutines(table, session);
    AddListEvents(table, session);
    AddSearchRoutines(table, session);
    auto& all = session.Routines();
    table.push_back(Bind("FindGameInFullList", [&all](string path) {
        return library::FindGameInFullList(all.form, all.busy, all.pacer, path);
    }));
    table.push_back(Bind("WrapCaption", [&session](string name, int maxWidth) {
        forms::Label& label = LabelOf(session, name);
        const auto width = [&](const string& text) {
            return static_cast<double>(label.WidthOf(text));
        };
        const auto wrapped = library::WrapCaption(label.Caption(), width, maxWidth);
        label.SetCaption(wrapped.caption);
        if (wrapped.hide) label.SetVisible(false);
        return label.Caption();
    }));
}

}  // namespace kivu::driver
