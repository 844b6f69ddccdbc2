#include "library/first_rows.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace kivu::library {

namespace {

constexpr std::size_t mostBytes = 4;  // of a gram; shorter texts have shorter ones
constexpr int rowsPerTurn = 500;
constexpr unsigned slotBits = 19;  // some 50,000 different grams stand in 32,000 paths

// The texts of one length of gram.
class GramSearch {
 public:
    GramSearch(const std::vector<std::string>& texts, std::size_t gramBytes,
               std::vector<int>& found)
        : texts(texts), bytes(gramBytes), found(found) {}

    void Wait(int text) {
        counts.resize(std::size_t{1} << slotBits);
        waiting.push_back({text, 0, none});
    }
    bool IsIdle() const { return waiting.empty(); }

    void Count(std::string_view row) {
        for (std::size_t at = 0; at + bytes <= row.size(); ++at)
            ++counts[SlotOf(row.data() + at)];
    }
    // Behind the last Count: a text with a gram that no row holds need not be looked for.
    void PlaceTexts() {
        heads.assign(counts.size(), none);
        for (std::size_t i = 0; i < waiting.size(); ++i)
            Place(static_cast<int>(i));
    }
    void Look(std::string_view row, int number) {
        if (left == 0) return;
        for (std::size_t at = 0; at + bytes <= row.size(); ++at) {
            int* link = &heads[SlotOf(row.data() + at)];
            while (*link != none) {
                Waiting& one = waiting[static_cast<std::size_t>(*link)];
                const std::string& text = texts[static_cast<std::size_t>(one.text)];
                const bool fits = at >= one.offset && row.substr(at - one.offset).starts_with(text);
                if (fits) {
                    found[static_cast<std::size_t>(one.text)] = number;
                    --left;
                    *link = one.next;
                } else {
                    link = &one.next;
                }
            }
        }
    }

 private:
    static constexpr int none = -1;
    struct Waiting {
        int text;
        std::size_t offset;  // of its rarest gram
        int next;            // the next one at the same gram
    };

    std::size_t SlotOf(const char* gram) const {
        std::uint32_t number = 0;
        std::memcpy(&number, gram, bytes);
        return (number * 2654435761U) >> (32 - slotBits);
    }
    void Place(int place) {
        Waiting& one = waiting[static_cast<std::size_t>(place)];
        const std::string& text = texts[static_cast<std::size_t>(one.text)];
        std::uint32_t least = UINT32_MAX;
        for (std::size_t at = 0; at + bytes <= text.size(); ++at) {
            const std::uint32_t count = counts[SlotOf(text.data() + at)];
            if (count >= least) continue;
            least = count;
            one.offset = at;
        }
        if (least == 0) return;
        int& head = heads[SlotOf(text.data() + one.offset)];
        one.next = head;
        head = place;
        ++left;
    }

    const std::vector<std::string>& texts;
    const std::size_t bytes;
    std::vector<int>& found;
    std::vector<Waiting> waiting;
    std::vector<std::uint32_t> counts;
    std::vector<int> heads;
    std::size_t left = 0;  // texts that may still be found
};

}  // namespace

std::vector<int> FirstRowsWith(const std::vector<std::string>& texts, int rowCount,
                               const std::function<const std::string&(int row)>& row,
                               const std::function<bool(int row)>& turn) {
    std::vector<int> found(texts.size(), -1);
    std::vector<GramSearch> searches;
    for (std::size_t bytes = 1; bytes <= mostBytes; ++bytes) {
        GramSearch search(texts, bytes, found);
        for (std::size_t i = 0; i < texts.size(); ++i) {
            if (std::min(texts[i].size(), mostBytes) == bytes) search.Wait(static_cast<int>(i));
        }
        if (!search.IsIdle()) searches.push_back(std::move(search));
    }
    const auto pass = [&](const auto& visit) {
        for (int number = 0; number < rowCount; ++number) {
            if (number % rowsPerTurn == 0 && !turn(number)) return false;
            for (GramSearch& search : searches)
                visit(search, row(number), number);
        }
        return true;
    };
    if (!pass([](GramSearch& search, std::string_view text, int) { search.Count(text); }))
        return {};
    for (GramSearch& search : searches)
        search.PlaceTexts();
    if (!pass([](GramSearch& search, std::string_view text, int number) {
            search.Look(text, number);
        })) {
        return {};
    }
    // Every row holds the empty text.
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (texts[i].empty() && rowCount > 0) found[i] = 0;
    }
    return found;
}

}  // namespace kivu::library
