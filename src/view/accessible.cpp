#include "view/accessible.h"

#include <QAccessible>
#include <unordered_map>

#include "forms/list_control.h"
#include "view/accessible_control.h"
#include "view/rows.h"
#include "view/text.h"

namespace kivu::view {

namespace {

// By their widgets. A window and its mirrors live on one thread, and end before the program does.
std::unordered_map<const QObject*, Mirror*>& Joined() {
    static std::unordered_map<const QObject*, Mirror*> joined;
    return joined;
}

// The toolkit asks once for each class of the object, the most special one first.
QAccessibleInterface* Make(const QString&, QObject* object) {
    const auto found = Joined().find(object);
    return found == Joined().end() ? nullptr : MakeAccessible(*found->second);
}

void Tell(QAccessibleEvent event) {
    QAccessible::updateAccessibility(&event);
}

// The picture of a switch's one state has come or gone.
void TellSwitch(Mirror& picture) {
    forms::Container* around = picture.GetControl().Parent();
    if (!around || !IsSwitch(*around) || around->Children().front() != &picture.GetControl())
        return;
    Mirror* mirror = picture.Host().MirrorOf(*around);
    if (!mirror || !mirror->Widget()) return;
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(mirror->Widget(), changed);
    QAccessible::updateAccessibility(&event);
}

}  // namespace

void ServeAssistiveTools() {
    static bool served = false;
    if (served) return;
    served = true;
    QAccessible::installFactory(Make);
}

void JoinAccessible(Mirror& mirror) {
    Joined()[mirror.Widget()] = &mirror;
    if (!QAccessible::isActive()) return;
    // Somebody may have asked of the widget before anybody knew whose it is.
    QAccessibleInterface* made = QAccessible::queryAccessibleInterface(mirror.Widget());
    if (made && !dynamic_cast<AccessibleControl*>(made))
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(made));
}

void PartAccessible(const Mirror& mirror) {
    std::erase_if(Joined(), [&](const auto& one) { return one.second == &mirror; });
}

Mirror* MirrorOfWidget(const QWidget* widget) {
    const auto found = widget ? Joined().find(widget) : Joined().end();
    return found == Joined().end() ? nullptr : found->second;
}

void TellChange(Mirror& mirror, forms::Aspect aspect) {
    QWidget* widget = mirror.Widget();
    if (!QAccessible::isActive() || !widget) return;
    const forms::Control& control = mirror.GetControl();
    if (aspect == forms::Aspect::visible) TellSwitch(mirror);
    const Meaning meaning = MeaningOf(control);
    if (meaning == Meaning::nothing) return;
    const bool words = aspect == forms::Aspect::text || aspect == forms::Aspect::toolTip;
    if (words && meaning == Meaning::choice && aspect == forms::Aspect::text) {
        QAccessibleValueChangeEvent event(
            widget, ToQt(static_cast<const forms::ComboBox&>(control).Text()));
        QAccessible::updateAccessibility(&event);
    } else if (words && meaning == Meaning::list && aspect == forms::Aspect::text) {
        // Its hint; what it is called stands on its tab.
        Tell(QAccessibleEvent(widget, QAccessible::DescriptionChanged));
    } else if (words && meaning != Meaning::field && meaning != Meaning::slider) {
        Tell(QAccessibleEvent(widget, QAccessible::NameChanged));
    }
    if (aspect == forms::Aspect::colors && meaning == Meaning::tab) {
        QAccessible::State changed;
        changed.selected = true;
        QAccessibleStateChangeEvent event(widget, changed);
        QAccessible::updateAccessibility(&event);
    }
}

// The toolkit tells of the list alone.
void TellFocus(Mirror& mirror) {
    QWidget* widget = mirror.Widget();
    const RowSource* rows = mirror.RowsShown();
    if (!QAccessible::isActive() || !widget || !rows || !widget->isActiveWindow()) return;
    if (MeaningOf(mirror.GetControl()) != Meaning::list || rows->Selected() < 0) return;
    QAccessibleEvent event(widget, QAccessible::Focus);
    event.setChild(rows->Selected());
    QAccessible::updateAccessibility(&event);
}

}  // namespace kivu::view
