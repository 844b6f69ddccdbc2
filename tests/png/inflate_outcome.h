#pragma once

#include <gtest/gtest.h>
#include <random>

#include "png/generator/plain_inflate.h"
#include "png/inflate.h"

namespace kivu::png::testing {

struct Outcome {
    InflateResult result;
    Bytes bytes;
    int treeFailures = 0;
};

inline Outcome InflateTo(const Bytes& input, std::uint64_t expectedSize, bool extended = false) {
    Outcome run{};
    Inflater inflater([&] { ++run.treeFailures; });
    const Inflater::Inflated inflated = inflater.Inflate(input, expectedSize, extended);
    run.result = inflated.result;
    const auto bytes = inflated.bytes.Span();
    run.bytes.assign(bytes.begin(), bytes.end());
    return run;
}

// The plain inflate has no cap by the input's size, which no stream reaches anyway.
inline void ExpectLikePlain(const Bytes& input, std::size_t expectedSize, bool extended = false) {
    const auto plain = PlainInflate(input, expectedSize + 100, extended);
    const Outcome run = InflateTo(input, expectedSize, extended);
    EXPECT_EQ(static_cast<int>(run.result), plain.result);
    EXPECT_EQ(run.treeFailures, plain.treeFailures);
    EXPECT_EQ(run.bytes, plain.bytes);
}

inline Bytes Deflated(const Bytes& raw, int level, int strategy) {
    const Bytes packed = ZlibCompress(raw, level, strategy);
    return {packed.begin() + 2, packed.end()};
}

// Runs, repetitions and noise side by side.
inline Bytes Mixture(std::size_t size, std::uint32_t seed) {
    std::mt19937 random(seed);
    Bytes raw;
    while (raw.size() < size) {
        const std::size_t run = random() % 300 + 1;
        const auto kind = random() % 4;
        for (std::size_t i = 0; i < run && raw.size() < size; ++i) {
            if (kind == 0) {
                raw.push_back(static_cast<std::uint8_t>(random()));
            } else if (kind == 1) {
                raw.push_back(static_cast<std::uint8_t>(random() % 5));
            } else {
                const std::size_t period = kind == 2 ? seed % 19 + 1 : 4000;
                raw.push_back(raw.size() < period ? std::uint8_t{7} : raw[raw.size() - period]);
            }
        }
    }
    return raw;
}

}  // namespace kivu::png::testing
