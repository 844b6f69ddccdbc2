#include "pictures.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <random>

namespace kivu::bench {
namespace {

// A field in which each place is like its neighbours in both directions.
class CorrelatedNoise {
 public:
    CorrelatedNoise(std::uint32_t width, double likeness, double strength, unsigned seed)
        : random(seed), amount(0, strength), like(likeness), above(width + 1) {}

    // The next row; its first value is at 1.
    const std::vector<double>& NextRow() {
        double left = 0;
        double aboveLeft = 0;
        for (std::size_t x = 1; x < above.size(); ++x) {
            const double up = above[x];
            left = like * (left + up) - like * like * aboveLeft + amount(random);
            aboveLeft = up;
            above[x] = left;
        }
        return above;
    }

 private:
    std::mt19937 random;
    std::normal_distribution<double> amount;
    double like;
    std::vector<double> above;
};

std::uint8_t Sample(double value) {
    return static_cast<std::uint8_t>(std::clamp(value, 0.0, 255.0));
}

// Hills under a sky, and walls with edges.
double Light(double x, double y) {
    const double hills = 0.45 + 0.12 * std::sin(x * 7) + 0.05 * std::sin(x * 23 + 1);
    double light = y < hills ? 190 - 90 * y : 70 + 60 * std::sin(x * 31) * std::cos(y * 27);
    if (std::fmod(x * 5, 1) < 0.35 && y > 0.3 && y < 0.85) light = 120 + 40 * std::fmod(y * 40, 1);
    return light;
}

double Distance(double x, double y, double toX, double toY) {
    return std::hypot(x - toX, y - toY);
}

}  // namespace

Drawing DrawPhoto(std::uint32_t width, std::uint32_t height) {
    CorrelatedNoise texture(width, 0.97, 3.2, 1);
    std::array<CorrelatedNoise, 3> grains{CorrelatedNoise(width, 0.75, 0.8, 2),
                                          CorrelatedNoise(width, 0.75, 0.6, 3),
                                          CorrelatedNoise(width, 0.75, 0.9, 4)};
    constexpr double tint[3] = {1.05, 1.0, 0.85};
    Drawing drawing{width, height, 3, {}};
    drawing.samples.reserve(std::size_t{width} * height * 3);
    for (std::uint32_t y = 0; y < height; ++y) {
        const std::vector<double>& common = texture.NextRow();
        const std::vector<double>* grain[3];
        for (int channel = 0; channel < 3; ++channel) {
            grain[channel] = &grains[static_cast<std::size_t>(channel)].NextRow();
        }
        for (std::uint32_t x = 0; x < width; ++x) {
            const double light = Light(double{1} * x / width, double{1} * y / height);
            const double noisy = light + common[x + 1] * std::sqrt(light / 128);
            for (int channel = 0; channel < 3; ++channel) {
                drawing.samples.push_back(Sample(noisy * tint[channel] + (*grain[channel])[x + 1]));
            }
        }
    }
    return drawing;
}

Drawing DrawScreenshot(std::uint32_t width, std::uint32_t height) {
    Drawing drawing{width, height, 3, {}};
    for (std::uint32_t y = 0; y < height; ++y) {
        for (std::uint32_t x = 0; x < width; ++x) {
            // Lines of letters, which repeat as letters do.
            const std::uint32_t cell = (x / 8 * 7 + y / 14 * 13) % 29;
            const bool ink =
                y % 14 < 9 && cell < 20 && ((cell * 2654435761U) >> ((x % 8) + (y % 9))) % 3 == 0;
            const std::uint32_t window = (x / 240 + y / 150) % 4;
            std::array<std::uint8_t, 3> color{0xF0, 0xF0, 0xF0};
            if (window == 3 || window == 1) color.fill(0xFF);
            if (ink) color.fill(0x20);
            if (y % 150 < 20) color = {0x30, 0x30, 0xC0};
            if (y % 150 < 2 || x % 240 < 2) color.fill(0x80);
            drawing.samples.insert(drawing.samples.end(), color.begin(), color.end());
        }
    }
    return drawing;
}

Drawing DrawArt(std::uint32_t width, std::uint32_t height) {
    CorrelatedNoise brush(width, 0.9, 1.5, 5);
    Drawing drawing{width, height, 4, {}};
    for (std::uint32_t y = 0; y < height; ++y) {
        const std::vector<double>& stroke = brush.NextRow();
        for (std::uint32_t x = 0; x < width; ++x) {
            const double across = 2.0 * x / width - 1;
            const double down = 2.0 * y / height - 1;
            const double body = 0.8 - Distance(across, down, 0, 0.1);
            const double head = 0.3 - Distance(across, down, 0.45, -0.6);
            const double inside = std::max(body, head) * height / 4;
            const double alpha = std::clamp(inside * 255, 0.0, 255.0);
            std::array<std::uint8_t, 4> color{};
            if (alpha > 0) {
                const double light = 120 + 80 * (body > head ? body : head * 2) + stroke[x + 1];
                const bool stripe = std::fmod(across * 3 + down * 5 + 20, 1) < 0.3;
                color = {Sample(light * (stripe ? 0.6 : 1.1)), Sample(light * 0.8),
                         Sample(light * (stripe ? 1.2 : 0.5)), Sample(alpha)};
            }
            drawing.samples.insert(drawing.samples.end(), color.begin(), color.end());
        }
    }
    return drawing;
}

Drawing DrawIndexes(std::uint32_t width, std::uint32_t height) {
    Drawing drawing{width, height, 1, {}};
    for (std::uint32_t y = 0; y < height; ++y) {
        for (std::uint32_t x = 0; x < width; ++x) {
            const double light = Light(double{1} * x / width, double{1} * y / height) / 4;
            const double threshold = ((x % 2) * 2 + (y % 2) * 3) % 4 / 4.0;
            drawing.samples.push_back(
                static_cast<std::uint8_t>(std::clamp(light + threshold, 0.0, 63.0)));
        }
    }
    return drawing;
}

}  // namespace kivu::bench
