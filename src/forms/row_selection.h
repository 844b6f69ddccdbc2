#pragma once

#include <vector>

namespace kivu::forms {

// How a click or a key chooses a row of a list in which several can be chosen.
enum class Choice {
    only,     // this row, and no other
    toggle,   // this row's own mark turned over
    extend,   // all rows from the anchor to this one, and no others
    addRange  // the same, beside those chosen before
};

// The rows that are chosen in a list, and the current one, which stands out among them and may be
// chosen itself or not. Rows are numbered from 0; -1 is none.
class RowSelection {
 public:
    int Current() const { return current; }
    bool Contains(int row) const;
    // In rising order.
    const std::vector<int>& Rows() const { return chosen; }

    // Makes the row the current one. False: nothing has changed.
    bool Choose(int row, Choice choice = Choice::only);
    // Moves the current row alone. False: it is the current one already.
    bool MoveCurrent(int row);
    // Marks a row, or takes its mark away, and leaves the current row. False: nothing has changed.
    bool Mark(int row, bool on);
    bool Clear() { return Choose(-1); }

    // Follow the rows when others come and go. False: the removed row was neither current nor
    // chosen.
    bool RowRemoved(int row);
    // `places`: for each new row the row that it has come in front of, in rising order and as the
    // rows were numbered before.
    void RowsInserted(const std::vector<int>& places);

 private:
    void AddRange(int from, int to);

    int current = -1;
    int anchor = -1;  // where a range begins
    std::vector<int> chosen;
};

}  // namespace kivu::forms
