#include "png/filters.h"

#include <algorithm>
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

struct NamedFilters {
    const char* name;
    void (*undo)(std::uint8_t filter, std::uint8_t* row, const std::uint8_t* above,
                 std::size_t bytes, std::size_t step);
};

void PrintTo(const NamedFilters& filters, std::ostream* to) {
    *to << filters.name;
}

class Filters : public testing::TestWithParam<NamedFilters> {
 protected:
    // The undone row; nothing beside it may be touched.
    static Bytes Actual(int filter, const Bytes& row, const Bytes& above, std::size_t step) {
        constexpr std::size_t margin = 16;
        Bytes room(row.size() + 2 * margin, 0xA5);
        std::copy(row.begin(), row.end(), room.begin() + margin);
        GetParam().undo(static_cast<std::uint8_t>(filter), room.data() + margin, above.data(),
                        row.size(), step);
        const auto end = room.end() - margin;
        EXPECT_EQ(std::count(room.begin(), room.begin() + margin, 0xA5), margin);
        EXPECT_EQ(std::count(end, room.end(), 0xA5), margin);
        return {room.begin() + margin, end};
    }
};

INSTANTIATE_TEST_SUITE_P(Both, Filters,
                         testing::Values(NamedFilters{"Target", UndoFilter},
                                         NamedFilters{"Scalar", UndoFilterScalar}),
                         [](const auto& tested) { return std::string(tested.param.name); });

Bytes RandomBytes(std::mt19937& random, std::size_t count, unsigned spread) {
    Bytes bytes(count);
    for (std::uint8_t& byte : bytes) {
        byte = static_cast<std::uint8_t>(90 + random() % spread);
    }
    return bytes;
}

TEST_P(Filters, EveryTypeStepAndLengthIsUndone) {
    std::mt19937 random(3);
    for (const std::size_t step : {1U, 2U, 3U, 4U, 6U, 8U}) {
        for (std::size_t pixels = 1; pixels <= 70; ++pixels) {
            // Like neighbours meet other branches than any.
            for (const unsigned spread : {256U, 12U}) {
                const Bytes row = RandomBytes(random, pixels * step, spread);
                const Bytes above = RandomBytes(random, row.size(), spread);
                for (int filter = 0; filter <= 6; ++filter) {
                    ASSERT_EQ(Actual(filter, row, above, step), Undone(filter, row, above, step))
                        << filter << ' ' << step << ' ' << pixels;
                }
            }
        }
    }
}

TEST_P(Filters, RowThatEndsWithinAPixelIsUndone) {
    std::mt19937 random(4);
    for (const std::size_t step : {2U, 3U, 4U, 6U, 8U}) {
        for (std::size_t bytes = 0; bytes <= 70; ++bytes) {
            const Bytes row = RandomBytes(random, bytes, 256);
            const Bytes above = RandomBytes(random, bytes, 256);
            for (int filter = 1; filter <= 4; ++filter) {
                ASSERT_EQ(Actual(filter, row, above, step), Undone(filter, row, above, step))
                    << filter << ' ' << step << ' ' << bytes;
            }
        }
    }
}

TEST_P(Filters, StepThatNoPictureHasLeavesTheRow) {
    std::mt19937 random(5);
    const Bytes row = RandomBytes(random, 60, 256);
    for (const std::size_t step : {0U, 5U, 7U, 9U}) {
        for (int filter = 0; filter <= 4; ++filter) {
            EXPECT_EQ(Actual(filter, row, row, step), row);
        }
    }
}

TEST_P(Filters, LongRowsAreUndoneLikeShortOnes) {
    std::mt19937 random(6);
    for (const std::size_t step : {1U, 2U, 3U, 4U, 6U, 8U}) {
        for (std::size_t pixels = 200; pixels <= 2000; pixels += 257) {
            const Bytes row = RandomBytes(random, pixels * step, 30);
            const Bytes above = RandomBytes(random, row.size(), 30);
            for (int filter = 1; filter <= 4; ++filter) {
                ASSERT_EQ(Actual(filter, row, above, step), Undone(filter, row, above, step))
                    << filter << ' ' << step << ' ' << pixels;
            }
        }
    }
}

// Pictures of two pixels of eight samples: the first pixel becomes left, since aboveLeft, the
// nearest there, stands above it.
TEST_P(Filters, PaethTakesTheNearestForAllNeighbours) {
    constexpr int lanes = 8;
    std::uint8_t row[2 * lanes];
    std::uint8_t up[2 * lanes];
    for (int left = 0; left < 256; ++left) {
        for (int above = 0; above < 256; ++above) {
            for (int aboveLeft = 0; aboveLeft < 256; aboveLeft += lanes) {
                for (int i = 0; i < lanes; ++i) {
                    row[i] = static_cast<std::uint8_t>(left - aboveLeft - i);
                    row[lanes + i] = 0;
                    up[i] = static_cast<std::uint8_t>(aboveLeft + i);
                    up[lanes + i] = static_cast<std::uint8_t>(above);
                }
                GetParam().undo(4, row, up, sizeof row, lanes);
                for (int i = 0; i < lanes; ++i) {
                    if (row[lanes + i] == Nearest(left, above, aboveLeft + i)) continue;
                    FAIL() << left << ' ' << above << ' ' << aboveLeft + i;
                }
            }
        }
    }
}

}  // namespace
}  // namespace kivu::png
