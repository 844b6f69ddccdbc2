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
    numbers.ListLeft = listLeft;
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

Place PicturePlaceOf(const LayoutNumbers& numbers, int listTop) {
    const int width = numbers.Col2Width + numbers.Col3Width + 300;
    return {numbers.Col2Left, listTop, width, std::min(width, numbers.ListHeight - 400)};
}

Place ZoomPlaceOf(const LayoutNumbers& numbers, int innerWidth, int listTop, int width,
                  int height) {
    constexpr int margin = 300;
    const double most = std::max(1, innerWidth - 2 * margin);
    const double highest = std::max(1, numbers.ListHeight);
    const double scale = std::min({1.0, most / std::max(1, width), highest / std::max(1, height)});
    const auto scaled = [&](int length) {
        return std::max(1, static_cast<int>(std::lround(length * scale)));
    };
    const int shown = scaled(width);
    return {innerWidth - shown - margin, listTop, shown, scaled(height)};
}

namespace {

int Sum(const std::vector<TabWidth>& tabs) {
    return std::accumulate(tabs.begin(), tabs.end(), 0,
                           [](int sum, const TabWidth& tab) { return sum + tab.width; });
}

// The current tab keeps what it needs as long as the others keep the least.
void Squeeze(std::vector<TabWidth>& tabs, std::size_t current, int room, int least) {
    const int others = Sum(tabs) - tabs[current].width;
    const auto count = static_cast<int>(tabs.size()) - 1;
    const int wanted = tabs[current].width;
    const int front = std::clamp(room - count * least, least, std::max(least, wanted));
    tabs[current].width = std::min(wanted, front);
    const double share = others > 0 ? static_cast<double>(room - tabs[current].width) / others : 0;
    for (std::size_t i = 0; i < tabs.size(); ++i) {
        if (i == current) continue;
        tabs[i].width = std::min(tabs[i].width, std::max(least, Floor(tabs[i].width * share)));
    }
}

}  // namespace

std::vector<TabWidth> FitTabWidths(const std::vector<TabNeed>& needs, std::size_t current, int room,
                                   int least) {
    std::vector<TabWidth> tabs;
    for (const TabNeed& need : needs)
        tabs.push_back({need.whole, true});
    if (current >= tabs.size()) return tabs;
    const auto drop = [&](std::size_t i) {
        tabs[i] = {needs[i].bare, needs[i].bare == needs[i].whole};
    };
    if (Sum(tabs) > room) {
        for (std::size_t i = 0; i < tabs.size(); ++i)
            if (i != current) drop(i);
    }
    if (Sum(tabs) > room) drop(current);
    if (Sum(tabs) > room) Squeeze(tabs, current, room, least);
    return tabs;
}

}  // namespace kivu::ui
