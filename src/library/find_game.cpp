#include "library/find_game.h"

#include "core/form1.h"
#include "text/paths.h"

namespace kivu::library {

namespace {

enum class Match { none, part, whole };

// The text is the whole path or the whole file name, or only a part of them.
Match MatchOf(std::string_view path, std::string_view text) {
    if (path.ends_with(text) && (path.size() == text.size() || text::FileNameView(path) == text))
        return Match::whole;
    return path.find(text) == std::string_view::npos ? Match::none : Match::part;
}

}  // namespace

int RowOfGame(std::span<const std::string> paths, std::string_view text) {
    int part = -1;
    for (std::size_t row = 0; row < paths.size(); ++row) {
        const Match match = MatchOf(paths[row], text);
        if (match == Match::whole) return static_cast<int>(row);
        if (match == Match::part && part < 0) part = static_cast<int>(row);
    }
    return part;
}

int FindGameInFullList(core::Form1& form, core::BusyState& busy, core::EventPacer& pacer,
                       const std::string& path) {
    constexpr std::size_t rowsPerTurn = 500;
    const forms::ListBox& list = form.UAE_FULL;
    const std::string noted = form.Caption();
    busy.MeCaption(" Suche ...");
    int whole = -1;
    int part = -1;
    auto changes = list.Changes();
    for (std::size_t row = 0; row < list.Rows().size() && whole < 0; ++row) {
        if (row % rowsPerTurn == 0) pacer.DoEventsWhenDue();
        if (changes != list.Changes()) {
            // What has been seen so far stands elsewhere now, or is gone.
            changes = list.Changes();
            part = -1;
            if (row >= list.Rows().size()) break;
        }
        const Match match = MatchOf(list.Rows()[row], path);
        if (match == Match::whole) whole = static_cast<int>(row);
        if (match == Match::part && part < 0) part = static_cast<int>(row);
    }
    busy.MeCaption(noted);
    return whole >= 0 ? whole : part;
}

}  // namespace kivu::library
