#pragma once

#include <QFontMetricsF>
#include <string>
#include <vector>

#include "forms/types.h"

namespace kivu::view {

// Text as wide and as high as the view draws it. Needs a QGuiApplication.
class TextMeasure : public forms::TextMeasure {
 public:
    int Width(const forms::Font& font, std::string_view line) const override;
    int LineHeight(const forms::Font& font) const override;
    // In a label of that width.
    int LinesWithin(const forms::Font& font, std::string_view line, int width) const override;

 private:
    struct Known {
        forms::Font font;
        QFontMetricsF metrics;
    };
    const QFontMetricsF& MetricsOf(const forms::Font& font) const;

    mutable std::vector<Known> known;
};

}  // namespace kivu::view
