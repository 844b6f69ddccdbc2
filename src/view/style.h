#pragma once

#include <QProxyStyle>

namespace kivu::view {

// How the toolkit's own widgets look: flat, rounded, with slim scroll bars. Colours come from the
// widgets' palettes, so that a window's colours reach all of them.
class Style : public QProxyStyle {
 public:
    Style();

    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
};

// Gives the whole program this style and a palette to match, for windows that are no forms too.
void ApplyStyle();

}  // namespace kivu::view
