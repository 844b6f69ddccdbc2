#include "ui/layout_numbers.h"

#include <algorithm>
#include <cmath>
#include <numeric>

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

std::vector<int> TabWidths(std::vector<int> wanted, std::size_t current, int room, int least) {
    const int sum = std::accumulate(wanted.begin(), wanted.end(), 0);
    if (sum <= room || current >= wanted.size()) return wanted;
    const int others = sum - wanted[current];
    const auto count = static_cast<int>(wanted.size()) - 1;
    const int front = std::clamp(room - count * least, least, std::max(least, wanted[current]));
    wanted[current] = std::min(wanted[current], front);
    const double share = others > 0 ? static_cast<double>(room - wanted[current]) / others : 0;
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        if (i == current) continue;
        wanted[i] = std::min(wanted[i], std::max(least, Floor(wanted[i] * share)));
    }
    return wanted;
}

}  // namespace kivu::ui
