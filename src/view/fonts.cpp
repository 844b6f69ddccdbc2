#include "view/fonts.h"

#include <QGuiApplication>
#include <QScreen>

#include "view/text.h"

namespace kivu::view {

QFont PlainFont(QFont font) {
    QStringList families = font.families();
    for (const char* family : {"Segoe UI", "Noto Sans", "DejaVu Sans", "Verdana", "Arial"})
        families.append(QLatin1String(family));
    families.removeDuplicates();
    font.setFamilies(families);
    font.setStyleHint(QFont::SansSerif);
    return font;
}

QFont HintFont(QFont font) {
    constexpr double least = 10, most = 14;
    font.setPointSizeF(qBound(least, font.pointSizeF() * 0.75, most));
    font.setBold(false);
    return font;
}

QFont ToQt(const forms::Font& font) {
    QFont result = QGuiApplication::font();
    if (!font.name.empty()) result.setFamilies(QStringList(ToQt(font.name)) + result.families());
    const QScreen* screen = QGuiApplication::primaryScreen();
    const double dpi = screen ? screen->logicalDotsPerInchY() : 96;
    // Above this the toolkit would spend seconds on a glyph.
    constexpr double largest = 400;
    result.setPointSizeF(qBound(1.0, font.size, largest) * 96 / (dpi > 0 ? dpi : 96));
    result.setBold(font.bold);
    return result;
}

}  // namespace kivu::view
