#include "png/filters.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <random>

namespace kivu::png {
namespace {

using Bytes = std::vector<std::uint8_t>;

// The nearest of the three to left + above - aboveLeft, the first of them on a tie.
int Nearest(int left, int above, int aboveLeft) {
    const int estimate = left + above - aboveLeft;
    int best = left;
    for (const int candidate : {above, aboveLeft}) {
        if (std::abs(estimate - candidate) < std::abs(estimate - best)) best = candidate;
    }
    return best;
}

Bytes Undone(int filter, const Bytes& row, const Bytes& above, std::size_t step) {
    Bytes undone;
    for (std::size_t i = 0; i < row.size(); ++i) {
        const int left = i >= step ? undone[i - step] : 0;
        const int up = above[i];
        const int upLeft = i >= step ? above[i - step] : 0;
        const int add[] = {0, left, up, (left + up) / 2, Nearest(left, up, upLeft)};
        undone.push_back(static_cast<std::uint8_t>(row[i] + (filter < 5 ? add[filter] : 0)));
    }
    return undone;
}

TEST(Filters, EveryTypeStepAndLengthIsUndone) {
    std::mt19937 random(3);
    for (const std::size_t step : {1U, 2U, 3U, 4U, 6U, 8U}) {
        for (std::size_t pixels = 1; pixels <= 40; ++pixels) {
            Bytes row(pixels * step);
            Bytes above(row.size());
            for (std::size_t i = 0; i < row.size(); ++i) {
                row[i] = static_cast<std::uint8_t>(random());
                above[i] = static_cast<std::uint8_t>(random());
            }
            for (int filter = 0; filter <= 6; ++filter) {
                Bytes actual = row;
                UndoFilter(static_cast<std::uint8_t>(filter), actual.data(), above.data(),
                           actual.size(), step);
                EXPECT_EQ(actual, Undone(filter, row, above, step)) << filter << ' ' << step;
            }
        }
    }
}

TEST(Filters, PaethTakesTheNearestForAllNeighbours) {
    for (int left = 0; left < 256; left += 5) {
        for (int above = 0; above < 256; above += 3) {
            for (int aboveLeft = 0; aboveLeft < 256; ++aboveLeft) {
                Bytes row = {0, 0};
                const Bytes up = {static_cast<std::uint8_t>(aboveLeft),
                                  static_cast<std::uint8_t>(above)};
                // The first byte becomes left: above it stands aboveLeft, the nearest there.
                row[0] = static_cast<std::uint8_t>(left - aboveLeft);
                UndoFilter(4, row.data(), up.data(), 2, 1);
                ASSERT_EQ(row[1], Nearest(left, above, aboveLeft));
            }
        }
    }
}

}  // namespace
}  // namespace kivu::png
