#include "view/mirror.h"

#include <QCursor>
#include <QPalette>
#include <QTextDocument>

#include "view/accessible.h"
#include "view/colors.h"
#include "view/fonts.h"
#include "view/geometry.h"
#include "view/text.h"

namespace kivu::view {

namespace {

// The toolkit would hand the focus of a hidden widget on to the next one, and with it run handlers.
void DropFocusWithin(QWidget& widget) {
    QWidget* focus = widget.window()->focusWidget();
    if (focus && (focus == &widget || widget.isAncestorOf(focus))) focus->clearFocus();
}

// What has moved away from under a mouse that rests hears of it only when that moves.
void LeaveRestingMouse(QWidget& widget) {
    if (!widget.underMouse() || widget.rect().contains(widget.mapFromGlobal(QCursor::pos())))
        return;
    widget.setAttribute(Qt::WA_UnderMouse, false);
    widget.update();
}

}  // namespace

QString PlainToolTip(const QString& text) {
    if (!Qt::mightBeRichText(text)) return text;
    return QStringLiteral("<qt>") + text.toHtmlEscaped() + QStringLiteral("</qt>");
}

QString PlainToolTip(const std::string& text) {
    return PlainToolTip(ToQt(text));
}

Mirror::~Mirror() {
    PartAccessible(*this);
}

void Mirror::Adopt(QWidget* newWidget) {
    widget = newWidget;
    JoinAccessible(*this);
    widget->setObjectName(ToQt(control.FullName()));
    // The focus moves only as the model says.
    widget->setFocusPolicy(Qt::NoFocus);
    host.Watch(widget, *this);
    for (const forms::Aspect aspect :
         {forms::Aspect::geometry, forms::Aspect::font, forms::Aspect::colors,
          forms::Aspect::toolTip, forms::Aspect::text, forms::Aspect::enabled,
          forms::Aspect::visible}) {
        Apply(aspect);
    }
}

void Mirror::Apply(forms::Aspect aspect) {
    if (!widget) return;
    switch (aspect) {
        case forms::Aspect::visible:
            if (!control.Visible()) DropFocusWithin(*widget);
            widget->setVisible(control.Visible());
            break;
        case forms::Aspect::enabled:
            if (!control.Enabled()) DropFocusWithin(*widget);
            widget->setEnabled(control.Enabled());
            break;
        case forms::Aspect::geometry:
            widget->setGeometry(PixelRect(control).marginsAdded(Overhang()));
            LeaveRestingMouse(*widget);
            break;
        case forms::Aspect::font:
            widget->setFont(ToQt(control.GetFont()));
            break;
        case forms::Aspect::colors:
            ApplyColors();
            break;
        case forms::Aspect::toolTip:
            widget->setToolTip(PlainToolTip(control.ToolTipText()));
            break;
        case forms::Aspect::zOrder:
            widget->raise();
            break;
        default:
            break;
    }
}

void Mirror::WindowColored() {
    if (widget) widget->update();
}

void Mirror::ApplyColors() {
    const QColor back = ToQt(control.BackColor());
    const QColor fore = ToQt(control.ForeColor());
    QPalette palette = widget->palette();
    palette.setColor(QPalette::Window, back);
    palette.setColor(QPalette::Base, back);
    palette.setColor(QPalette::Button, back);
    palette.setColor(QPalette::WindowText, fore);
    palette.setColor(QPalette::Text, fore);
    palette.setColor(QPalette::ButtonText, fore);
    palette.setColor(QPalette::PlaceholderText, Mix(back, fore, 0.6));
    widget->setPalette(palette);
}

forms::Mouse Mirror::MouseAt(QPoint global, int button, int shift) const {
    const QMargins overhang = Overhang();
    const QPoint place = widget->mapFromGlobal(global) - QPoint(overhang.left(), overhang.top());
    return {button, shift, ToTwips(place.x()), ToTwips(place.y())};
}

}  // namespace kivu::view
