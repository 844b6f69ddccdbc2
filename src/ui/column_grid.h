#pragma once

namespace kivu::ui {

// The right column's grid, in twips from the edges of the frame below the picture.
inline constexpr int columnLeft = 100;
inline constexpr int columnRight = 300;  // of the buttons; the pin alone reaches further
inline constexpr int columnGap = 120;    // between two that stand side by side
inline constexpr int rowHeight = 420;
inline constexpr int nameTop = 200;

// How the column stands above the frame's bottom edge: three rows, the drives, the favourites'
// buttons and the name. A low frame draws it together.
struct ColumnRows {
    int gap = 120;         // between two of them
    int below = 380;       // under the lowest
    bool outside = false;  // drives and favourites stand on the frame, which has no room for them
    int hidden = 0;        // rows that there is no room for at all

    int Pitch() const { return rowHeight + gap; }
    // From the frame's bottom edge to the top of a row, counted from the lowest.
    int TopOf(int row) const { return below + rowHeight + row * Pitch(); }
    // From the frame's bottom edge to the bottom of what stands on the rows.
    int AboveRows() const { return TopOf(2) + gap; }
};

// What the frame has to hold.
struct ColumnNeeds {
    int frameHeight = 0;
    int nameLine = 0;  // one line of the name
    int drivesHeight = 0;
    int favouriteRows = 1;
};

ColumnRows FitColumn(const ColumnNeeds& needs);

}  // namespace kivu::ui
