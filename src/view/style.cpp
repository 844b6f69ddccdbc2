#include "view/style.h"

#include <QApplication>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>
#include <algorithm>

#include "view/colors.h"
#include "view/fonts.h"
#include "view/style_parts.h"

namespace kivu::view {

namespace {

constexpr int scrollBarExtent = 16;

QRect ScrollBarSlider(const QStyleOptionSlider& bar) {
    const bool upright = bar.orientation == Qt::Vertical;
    const int length = upright ? bar.rect.height() : bar.rect.width();
    const qint64 range = qint64(bar.maximum) - bar.minimum;
    int extent = length;
    if (range > 0) {
        const int least = std::min(length, 32);
        extent = static_cast<int>(qint64(length) * bar.pageStep / (range + bar.pageStep));
        extent = std::clamp(extent, least, length);
    }
    const int at = QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition,
                                                   length - extent, bar.upsideDown);
    return upright ? QRect(bar.rect.left(), bar.rect.top() + at, bar.rect.width(), extent)
                   : QRect(bar.rect.left() + at, bar.rect.top(), extent, bar.rect.height());
}

// No arrow buttons: only the groove, the slider and the two pages beside it.
QRect ScrollBarPart(const QStyleOptionSlider& bar, QStyle::SubControl part) {
    const QRect slider = ScrollBarSlider(bar);
    const bool upright = bar.orientation == Qt::Vertical;
    QRect rect = bar.rect;
    switch (part) {
        case QStyle::SC_ScrollBarGroove:
            return rect;
        case QStyle::SC_ScrollBarSlider:
            return slider;
        case QStyle::SC_ScrollBarSubPage:
            upright ? rect.setBottom(slider.top() - 1) : rect.setRight(slider.left() - 1);
            return rect;
        case QStyle::SC_ScrollBarAddPage:
            upright ? rect.setTop(slider.bottom() + 1) : rect.setLeft(slider.right() + 1);
            return rect;
        default:
            return {};
    }
}

QRect ComboPart(const QStyleOptionComplex& combo, QStyle::SubControl part) {
    const int arrow = std::min(combo.rect.height(), comboArrowWidth);
    const QRect rect = combo.rect;
    switch (part) {
        case QStyle::SC_ComboBoxArrow:
            return QRect(rect.right() - arrow + 1, rect.top(), arrow, rect.height());
        case QStyle::SC_ComboBoxEditField:
            return rect.adjusted(6, 2, -arrow, -2);
        default:
            return rect;
    }
}

}  // namespace

Style::Style() : QProxyStyle(QStringLiteral("Fusion")) {
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption* option,
                       const QWidget* widget) const {
    switch (metric) {
        case PM_ScrollBarExtent:
            return scrollBarExtent;
        case PM_ScrollView_ScrollBarOverlap:
        case PM_ScrollView_ScrollBarSpacing:
            return 0;
        case PM_DefaultFrameWidth:
            return 1;
        case PM_IndicatorWidth:
        case PM_IndicatorHeight:
        case PM_ExclusiveIndicatorWidth:
        case PM_ExclusiveIndicatorHeight:
            return 16;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                     QStyleHintReturn* returned) const {
    switch (hint) {
        case SH_ComboBox_Popup:
        case SH_EtchDisabledText:
        case SH_Widget_Animate:
        case SH_DitherDisabledText:
            return 0;
        case SH_UnderlineShortcut:
        case SH_ScrollBar_LeftClickAbsolutePosition:
            return 1;
        default:
            return QProxyStyle::styleHint(hint, option, widget, returned);
    }
}

QRect Style::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                            SubControl part, const QWidget* widget) const {
    if (control == CC_ScrollBar) {
        if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option)) {
            return ScrollBarPart(*bar, part);
        }
    }
    if (control == CC_ComboBox && option) return ComboPart(*option, part);
    return QProxyStyle::subControlRect(control, option, part, widget);
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const {
    switch (element) {
        case PE_PanelLineEdit:
            if (widget && widget->parentWidget() && widget->parentWidget()->inherits("QComboBox")) {
                return;
            }
            // A field to type into has its window's colours the other way round.
            DrawField(*painter, *option, option->palette.color(QPalette::Text));
            return;
        case PE_FrameLineEdit:
        case PE_FrameFocusRect:
            return;
        case PE_Frame:
        case PE_FrameMenu:
            DrawHairline(*painter, *option);
            return;
        case PE_PanelButtonCommand:
            DrawButton(*painter, *option);
            return;
        case PE_IndicatorCheckBox:
            DrawCheck(*painter, *option);
            return;
        case PE_IndicatorRadioButton:
            DrawRadio(*painter, *option);
            return;
        case PE_PanelScrollAreaCorner:
            return;
        default:
            QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void Style::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                        const QWidget* widget) const {
    if (element == CE_ComboBoxLabel && widget) return;  // the field shows the text
    if (element == CE_PushButtonLabel) {
        if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option)) {
            DrawButtonText(*painter, *button, *this);
            return;
        }
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                               QPainter* painter, const QWidget* widget) const {
    const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_ScrollBar && slider) {
        const bool opaque = !widget || widget->testAttribute(Qt::WA_OpaquePaintEvent);
        if (opaque) painter->fillRect(option->rect, option->palette.color(QPalette::Base));
        DrawScrollBar(*painter, *slider, ScrollBarPart(*slider, SC_ScrollBarSlider));
        return;
    }
    if (control == CC_Slider && slider) {
        DrawSlider(*painter, *slider, subControlRect(CC_Slider, option, SC_SliderHandle, widget));
        return;
    }
    if (control == CC_ComboBox) {
        DrawField(*painter, *option, option->palette.color(QPalette::Base));
        DrawArrow(*painter, *option, ComboPart(*option, SC_ComboBoxArrow));
        return;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

void ApplyStyle() {
    QApplication::setStyle(new Style);
    QApplication::setFont(PlainFont(QApplication::font()));
    const QColor window(0x00, 0x3f, 0x91);
    const QColor base(0xf4, 0xf7, 0xfc);
    QPalette palette(Qt::white, window);
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, Qt::white);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Text, onAccent);
    palette.setColor(QPalette::Button, Mix(window, Qt::white, 0.18));
    palette.setColor(QPalette::ButtonText, Qt::white);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, onAccent);
    palette.setColor(QPalette::ToolTipBase, QColor(0x12, 0x22, 0x3d));
    palette.setColor(QPalette::ToolTipText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, QColor(0x6a, 0x76, 0x88));
    QApplication::setPalette(palette);
}

}  // namespace kivu::view
