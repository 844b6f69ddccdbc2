#include <algorithm>
#include <cstdlib>

#include "png/filters.h"

namespace kivu::png {
namespace {

struct Samples {
    int left;
    int above;
    int aboveLeft;
};

inline int AddSub(Samples near) {
    return near.left;
}

inline int AddAverage(Samples near) {
    return (near.left + near.above) >> 1;
}

// The neighbour that is nearest to left + above - aboveLeft; on a tie left, then above.
inline int AddPaeth(Samples near) {
    const int toLeft = std::abs(near.above - near.aboveLeft);
    const int toAbove = std::abs(near.left - near.aboveLeft);
    const int toAboveLeft = std::abs(near.left + near.above - 2 * near.aboveLeft);
    const int nearest = toAbove <= toAboveLeft ? near.above : near.aboveLeft;
    return toLeft <= std::min(toAbove, toAboveLeft) ? near.left : nearest;
}

// The last pixel stays in registers: as Step is a constant, the inner loops unroll.
template <std::size_t Step, int (*Add)(Samples)>
void UndoRow(std::uint8_t* row, const std::uint8_t* above, std::size_t bytes) {
    int left[Step] = {};
    int aboveLeft[Step] = {};
    std::size_t at = 0;
    for (; at + Step <= bytes; at += Step) {
        for (std::size_t i = 0; i < Step; ++i) {
            const int up = above[at + i];
            left[i] = (row[at + i] + Add({left[i], up, aboveLeft[i]})) & 0xFF;
            aboveLeft[i] = up;
            row[at + i] = static_cast<std::uint8_t>(left[i]);
        }
    }
    // Rows of a whole number of pixels end here.
    for (std::size_t i = 0; at < bytes; ++at, ++i) {
        const int sum = row[at] + Add({left[i], above[at], aboveLeft[i]});
        row[at] = static_cast<std::uint8_t>(sum);
    }
}

void UndoUp(std::uint8_t* row, const std::uint8_t* above, std::size_t bytes) {
    for (std::size_t i = 0; i < bytes; ++i) {
        row[i] = static_cast<std::uint8_t>(row[i] + above[i]);
    }
}

template <std::size_t Step>
void UndoWithStep(std::uint8_t filter, std::uint8_t* row, const std::uint8_t* above,
                  std::size_t bytes) {
    switch (filter) {
        case 1:
            return UndoRow<Step, AddSub>(row, above, bytes);
        case 2:
            return UndoUp(row, above, bytes);
        case 3:
            return UndoRow<Step, AddAverage>(row, above, bytes);
        case 4:
            return UndoRow<Step, AddPaeth>(row, above, bytes);
        default:
            return;
    }
}

}  // namespace

void UndoFilterScalar(std::uint8_t filter, std::uint8_t* row, const std::uint8_t* above,
                      std::size_t bytes, std::size_t step) {
    switch (step) {
        case 1:
            return UndoWithStep<1>(filter, row, above, bytes);
        case 2:
            return UndoWithStep<2>(filter, row, above, bytes);
        case 3:
            return UndoWithStep<3>(filter, row, above, bytes);
        case 4:
            return UndoWithStep<4>(filter, row, above, bytes);
        case 6:
            return UndoWithStep<6>(filter, row, above, bytes);
        case 8:
            return UndoWithStep<8>(filter, row, above, bytes);
        default:
            return;
    }
}

#ifndef __SSE2__
void UndoFilter(std::uint8_t filter, std::uint8_t* row, const std::uint8_t* above,
                std::size_t bytes, std::size_t step) {
    UndoFilterScalar(filter, row, above, bytes, step);
}
#endif

}  // namespace kivu::png
