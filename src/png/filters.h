#pragma once

#include <cstddef>
#include <cstdint>

namespace kivu::png {

// Turns a filtered row of a picture back into its samples, in place. row and above have `bytes`
// bytes; above is the finished row before it, zeros for the first row of a picture or pass.
// step: bytes from a sample to the same sample of the next pixel, 1, 2, 3, 4, 6 or 8.
// filter: the byte in front of the row; above 4 it acts as 0, which leaves the row as it is.
void UndoFilter(std::uint8_t filter, std::uint8_t* row, const std::uint8_t* above,
                std::size_t bytes, std::size_t step);

// The same by plain arithmetic: what UndoFilter is where the target has no SSE2.
void UndoFilterScalar(std::uint8_t filter, std::uint8_t* row, const std::uint8_t* above,
                      std::size_t bytes, std::size_t step);

}  // namespace kivu::png
