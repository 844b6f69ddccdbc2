#include "forms/ranked_sort.h"

#include <algorithm>

namespace kivu::forms {

namespace {

// So few rows are compared as they are.
constexpr std::size_t few = 12;

std::size_t EqualBytes(std::string_view a, std::string_view b, std::size_t from, std::size_t end) {
    while (from < end && a[from] == b[from])
        ++from;
    return from;
}

}  // namespace

std::vector<RankedSort::Place> RankedSort::FindOrder() {
    std::vector<Entry> entries(rows.size());
    for (std::size_t i = 0; i < entries.size(); ++i)
        entries[i].place = static_cast<Place>(i);
    Sort(entries, 0);
    std::vector<Place> places;
    places.reserve(entries.size());
    for (const Entry& entry : entries)
        places.push_back(entry.place);
    return places;
}

void RankedSort::Sort(std::span<Entry> entries, std::size_t start) {
    if (entries.size() <= few) {
        SortByText(entries);
        return;
    }
    const std::size_t common = CommonStart(entries, start);
    for (Entry& entry : entries)
        entry.rank = collation.Rank(rows[entry.place].substr(common));
    std::sort(entries.begin(), entries.end(), [](const Entry& a, const Entry& b) {
        return a.rank != b.rank ? a.rank < b.rank : a.place < b.place;
    });
    for (std::size_t begin = 0, end = 0; begin < entries.size(); begin = end) {
        while (end < entries.size() && entries[end].rank == entries[begin].rank)
            ++end;
        const auto equal = entries.subspan(begin, end - begin);
        if (equal.size() < 2) continue;
        // Rows that are no longer told apart by what follows are told apart as a whole.
        if (equal.size() > few && CommonStart(equal, common) > common) {
            Sort(equal, common);
        } else {
            SortByText(equal);
        }
    }
}

void RankedSort::SortByText(std::span<Entry> entries) const {
    std::sort(entries.begin(), entries.end(), [this](const Entry& a, const Entry& b) {
        const int order = collation.Compare(rows[a.place], rows[b.place]);
        return order != 0 ? order < 0 : a.place < b.place;
    });
}

// Behind plain ASCII what follows means the same whatever stands before it.
std::size_t RankedSort::CommonStart(std::span<const Entry> entries, std::size_t start) const {
    const std::string_view first = rows[entries.front().place];
    std::size_t end = first.size();
    for (const Entry& entry : entries) {
        const std::string_view row = rows[entry.place];
        end = EqualBytes(first, row, start, std::min(end, row.size()));
        if (end == start) break;
    }
    while (end > start && static_cast<unsigned char>(first[end - 1]) >= 0x80)
        --end;
    return end;
}

}  // namespace kivu::forms
