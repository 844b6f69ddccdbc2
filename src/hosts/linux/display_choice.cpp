#include "hosts/linux/display_choice.h"

#include <algorithm>
#include <cmath>

namespace kivu::hosts {

namespace {

constexpr int frequencyWithoutTiming = 60;

const OfferedMode* Find(const ScreenModes& screen, std::uint32_t id) {
    const auto found = std::find_if(screen.offered.begin(), screen.offered.end(),
                                    [&](const OfferedMode& mode) { return mode.id == id; });
    return found == screen.offered.end() ? nullptr : &*found;
}

int FrequencyOf(const OfferedMode& mode) {
    const int rounded = static_cast<int>(std::lround(mode.rate));
    return rounded > 0 ? rounded : frequencyWithoutTiming;
}

}  // namespace

int BitsOfDepth(int depth) {
    if (depth > 16) return 32;
    return depth > 8 ? 16 : 8;
}

std::optional<platform::DisplayMode> CurrentMode(const ScreenModes& screen) {
    const OfferedMode* mode = Find(screen, screen.current);
    if (mode == nullptr) return std::nullopt;
    return platform::DisplayMode{mode->width, mode->height, BitsOfDepth(screen.depth),
                                 FrequencyOf(*mode)};
}

std::optional<std::uint32_t> ChooseMode(const ScreenModes& screen,
                                        const platform::DisplayMode& wanted) {
    const auto now = CurrentMode(screen);
    if (!now || (wanted.bits != 0 && wanted.bits != now->bits)) return std::nullopt;
    const int width = wanted.width != 0 ? wanted.width : now->width;
    const int height = wanted.height != 0 ? wanted.height : now->height;
    const int frequency = wanted.frequency != 0 ? wanted.frequency : now->frequency;

    const OfferedMode* nearest = nullptr;
    const auto distance = [&](const OfferedMode& mode) {
        return mode.rate > 0 ? std::abs(mode.rate - frequency) : 0.0;
    };
    for (const OfferedMode& mode : screen.offered) {
        if (mode.width != width || mode.height != height) continue;
        const bool fits =
            mode.rate <= 0 || wanted.frequency == 0 || std::abs(FrequencyOf(mode) - frequency) <= 1;
        if (!fits) continue;
        // Of modes alike, the one that is set already; else the first, which screens prefer.
        const bool better = nearest == nullptr || distance(mode) < distance(*nearest) ||
                            (mode.id == screen.current && distance(mode) <= distance(*nearest));
        if (better) nearest = &mode;
    }
    if (nearest == nullptr) return std::nullopt;
    return nearest->id;
}

}  // namespace kivu::hosts
