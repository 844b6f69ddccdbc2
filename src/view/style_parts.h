#pragma once

#include <QPainter>
#include <QRect>
#include <QStyleOption>

namespace kivu::view {

inline constexpr int comboArrowWidth = 28;
inline constexpr double cornerRadius = 5;

// What the style draws, each part from the option's rectangle, state and palette.
// `around`: what the field stands on.
void DrawField(QPainter& painter, const QStyleOption& option, const QColor& around);
void DrawHairline(QPainter& painter, const QStyleOption& option);
void DrawButton(QPainter& painter, const QStyleOption& option);
void DrawButtonText(QPainter& painter, const QStyleOptionButton& button, const QStyle& style);
void DrawCheck(QPainter& painter, const QStyleOption& option);
void DrawRadio(QPainter& painter, const QStyleOption& option);
void DrawScrollBar(QPainter& painter, const QStyleOptionSlider& bar, const QRect& slider);
void DrawSlider(QPainter& painter, const QStyleOptionSlider& slider, const QRect& handle);
void DrawArrow(QPainter& painter, const QStyleOption& option, const QRect& place);

// A filled rounded rectangle with an optional line around it, sharp at every scale.
void FillRounded(QPainter& painter, const QRectF& rect, double radius, const QBrush& fill,
                 const QColor& line = Qt::transparent, double lineWidth = 1);

}  // namespace kivu::view
