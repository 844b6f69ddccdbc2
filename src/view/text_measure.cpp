#include "view/text_measure.h"

#include <algorithm>
#include <cmath>

#include "view/fonts.h"
#include "view/geometry.h"
#include "view/text.h"
#include "view/text_block.h"

namespace kivu::view {

const QFontMetricsF& TextMeasure::MetricsOf(const forms::Font& font) const {
    const auto found = std::find_if(known.begin(), known.end(),
                                    [&](const Known& entry) { return entry.font == font; });
    if (found != known.end()) return found->metrics;
    constexpr std::size_t enough = 32;  // a font combo box may walk through all sizes
    if (known.size() == enough) known.erase(known.begin());
    known.push_back({font, QFontMetricsF(ToQt(font))});
    return known.back().metrics;
}

int TextMeasure::Width(const forms::Font& font, std::string_view line) const {
    return ToTwips(static_cast<int>(std::ceil(MetricsOf(font).horizontalAdvance(ToQt(line)))));
}

int TextMeasure::LineHeight(const forms::Font& font) const {
    return ToTwips(static_cast<int>(std::ceil(MetricsOf(font).height())));
}

int TextMeasure::LinesWithin(const forms::Font& font, std::string_view line, int width) const {
    // A pixel at each side stays free, and the edges may be rounded towards one another.
    const int room = std::max(1, width / forms::twipsPerPixel - 3);
    if (MetricsOf(font).horizontalAdvance(ToQt(line)) <= room) return 1;
    constexpr double high = 1e6;
    return static_cast<int>(BreakText(ToQt(line), ToQt(font), room, high).size());
}

}  // namespace kivu::view
