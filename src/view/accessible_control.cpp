#include "view/accessible_control.h"

#include <QCoreApplication>
#include <QTimer>
#include <QWindow>
#include <algorithm>

#include "forms/access_keys.h"
#include "forms/list_control.h"
#include "view/accessible_text.h"
#include "view/open_to_hands.h"
#include "view/text.h"

namespace kivu::view {

namespace {

using Action = QAccessibleActionInterface;

QAccessible::Role RoleOf(Meaning meaning) {
    switch (meaning) {
        case Meaning::window:
            return QAccessible::Window;
        case Meaning::group:
            return QAccessible::Grouping;
        case Meaning::text:
            return QAccessible::StaticText;
        case Meaning::link:
            return QAccessible::Link;
        case Meaning::button:
            return QAccessible::Button;
        case Meaning::tab:
            return QAccessible::PageTab;
        case Meaning::check:
            return QAccessible::CheckBox;
        case Meaning::option:
            return QAccessible::RadioButton;
        case Meaning::slider:
            return QAccessible::Slider;
        case Meaning::field:
            return QAccessible::EditableText;
        case Meaning::choice:
            return QAccessible::ComboBox;
        case Meaning::list:
            return QAccessible::List;
        case Meaning::nothing:
            break;
    }
    return QAccessible::NoRole;
}

// All tabs of a container: no widget has them.
class AccessibleTabs : public QAccessibleInterface {
 public:
    explicit AccessibleTabs(QWidget* ground) : ground(ground) {}

    bool isValid() const override { return Find() != nullptr; }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return ground ? ground->window()->windowHandle() : nullptr; }
    QAccessibleInterface* childAt(int x, int y) const override {
        for (int i = 0; i < childCount(); ++i) {
            if (child(i)->rect().contains(x, y)) return child(i);
        }
        return nullptr;
    }
    QAccessibleInterface* parent() const override {
        Mirror* mirror = Find();
        if (!mirror) return nullptr;
        forms::Control& control = mirror->GetControl();
        const bool told = MeaningOf(control) != Meaning::nothing;
        return AccessibleOf(mirror->Host().MirrorOf(told ? control : AroundOf(control)));
    }
    QAccessibleInterface* child(int index) const override {
        const auto tabs = Tabs();
        if (index < 0 || index >= static_cast<int>(tabs.size())) return nullptr;
        return AccessibleOf(Find()->Host().MirrorOf(*tabs[static_cast<std::size_t>(index)]));
    }
    int childCount() const override { return static_cast<int>(Tabs().size()); }
    int indexOfChild(const QAccessibleInterface* wanted) const override {
        for (int i = 0; i < childCount(); ++i) {
            if (child(i) == wanted) return i;
        }
        return -1;
    }
    QString text(QAccessible::Text) const override { return {}; }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override {
        QRect all;
        for (int i = 0; i < childCount(); ++i)
            all |= child(i)->rect();
        return all;
    }
    QAccessible::Role role() const override { return QAccessible::PageTabList; }
    QAccessible::State state() const override {
        QAccessible::State state;
        state.invisible = !ground || !ground->isVisible() || Tabs().empty();
        return state;
    }

 private:
    Mirror* Find() const { return MirrorOfWidget(ground); }
    std::vector<forms::Label*> Tabs() const {
        Mirror* mirror = Find();
        if (!mirror) return {};
        return TabsOf(static_cast<const forms::Container&>(mirror->GetControl()));
    }

    QPointer<QWidget> ground;
};

}  // namespace

QAccessibleInterface* AccessibleOf(Mirror* mirror) {
    return mirror && mirror->Widget() ? QAccessible::queryAccessibleInterface(mirror->Widget())
                                      : nullptr;
}

QAccessibleInterface* MakeAccessible(Mirror& mirror) {
    switch (MeaningOf(mirror.GetControl())) {
        case Meaning::slider:
            return new AccessibleValue(mirror);
        case Meaning::field:
            return new AccessibleText(mirror);
        case Meaning::list:
        case Meaning::choice:
            return new AccessibleRows(mirror);
        default:
            return new AccessibleControl(mirror);
    }
}

AccessibleControl::AccessibleControl(Mirror& mirror) : widget(mirror.Widget()) {
}

AccessibleControl::~AccessibleControl() {
    if (tabList) QAccessible::deleteAccessibleInterface(tabList);
}

Mirror* AccessibleControl::Find() const {
    return MirrorOfWidget(widget);
}

