#include "ui/layout_numbers.h"

#include <algorithm>
#include <cmath>

namespace kivu::ui {

namespace {

// The greatest whole number that is not above; negative values go down as well.
int Floor(double value) {
    return static_cast<int>(std::floor(value));
}

}  // namespace

LayoutNumbers ComputeLayout(int innerWidth, int innerHeight, int listLeft, int listTop) {
    LayoutNumbers numbers;
    numbers.ListWidth = Floor((innerWidth - 400) / 6.0 * 4) - 300;
    numbers.Col2Left = listLeft + numbers.ListWidth + 100;
    // Halves go to the even neighbour.
    numbers.Col2Width = static_cast<int>(std::nearbyint((innerWidth - 300) / 6.0 - 100));
    numbers.Col3Left = numbers.Col2Left + numbers.Col2Width + 100;
    numbers.Col3Width = numbers.Col2Width;
    numbers.ListHeight = innerHeight - listTop - 300;
    const int driveBox = numbers.ListHeight - (numbers.Col2Width + numbers.Col3Width - 400);
    numbers.DriveBoxHeight = std::min(driveBox, numbers.ListHeight);
    numbers.ThirdWidth = innerWidth / 3;
    numbers.QuarterWidth = innerWidth / 4 - 100;
    numbers.HalfWidth = innerWidth / 2 - 100;
    return numbers;
}

}  // namespace kivu::ui
