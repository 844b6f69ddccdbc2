#pragma once

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/types.h"

namespace kivu::forms {

// Rows of a list, from one place up to another, that are in order among themselves.
struct OrderedRows {
    std::uint32_t begin, end;
};

// Puts rows in order; equal ones keep theirs. Rows mostly arrive as a few lists that are in order
// already, one behind another: this costs one comparison a row to find them, and a merge of those
// that overlap. Rows in no order cost about the comparisons of a merge sort. The merges move the
// rows' numbers; each row itself moves once. Rows are texts or views of texts.
template <typename Before, typename Iterator = std::vector<std::string>::iterator>
class RowSort {
 public:
    RowSort(Iterator first, Iterator last, Before before)
        : first(first), last(last), before(std::move(before)) {}

    using Place = std::uint32_t;

    // Told in rising order, before anything else.
    void Know(std::vector<OrderedRows> ordered) { known = std::move(ordered); }

    void Sort() {
        if (!FindOrder().empty()) MoveRows();
    }

    // Whether the rows are in no order, by a look at the first ones: those that follow one another
    // in order mostly do so from the beginning.
    bool AreInNoOrder() {
        constexpr Place few = 32, some = 512, shortRun = 16;
        const auto count = static_cast<Place>(last - first);
        FindRuns(std::min(count, few));
        if (runEnds.size() > few / 4) return true;
        FindRuns(std::min(count, some));
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
    const auto& Row(Place place) const { return first[static_cast<std::ptrdiff_t>(place)]; }
    bool RowBefore(Place a, Place b) const { return before(Row(a), Row(b)); }

    // Goes on up to row `end`.
    void FindRuns(Place end) {
        while (looked < end) {
            while (nextKnown < known.size() && known[nextKnown].end <= looked)
                ++nextKnown;
            if (nextKnown < known.size() && known[nextKnown].begin < looked) {
                looked = std::min(end, known[nextKnown].end);
                continue;
            }
            if (RowBefore(looked, looked - 1)) runEnds.push_back(looked);
            ++looked;
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
            MergeMixed(begin, middle, end);
        }
    }

    // Row by row, and where one list has been in front for some rows, all at once that it has in
    // front of the other's next row: a list often stands between two rows of another.
    void MergeMixed(Place left, const Place middle, const Place end) {
        constexpr int some = 8;
        auto target = merged.begin() + left;
        Place right = middle;
        int same = 0;
        bool rightBefore = false;
        while (left < middle && right < end) {
            const bool last = std::exchange(rightBefore, RowBefore(places[right], places[left]));
            same = last == rightBefore ? same + 1 : 1;
            Place& next = rightBefore ? right : left;
            Place behind = next + 1;
            if (same >= some) {
                same = 0;
                behind = rightBefore
                             ? FirstBehind(next, end,
                                           [&](Place row) { return RowBefore(row, places[left]); })
                             : FirstBehind(next, middle, [&](Place row) {
                                   return !RowBefore(places[right], row);
                               });
            }
            target = std::copy(places.begin() + next, places.begin() + behind, target);
            next = behind;
        }
        target = std::copy(places.begin() + left, places.begin() + middle, target);
        std::copy(places.begin() + right, places.begin() + end, target);
    }

    // The first place from `at` on whose row `isInFront` no longer holds for; it does for `at`.
    template <typename IsInFront>
    Place FirstBehind(Place at, Place end, const IsInFront& isInFront) const {
        Place step = 1;
        while (end - at > step && isInFront(places[at + step])) {
            at += step;
            step *= 2;
        }
        const auto from = places.begin();
        const auto found =
            std::partition_point(from + at + 1, from + std::min<Place>(end, at + step), isInFront);
        return static_cast<Place>(found - from);
    }

    void MoveRows() {
        std::vector<typename std::iterator_traits<Iterator>::value_type> rows;
        rows.reserve(places.size());
        for (const Place place : places)
            rows.push_back(std::move(first[static_cast<std::ptrdiff_t>(place)]));
        std::move(rows.begin(), rows.end(), first);
    }

    Iterator first, last;
    Before before;
    std::vector<OrderedRows> known;
    std::size_t nextKnown = 0;
    Place looked = 1;
    std::vector<Place> runEnds;
    std::vector<Place> places, merged;
};

template <typename Before>
void SortRows(std::vector<std::string>::iterator first, std::vector<std::string>::iterator last,
              Before before) {
    RowSort<Before>(first, last, std::move(before)).Sort();
}

// By a collation; null: by their bytes. What is known to be in order is told in rising order and
// costs no comparisons.
void SortRowsBy(const Collation* collation, std::vector<std::string>::iterator first,
                std::vector<std::string>::iterator last, std::vector<OrderedRows> known = {});
void SortNamesBy(const Collation* collation, std::vector<std::string_view>& names);

// The places that the rows have in their order, equal ones as they come; empty for rows that are in
// order as they are.
std::vector<std::uint32_t> OrderOfRows(const Collation* collation,
                                       const std::vector<std::string>& rows);

}  // namespace kivu::forms
