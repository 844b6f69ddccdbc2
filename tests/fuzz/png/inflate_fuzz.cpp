// Any bytes as a DEFLATE stream: result and output must be those of the plain inflate.

#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "png/generator/plain_inflate.h"
#include "png/inflate.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using kivu::png::testing::PlainInflate;
    if (size < 2) return -1;
    // The last two bytes set the limit and the kind of lengths.
    const std::size_t expectedSize = (data[size - 1] & 0x7F) * 64U + data[size - 2] % 64U;
    const bool extended = (data[size - 1] & 0x80) != 0;
    const std::span<const std::uint8_t> input(data, size - 2);

    const auto plain = PlainInflate(input, expectedSize + 100, extended);
    int failures = 0;
    kivu::png::Inflater inflater([&] { ++failures; });
    const auto inflated = inflater.Inflate(input, expectedSize, extended);
    if (static_cast<int>(inflated.result) != plain.result) std::abort();
    if (failures != plain.treeFailures) std::abort();
    if (!std::ranges::equal(inflated.bytes.Span(), plain.bytes)) std::abort();
    return 0;
}
