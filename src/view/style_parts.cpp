#include "view/style_parts.h"

#include <QPainterPath>
#include <QStyle>
#include <algorithm>

#include "view/colors.h"

namespace kivu::view {

namespace {

bool Has(const QStyleOption& option, QStyle::StateFlag flag) {
    return option.state.testFlag(flag);
}

// A quiet line around a field: darker on light, lighter on dark.
QColor LineOn(const QColor& background, double strength) {
    return Mix(background, IsDark(background) ? QColor(Qt::white) : QColor(Qt::black), strength);
}

// The line of a control that nothing else tells from what lies around it.
QColor ShapeOn(const QColor& background, double strength) {
    return MixFor(ShapeContrastOn(background), background, InkOn(background, 255), strength);
}

// A button that is off sinks into its window.
QColor DisabledFace(const QPalette& palette) {
    return Mix(palette.color(QPalette::Window), palette.color(QPalette::Button), 0.35);
}

QColor ButtonLetters(const QPalette& palette) {
    return Readable(palette.color(QPalette::ButtonText), palette.color(QPalette::Button));
}

// The face moved towards a colour, or away from its letters where these would be lost: they keep
// their colour whatever the mouse does.
QColor Moved(const QColor& face, const QColor& letters, const QColor& towards, double opacity) {
    const QColor moved = Mix(face, towards, opacity);
    if (Contrast(letters, moved) >= textContrast) return moved;
    return Mix(face, IsDark(letters) ? QColor(Qt::white) : QColor(Qt::black), opacity);
}

QColor ButtonFace(const QStyleOption& option) {
    if (!Has(option, QStyle::State_Enabled)) return DisabledFace(option.palette);
    const QColor face = option.palette.color(QPalette::Button);
    const QColor letters = ButtonLetters(option.palette);
    if (Has(option, QStyle::State_Sunken) || Has(option, QStyle::State_On))
        return Moved(face, letters, Qt::black, 0.18);
    if (!Has(option, QStyle::State_MouseOver)) return face;
    return Moved(face, letters, IsDark(face) ? Qt::white : Qt::black, 0.12);
}

}  // namespace

void FillRounded(QPainter& painter, const QRectF& rect, double radius, const QBrush& fill,
                 const QColor& line, double lineWidth) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const bool lined = line.alpha() > 0 && lineWidth > 0;
    painter.setPen(lined ? QPen(line, lineWidth) : QPen(Qt::NoPen));
    painter.setBrush(fill);
    const double inset = lined ? lineWidth / 2 : 0;
    const QRectF inner = rect.adjusted(inset, inset, -inset, -inset);
    painter.drawRoundedRect(inner, radius, radius);
    painter.restore();
}

void DrawField(QPainter& painter, const QStyleOption& option, const QColor& around) {
    const bool enabled = Has(option, QStyle::State_Enabled);
    const bool focus = Has(option, QStyle::State_HasFocus);
    QColor back = option.palette.color(QPalette::Base);
    if (!enabled) back.setAlphaF(0.6F);
    const bool hover = enabled && Has(option, QStyle::State_MouseOver);
    const bool seenAround = Contrast(accent, around) >= shapeContrast;
    const QColor mark = seenAround ? accent : AccentOn(option.palette.color(QPalette::Base));
    const double strength = hover ? 0.45 : 0.28;
    const bool standsOut = !enabled || Contrast(back, around) >= shapeContrast;
    const QColor quiet = standsOut ? LineOn(back, strength) : ShapeOn(around, strength);
    FillRounded(painter, option.rect, cornerRadius, back, focus ? mark : quiet, focus ? 2 : 1);
}

void DrawHairline(QPainter& painter, const QStyleOption& option) {
    const QColor back = option.palette.color(QPalette::Base);
    FillRounded(painter, option.rect, cornerRadius, back, LineOn(back, 0.25));
}

void DrawButton(QPainter& painter, const QStyleOption& option) {
    const bool enabled = Has(option, QStyle::State_Enabled);
    const bool focus = Has(option, QStyle::State_HasFocus);
    const QColor face = ButtonFace(option);
    const QColor window = option.palette.color(QPalette::Window);
    const bool standsOut = !enabled || Contrast(face, window) >= shapeContrast;
    const QColor quiet = standsOut ? InkOn(window, enabled ? 46 : 20) : ShapeOn(window, 0.18);
    FillRounded(painter, option.rect, cornerRadius, face, focus ? AccentOn(window) : quiet,
                focus ? 2 : 1);
}

void DrawButtonText(QPainter& painter, const QStyleOptionButton& button, const QStyle& style) {
    const bool enabled = Has(button, QStyle::State_Enabled);
    const QColor face = ButtonFace(button);
    constexpr double off = 3.5;
    const QColor wanted = button.palette.color(QPalette::ButtonText);
    const QColor color = enabled ? ButtonLetters(button.palette)
                                 : MixFor(off, face, Readable(wanted, face, off), 0.5);
    painter.save();
    painter.setPen(color);
    const QRect rect = button.rect.adjusted(4, 0, -4, 0);
    const QString text = button.fontMetrics.elidedText(button.text, Qt::ElideRight, rect.width(),
                                                       Qt::TextShowMnemonic);
    style.drawItemText(&painter, rect, Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextSingleLine,
                       button.palette, true, text);
    painter.restore();
}

