#include "view/text_measure.h"

#include <algorithm>
#include <cmath>

#include "view/fonts.h"
#include "view/geometry.h"
#include "view/text.h"

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

}  // namespace kivu::view