bool AccessibleControl::IsOpen() const {
    return Find() && Control().IsReachable() && IsOpenToHands(*widget);
}

bool AccessibleControl::isValid() const {
    return Find() != nullptr;
}

QWindow* AccessibleControl::window() const {
    return widget ? widget->window()->windowHandle() : nullptr;
}

QAccessibleInterface* AccessibleControl::TabList() {
    if (!tabList) tabList = QAccessible::registerAccessibleInterface(new AccessibleTabs(widget));
    return QAccessible::accessibleInterface(tabList);
}

std::vector<Part> AccessibleControl::Parts() const {
    const Mirror* mirror = Find();
    if (!mirror) return {};
    const auto* container = dynamic_cast<const forms::Container*>(&mirror->GetControl());
    return container ? PartsOf(*container) : std::vector<Part>();
}

QAccessibleInterface* AccessibleControl::Of(const Part& part) const {
    QAccessibleInterface* made = AccessibleOf(Find()->Host().MirrorOf(*part.control));
    auto* control = dynamic_cast<AccessibleControl*>(made);
    return part.tabList && control ? control->TabList() : made;
}

QAccessibleInterface* AccessibleControl::parent() const {
    Mirror* mirror = Find();
    if (!mirror) return nullptr;
    forms::Control& control = mirror->GetControl();
    if (!control.Parent()) return QAccessible::queryAccessibleInterface(qApp);
    if (MeaningOf(control) == Meaning::tab) return Of({control.Parent(), true});
    return AccessibleOf(mirror->Host().MirrorOf(AroundOf(control)));
}

QAccessibleInterface* AccessibleControl::child(int index) const {
    const std::vector<Part> parts = Parts();
    if (index < 0 || index >= static_cast<int>(parts.size())) return nullptr;
    return Of(parts[static_cast<std::size_t>(index)]);
}

int AccessibleControl::childCount() const {
    return static_cast<int>(Parts().size());
}

int AccessibleControl::indexOfChild(const QAccessibleInterface* wanted) const {
    const std::vector<Part> parts = Parts();
    const auto found = std::find_if(parts.begin(), parts.end(),
                                    [&](const Part& part) { return Of(part) == wanted; });
    return found == parts.end() ? -1 : static_cast<int>(found - parts.begin());
}

QAccessibleInterface* AccessibleControl::focusChild() const {
    Mirror* mirror = Find();
    if (!mirror) return nullptr;
    if (mirror->GetControl().GetKind() != forms::Kind::form) return nullptr;
    forms::Control* focus = static_cast<forms::Form&>(mirror->GetControl()).Focus();
    QAccessibleInterface* of = focus ? AccessibleOf(mirror->Host().MirrorOf(*focus)) : nullptr;
    QAccessibleInterface* row = of ? of->focusChild() : nullptr;
    return row ? row : of;
}

// What was made last lies in front.
QAccessibleInterface* AccessibleControl::childAt(int x, int y) const {
    const std::vector<Part> parts = Parts();
    for (auto part = parts.rbegin(); part != parts.rend(); ++part) {
        QAccessibleInterface* child = Of(*part);
        if (child && child->rect().contains(x, y)) return child;
    }
    return nullptr;
}

QString AccessibleControl::text(QAccessible::Text which) const {
    const Mirror* mirror = Find();
    if (!mirror) return {};
    const forms::Control& control = mirror->GetControl();
    switch (which) {
        case QAccessible::Name:
            return NameOf(control);
        case QAccessible::Description:
            return DescriptionOf(control);
        case QAccessible::Value:
            if (const auto* box = dynamic_cast<const forms::ComboBox*>(&control))
                return ToQt(box->Text());
            if (const auto* slider = dynamic_cast<const forms::Slider*>(&control))
                return QString::number(slider->Value());
            return {};
        case QAccessible::Accelerator: {
            const std::string* caption = forms::CaptionWithAccessKey(control);
            const char letter = caption ? forms::AccessKeyOf(*caption) : '\0';
            if (letter == '\0') return {};
            return QStringLiteral("Alt+") + QChar::fromLatin1(letter).toUpper();
        }
        default:
            return {};
    }
}

QRect AccessibleControl::rect() const {
    if (!widget) return {};
    return {widget->mapToGlobal(QPoint(0, 0)), widget->size()};
}

