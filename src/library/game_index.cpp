#include "library/game_index.h"

#include "core/form1.h"
#include "library/find_game.h"
#include "library/first_rows.h"
#include "text/paths.h"

namespace kivu::library {

int GameIndex::Find(const std::string& text) {
    auto answer = answers.find(text);
    const bool expected = answer != answers.end();
    if (!expected) answer = answers.try_emplace(text).first;
    if (!looked || changes != form.UAE_FULL.Changes()) {
        Look();
    } else if (!expected) {
        answer->second.whole = FindGameInFullList(form, busy, pacer, text);
    }
    const Rows& rows = answer->second;
    return rows.whole >= 0 ? rows.whole : rows.part;
}

void GameIndex::Look() {
    const std::string noted = form.Caption();
    busy.MeCaption(" Suche ...");
    looked = false;
    for (eventsRun = true; !looked; eventsRun = false) {
        changes = form.UAE_FULL.Changes();
        for (auto& [text, rows] : answers)
            rows = {};
        looked = LookForWhole() && LookForParts();
    }
    busy.MeCaption(noted);
}

bool GameIndex::LookForWhole() {
    constexpr int rowsPerTurn = 500;
    std::string text;
    const auto note = [&](std::string_view found, int row) {
        const auto answer = answers.find(text.assign(found));
        if (answer != answers.end() && answer->second.whole < 0) answer->second.whole = row;
    };
    for (int row = 0; row < form.UAE_FULL.ListCount(); ++row) {
        if (row % rowsPerTurn == 0 && !Turn()) return false;
        const std::string& path = form.UAE_FULL.Rows()[static_cast<std::size_t>(row)];
        note(path, row);
        note(text::FileNameView(path), row);
    }
    return true;
}

bool GameIndex::LookForParts() {
    std::vector<std::string> texts;
    for (const auto& [text, rows] : answers) {
        if (rows.whole < 0) texts.push_back(text);
    }
    const std::vector<int> found = FirstRowsWith(
        texts, form.UAE_FULL.ListCount(),
        [&](int row) -> const std::string& { return form.UAE_FULL.List(row); },
        [&](int) { return Turn(); });
    if (found.size() != texts.size() || changes != form.UAE_FULL.Changes()) return false;
    for (std::size_t i = 0; i < texts.size(); ++i)
        answers[texts[i]].part = found[i];
    return true;
}

bool GameIndex::Turn() {
    if (eventsRun) pacer.DoEventsWhenDue();
    return changes == form.UAE_FULL.Changes();
}

}  // namespace kivu::library
