#include "forms/row_selection.h"

#include <algorithm>
#include <iterator>
#include <numeric>

namespace kivu::forms {

bool RowSelection::Contains(int row) const {
    return std::binary_search(chosen.begin(), chosen.end(), row);
}

bool RowSelection::Choose(int row, Choice choice) {
    const int oldCurrent = current;
    const std::vector<int> before = chosen;
    const bool range = row >= 0 && (choice == Choice::extend || choice == Choice::addRange);
    if (range) {
        if (anchor < 0) anchor = std::max(current, 0);
        if (choice == Choice::extend) chosen.clear();
        AddRange(std::min(anchor, row), std::max(anchor, row));
    } else if (row >= 0 && choice == Choice::toggle) {
        Mark(row, !Contains(row));
        anchor = row;
    } else {
        chosen.clear();
        if (row >= 0) chosen.push_back(row);
        anchor = row;
    }
    current = row;
    return current != oldCurrent || chosen != before;
}

bool RowSelection::MoveCurrent(int row) {
    if (row == current) return false;
    current = row;
    return true;
}

bool RowSelection::Mark(int row, bool on) {
    const auto place = std::lower_bound(chosen.begin(), chosen.end(), row);
    const bool marked = place != chosen.end() && *place == row;
    if (marked == on) return false;
    if (on) {
        chosen.insert(place, row);
    } else {
        chosen.erase(place);
    }
    return true;
}

void RowSelection::AddRange(int from, int to) {
    std::vector<int> range(static_cast<std::size_t>(to - from + 1));
    std::iota(range.begin(), range.end(), from);
    std::vector<int> both;
    both.reserve(chosen.size() + range.size());
    std::set_union(chosen.begin(), chosen.end(), range.begin(), range.end(),
                   std::back_inserter(both));
    chosen.swap(both);
}

bool RowSelection::RowRemoved(int row) {
    const bool gone = Mark(row, false) || current == row;
    for (int& each : chosen) {
        if (each > row) --each;
    }
    if (current >= row) current = current == row ? -1 : current - 1;
    if (anchor >= row) anchor = anchor == row ? -1 : anchor - 1;
    return gone;
}

void RowSelection::RowsInserted(const std::vector<int>& places) {
    const auto moved = [&places](int row) {
        if (row < 0) return row;
        // A row in front of which one comes moves on as well.
        const auto behind = std::upper_bound(places.begin(), places.end(), row);
        return row + static_cast<int>(behind - places.begin());
    };
    current = moved(current);
    anchor = moved(anchor);
    for (int& each : chosen)
        each = moved(each);
}

}  // namespace kivu::forms
