#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "png/generator/png_recipe.h"

namespace kivu::png::testing {

// DEFLATE undone in the plainest way, a bit at a time, with the reader's rules for bad streams.
// It shares no code with the reader, which must give the same bytes and result for every input.
struct PlainOutcome {
    int result = 0;
    int treeFailures = 0;
    Bytes bytes;
};

// limit: the most bytes of output.
PlainOutcome PlainInflate(std::span<const std::uint8_t> input, std::size_t limit,
                          bool extended = false);

}  // namespace kivu::png::testing