void DrawCheck(QPainter& painter, const QStyleOption& option) {
    const bool on = Has(option, QStyle::State_On);
    const bool between = Has(option, QStyle::State_NoChange);
    const bool enabled = Has(option, QStyle::State_Enabled);
    const QRectF box = QRectF(option.rect).adjusted(1, 1, -1, -1);
    const QColor window = option.palette.color(QPalette::Window);
    const QColor text = Readable(option.palette.color(QPalette::WindowText), window, shapeContrast);
    const QColor mark = AccentOn(window);
    QColor fill = on || between ? mark : Mix(window, text, 0.12);
    const bool focus = Has(option, QStyle::State_HasFocus);
    const QColor quiet = MixFor(ShapeContrastOn(window), window, text, 0.55);
    QColor line = focus || Has(option, QStyle::State_MouseOver) ? mark : quiet;
    // The accent would not be seen around itself.
    if (focus && (on || between)) line = text;
    if (!enabled) {
        fill.setAlphaF(0.4F);
        line.setAlphaF(0.4F);
    }
    FillRounded(painter, box, 4, fill, line, focus ? 2 : 1.2);
    if (!on && !between) return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Readable(onAccent, mark, shapeContrast), box.width() / 7, Qt::SolidLine,
                        Qt::RoundCap, Qt::RoundJoin));
    const auto at = [&](double x, double y) {
        return QPointF(box.left() + box.width() * x, box.top() + box.height() * y);
    };
    if (between) {
        painter.drawLine(at(0.28, 0.5), at(0.72, 0.5));
    } else {
        painter.drawPolyline(QPolygonF{at(0.24, 0.52), at(0.43, 0.71), at(0.77, 0.3)});
    }
    painter.restore();
}

void DrawRadio(QPainter& painter, const QStyleOption& option) {
    const bool on = Has(option, QStyle::State_On);
    const QRectF box = QRectF(option.rect).adjusted(1, 1, -1, -1);
    const QColor window = option.palette.color(QPalette::Window);
    const QColor text = Readable(option.palette.color(QPalette::WindowText), window, shapeContrast);
    const QColor mark = AccentOn(window);
    const bool marked = on || Has(option, QStyle::State_MouseOver);
    const QColor line = marked ? mark : MixFor(ShapeContrastOn(window), window, text, 0.55);
    FillRounded(painter, box, box.width() / 2, Mix(window, text, 0.12), line, 1.2);
    if (!on) return;
    const double inset = box.width() * 0.26;
    FillRounded(painter, box.adjusted(inset, inset, -inset, -inset), box.width(), mark);
}

void DrawScrollBar(QPainter& painter, const QStyleOptionSlider& bar, const QRect& slider) {
    if (bar.maximum <= bar.minimum) return;
    const bool upright = bar.orientation == Qt::Vertical;
    const bool held =
        Has(bar, QStyle::State_Sunken) && (bar.activeSubControls & QStyle::SC_ScrollBarSlider);
    const bool hover = Has(bar, QStyle::State_MouseOver);
    const int margin = hover || held ? 3 : 4;
    const QRectF rect = upright ? QRectF(slider).adjusted(margin, 2, -margin, -2)
                                : QRectF(slider).adjusted(2, margin, -2, -margin);
    // The window's writing stands out against the list, so its colour does here too.
    const QColor base = bar.palette.color(QPalette::Base);
    const QColor text = Readable(bar.palette.color(QPalette::Text), base, shapeContrast);
    const QColor color = MixFor(shapeContrast, base, text, held ? 0.8 : hover ? 0.65 : 0.4);
    FillRounded(painter, rect, std::min(rect.width(), rect.height()) / 2, color);
}

void DrawSlider(QPainter& painter, const QStyleOptionSlider& slider, const QRect& handle) {
    const bool upright = slider.orientation == Qt::Vertical;
    const QColor window = slider.palette.color(QPalette::Window);
    const QColor text = Readable(slider.palette.color(QPalette::WindowText), window, shapeContrast);
    const QColor quiet = MixFor(ShapeContrastOn(window), window, text, 0.35);
    const QColor mark = AccentOn(window);
    QRectF groove = slider.rect;
    if (upright) {
        groove = QRectF(groove.center().x() - 2, groove.top() + 4, 4, groove.height() - 8);
    } else {
        groove = QRectF(groove.left() + 4, groove.center().y() - 2, groove.width() - 8, 4);
    }
    FillRounded(painter, groove, 2, quiet);
    QRectF done = groove;
    upright ? done.setTop(handle.center().y()) : done.setRight(handle.center().x());
    FillRounded(painter, done, 2, mark);
    const double size = std::min(handle.width(), handle.height());
    QRectF knob(0, 0, size - 2, size - 2);
    knob.moveCenter(QRectF(handle).center());
    const bool focus = Has(slider, QStyle::State_HasFocus);
    FillRounded(painter, knob, size, Qt::white, focus ? mark : quiet, focus ? 2 : 1);
}

void DrawArrow(QPainter& painter, const QStyleOption& option, const QRect& place) {
    const QColor base = option.palette.color(QPalette::Base);
    const QColor text = Readable(option.palette.color(QPalette::Text), base, shapeContrast);
    const QColor color = Has(option, QStyle::State_Enabled) ? MixFor(shapeContrast, base, text, 0.8)
                                                            : Mix(base, text, 0.35);
    const double half = 4;
    const QPointF middle = QRectF(place).center();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF{middle + QPointF(-half, -half / 2),
                                   middle + QPointF(0, half / 2),
                                   middle + QPointF(half, -half / 2)});
    painter.restore();
}

}  // namespace kivu::view
