#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "forms/types.h"

namespace kivu::forms {

// Puts rows in order; equal ones keep theirs. Rows mostly arrive as a few lists that are in order
// already, one behind another: this costs one comparison a row to find them, and a merge of those
// that overlap. Rows in no order cost about the comparisons of a merge sort. The merges move the
// rows' numbers; each row itself moves once.
template <typename Before, typename Iterator = std::vector<std::string>::iterator>
class RowSort {
 public:
    RowSort(Iterator first, Iterator last, Before before)
        : first(first), last(last), before(std::move(before)) {}

    using Place = std::uint32_t;

    void Run() {
        if (!FindOrder().empty()) MoveRows();
    }

    // Whether the rows are in no order, by a look at the first ones: those that follow one another
    // in order mostly do so from the beginning.
    bool AreInNoOrder() {
        constexpr Place some = 512, shortRun = 16;
        FindRuns(std::min(static_cast<Place>(last - first), some));
        return !runEnds.empty() && (runEnds.size() + 1) * shortRun > looked;
    }

    // The rows' places in their order; empty for rows that are in order as they are.
    const std::vector<Place>& FindOrder() {
        const auto count = static_cast<Place>(last - first);
        FindRuns(count);
        if (count > 0) runEnds.push_back(count);
        if (runEnds.size() > 1) Number();
        while (runEnds.size() > 1)
            MergeNeighbours();
        return places;
    }

 private:
    const std::string& Row(Place place) const { return first[static_cast<std::ptrdiff_t>(place)]; }
    bool RowBefore(Place a, Place b) const { return before(Row(a), Row(b)); }

    // Goes on up to row `end`.
    void FindRuns(Place end) {
        for (; looked < end; ++looked) {
            if (RowBefore(looked, looked - 1)) runEnds.push_back(looked);
        }
    }

    void Number() {
        places.resize(static_cast<std::size_t>(last - first));
        for (Place place = 0; place < places.size(); ++place)
            places[place] = place;
        merged.resize(places.size());
    }

    void MergeNeighbours() {
        std::vector<Place> ends;
        Place begin = 0;
        for (std::size_t run = 0; run < runEnds.size(); run += 2) {
            const Place middle = runEnds[run];
            const Place end = run + 1 < runEnds.size() ? runEnds[run + 1] : middle;
            Merge(begin, middle, end);
            ends.push_back(end);
            begin = end;
        }
        runEnds.swap(ends);
        places.swap(merged);
    }

    void Merge(Place begin, Place middle, Place end) {
        const auto from = places.begin();
        auto target = merged.begin() + begin;
        // Lists that do not overlap are put one behind the other.
        if (middle == end || !RowBefore(places[middle], places[middle - 1])) {
            std::copy(from + begin, from + end, target);
        } else if (RowBefore(places[end - 1], places[begin])) {
            target = std::copy(from + middle, from + end, target);
            std::copy(from + begin, from + middle, target);
        } else {
            std::merge(from + begin, from + middle, from + middle, from + end, target,
                       [this](Place a, Place b) { return RowBefore(a, b); });
        }
    }

    void MoveRows() {
        std::vector<std::string> rows;
        rows.reserve(places.size());
        for (const Place place : places)
            rows.push_back(std::move(first[static_cast<std::ptrdiff_t>(place)]));
        std::move(rows.begin(), rows.end(), first);
    }

    Iterator first, last;
    Before before;
    Place looked = 1;
    std::vector<Place> runEnds;
    std::vector<Place> places, merged;
};

template <typename Before>
void SortRows(std::vector<std::string>::iterator first, std::vector<std::string>::iterator last,
              Before before) {
    RowSort<Before>(first, last, std::move(before)).Run();
}

// By a collation; null: by their bytes.
void SortRowsBy(const Collation* collation, std::vector<std::string>::iterator first,
                std::vector<std::string>::iterator last);

// The places that the rows have in their order, equal ones as they come; empty for rows that are in
// order as they are.
std::vector<std::uint32_t> OrderOfRows(const Collation* collation,
                                       const std::vector<std::string>& rows);

}  // namespace kivu::forms
