// What the lists and the tabs' counts hold.

#include <algorithm>

#include "text/text.h"
#include "walker/invariants.h"

namespace kivu::walker {

namespace {

const Exemption ended{"the program has ended",
                      [](const Moment& m) { return m.after.ended || m.world.Ended(); }};
const Exemption notStarted{"design captions count nothing until an emulator is loaded",
                           [](const Moment& m) { return m.after.loaded < 0; }};

const Exemption searchingAll{
    "over the open choice a text waits for Enter, which searches everywhere",
    [](const Moment& m) { return m.after.ChoiceOpen(); }};

std::string EqualCounts(const Moment& m) {
    const std::size_t paths = m.after.paths.rows.size();
    const std::size_t names = m.after.At(List::complete).rows.size();
    return paths == names ? "" : Number(paths) + " paths and " + Number(names) + " names";
}

// Simple titles are the complete ones without doubles that stand together.
std::string SimpleTitles(const Moment& m) {
    std::vector<std::string> titles;
    for (const std::string& name : m.after.At(List::complete).rows) {
        if (!name.empty() && (titles.empty() || titles.back() != name)) titles.push_back(name);
    }
    if (titles == m.after.At(List::simple).rows) return {};
    return "the simple list has " + Number(m.after.At(List::simple).rows.size()) +
           " rows, the complete one gives " + Number(titles.size());
}

// " Simple (3) "
std::string Counted(const Moment& m, std::size_t tab, List list) {
    if (!m.after.tabs[tab].visible) return {};
    const std::string& caption = m.after.tabs[tab].caption;
    const std::string count = "(" + Number(m.after.At(list).rows.size()) + ")";
    if (caption.find(count) != std::string::npos) return {};
    return Quoted(caption) + " for " + count + " in " + NameOf(list);
}

std::string FavouritesCount(const Moment& m) {
    return Counted(m, 0, List::favourites);
}
std::string SimpleCount(const Moment& m) {
    return Counted(m, 1, List::simple);
}
std::string CompleteCount(const Moment& m) {
    return Counted(m, 2, List::complete);
}

bool Typed(const Moment& m) {
    return m.hand.gesture == "type" && m.before.searchText != m.after.searchText && m.Alone();
}

// Only what was typed just now: later changes of the list leave the caption, as it is told.
std::string HitsCount(const Moment& m) {
    if (!Typed(m) || !m.after.At(List::hits).visible) return {};
    return Counted(m, 3, List::hits);
}

std::vector<std::string> Words(const std::string& text) {
    std::vector<std::string> words(1);
    for (const char c : LowerCase(text)) {
        if (c == ' ') {
            words.emplace_back();
        } else {
            words.back() += c;
        }
    }
    return words;
}

bool HasAll(const std::string& row, const std::vector<std::string>& words) {
    const std::string lower = LowerCase(row);
    return std::all_of(words.begin(), words.end(), [&](const std::string& word) {
        return lower.find(word) != std::string::npos;
    });
}

std::string HitsHoldTheWords(const Moment& m) {
    const std::string& text = m.after.searchText;
    if (!Typed(m) || !m.after.At(List::hits).visible || text.find_first_not_of(' ') == text.npos)
        return {};
    if (text == "Suche.." || text == "Search here..") return {};
    // One character alone finds nothing.
    const bool enough = text::Trim(text).size() >= 2;
    std::vector<std::string> wanted;
    for (const std::string& row : m.after.At(List::simple).rows) {
        if (enough && HasAll(row, Words(text))) wanted.push_back(row);
    }
    std::vector<std::string> found = m.after.At(List::hits).rows;
    std::sort(wanted.begin(), wanted.end());
    std::sort(found.begin(), found.end());
    if (found == wanted) return {};
    return Number(found.size()) + " hits for " + Quoted(text) + ", " + Number(wanted.size()) +
           " rows hold its words";
}

std::string OnePerFile(const Moment& m) {
    std::vector<std::string> paths = m.after.paths.rows;
    std::sort(paths.begin(), paths.end());
    const auto twice = std::adjacent_find(paths.begin(), paths.end());
    return twice == paths.end() ? "" : Quoted(*twice) + " stands there twice";
}

}  // namespace

const std::vector<Invariant>& ListInvariants() {
    static const std::vector<Invariant> invariants{
        {"as many names as paths",
         "row numbers are all that ties a name to its file",
         EqualCounts,
         {ended}},
        {"no file twice", "one pattern finds a file once", OnePerFile, {ended}},
        {"simple titles",
         "they stand for the games of the complete list",
         SimpleTitles,
         {ended,
          {"a rescan leaves the simple list as it was until the emulator is loaded anew",
           [](const Moment& m) { return m.memory.rescanned; }}}},
        {"count of the favourites",
         "a tab that counts wrong sends people looking",
         FavouritesCount,
         {ended,
          notStarted,
          {"over the open choice the tab counts the global favourites",
           [](const Moment& m) { return m.after.ChoiceOpen(); }}}},
        {"count of the simple list",
         "a tab that counts wrong sends people looking",
         SimpleCount,
         {ended, notStarted}},
        {"count of the complete list",
         "a tab that counts wrong sends people looking",
         CompleteCount,
         {ended, notStarted}},
        {"count of the hits",
         "it is the answer to what was typed",
         HitsCount,
         {ended, searchingAll}},
        {"hits hold the words",
         "it is the answer to what was typed",
         HitsHoldTheWords,
         {ended, searchingAll}},
    };
    return invariants;
}

}  // namespace kivu::walker