QAccessible::Role AccessibleControl::role() const {
    const Mirror* mirror = Find();
    if (!mirror) return QAccessible::NoRole;
    const bool asks = widget->isWindow() && widget->isModal();
    return asks ? QAccessible::Dialog : RoleOf(MeaningOf(mirror->GetControl()));
}

QAccessible::State AccessibleControl::state() const {
    QAccessible::State state;
    const Mirror* mirror = Find();
    if (!mirror) {
        state.invalid = true;
        return state;
    }
    const forms::Control& control = mirror->GetControl();
    const Meaning meaning = MeaningOf(control);
    state.invisible = !widget->isVisible() || meaning == Meaning::nothing;
    state.disabled = !IsOpen() && !state.invisible;
    state.focusable = control.TakesFocus();
    state.focused =
        control.GetKind() != forms::Kind::form && control.HasFocus() && widget->isActiveWindow();
    if (meaning == Meaning::window) {
        state.active = widget->isActiveWindow();
        state.modal = widget->isModal();
    }
    if (meaning == Meaning::tab) {
        state.selectable = true;
        state.selected = IsMarked(static_cast<const forms::Label&>(control));
    }
    if (IsSwitch(control)) {
        state.checkable = true;
        state.checked = IsOn(control);
    }
    if (const auto* button = dynamic_cast<const forms::ValueButton*>(&control)) {
        state.checkable = true;
        state.checked = button->Value() != 0;
        state.checkStateMixed = button->Value() == 2;
    }
    if (meaning == Meaning::choice) state.hasPopup = true;
    if (const auto* list = dynamic_cast<const forms::ListBox*>(&control))
        state.multiSelectable = state.extSelectable = list->MultiSelect();
    return state;
}

void* AccessibleControl::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::ActionInterface ? static_cast<Action*>(this) : nullptr;
}

QStringList AccessibleControl::actionNames() const {
    const Mirror* mirror = Find();
    QStringList names;
    if (!mirror) return names;
    switch (MeaningOf(mirror->GetControl())) {
        case Meaning::check:
        case Meaning::option:
            names << toggleAction();
            break;
        case Meaning::button:
        case Meaning::link:
        case Meaning::tab:
            names << pressAction();
            break;
        case Meaning::choice:
            names << showMenuAction();
            break;
        default:
            break;
    }
    if (mirror->GetControl().TakesFocus()) names << setFocusAction();
    return names;
}

void AccessibleControl::doAction(const QString& name) {
    Mirror* mirror = Find();
    if (!actionNames().contains(name) || !IsOpen()) return;
    if (name == setFocusAction()) {
        const RepaintRest::Handler running(mirror->Host().Rest());
        Control().SetFocus();
        return;
    }
    // What it leads to may wait for the user, and the tool that asked for it must not wait with it.
    const QPointer<QWidget> asked = widget;
    QTimer::singleShot(0, widget, [asked] {
        auto* made = dynamic_cast<AccessibleControl*>(
            asked ? QAccessible::queryAccessibleInterface(asked) : nullptr);
        if (made && made->IsOpen()) made->Press();
    });
}

void AccessibleControl::Press() {
    Mirror& mirror = *Find();
    const RepaintRest::Handler running(mirror.Host().Rest());
    const forms::HeldForm held(mirror.GetControl());
    if (MeaningOf(mirror.GetControl()) == Meaning::choice) {
        mirror.GetControl().SetFocus();
        mirror.ShowRows();
    } else {
        mirror.Host().Input().Click(ClickedOf(mirror.GetControl()));
    }
}

QStringList AccessibleControl::keyBindingsForAction(const QString& name) const {
    const QString key = name == setFocusAction() ? QString() : text(QAccessible::Accelerator);
    return key.isEmpty() ? QStringList() : QStringList(key);
}

void* AccessibleValue::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return AccessibleControl::interface_cast(type);
}

QVariant AccessibleValue::currentValue() const {
    return Find() ? static_cast<const forms::Slider&>(Control()).Value() : 0;
}

void AccessibleValue::setCurrentValue(const QVariant& value) {
    if (!IsOpen()) return;
    const RepaintRest::Handler running(Find()->Host().Rest());
    static_cast<forms::Slider&>(Control()).SetValue(value.toInt());
}

QVariant AccessibleValue::maximumValue() const {
    return Find() ? static_cast<const forms::Slider&>(Control()).Max() : 0;
}

QVariant AccessibleValue::minimumValue() const {
    return Find() ? static_cast<const forms::Slider&>(Control()).Min() : 0;
}

}  // namespace kivu::view
