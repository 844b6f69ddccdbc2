#pragma once

#include <cstddef>
#include <vector>

#include "core/layout_numbers.h"

namespace kivu::ui {

using core::LayoutNumbers;

// From the window's inner size, the left edge of the lists and their top. Measures of a tiny window
// come out negative; a control takes none of those.
LayoutNumbers ComputeLayout(int innerWidth, int innerHeight, int listLeft, int listTop);

// Twips, from the window's edges.
struct Place {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    bool operator==(const Place&) const = default;
};

// The preview picture: square over the two narrow columns, and no higher than the lists leave it.
Place PicturePlaceOf(const LayoutNumbers& numbers, int listTop);

// A picture of this size at its natural size, right of which `margin` stays free. One that is wider
// than the window or higher than the lists is made smaller in proportion.
Place ZoomPlaceOf(const LayoutNumbers& numbers, int innerWidth, int listTop, int width, int height);

// What a tab's text takes, with the count of its list and without.
struct TabNeed {
    int whole = 0;
    int bare = 0;
};
struct TabWidth {
    int width = 0;
    bool counted = true;  // there is room for the count
};

// The widths of tabs that stand side by side in `room`. If their texts do not fit, the counts go:
// those of the others, then that of the current one. If that is not enough, the others give way,
// down to `least`; then the current one too.
std::vector<TabWidth> FitTabWidths(const std::vector<TabNeed>& needs, std::size_t current, int room,
                                   int least);

}  // namespace kivu::ui
