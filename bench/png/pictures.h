#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace kivu::bench {

using Bytes = std::vector<std::uint8_t>;

// Samples of 8 bits, row by row, channels side by side.
struct Drawing {
    std::uint32_t width;
    std::uint32_t height;
    unsigned channels;
    Bytes samples;
};

// Red, green and blue: light and shade with edges, and noise as a sensor's is after demosaicing:
// like that of its neighbours, much the same in all channels, stronger in the light.
Drawing DrawPhoto(std::uint32_t width, std::uint32_t height);
// Flat areas, lines and letters.
Drawing DrawScreenshot(std::uint32_t width, std::uint32_t height);
// Painted shapes with soft rims on nothing; the fourth channel is alpha.
Drawing DrawArt(std::uint32_t width, std::uint32_t height);
// One channel of indexes into a palette of 64 colours, in dithered gradients.
Drawing DrawIndexes(std::uint32_t width, std::uint32_t height);

}  // namespace kivu::bench
