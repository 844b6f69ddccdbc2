#include "view/pointer.h"

#include <QApplication>
#include <utility>

#include "forms/controls.h"
#include "forms/list_control.h"
#include "view/geometry.h"
#include "view/keys.h"

namespace kivu::view {

namespace {

bool Listens(const forms::Control& control) {
    switch (control.GetKind()) {
        case forms::Kind::label:
        case forms::Kind::image:
        case forms::Kind::pictureBox:
        case forms::Kind::frame:
            return control.onClick || control.onDblClick || control.onMouseDown ||
                   control.onMouseUp;
        default:
            return true;
    }
}

QPoint GlobalOf(const QMouseEvent& event) {
    return event.globalPosition().toPoint();
}

forms::Mouse MouseOf(const Mirror& mirror, const QMouseEvent& event, int button) {
    return mirror.MouseAt(GlobalOf(event), button, ShiftState(event.modifiers()));
}

// Bits of all buttons that are down, as a mouse-move handler is told.
int ButtonsOf(Qt::MouseButtons down) {
    int bits = 0;
    for (const Qt::MouseButton one : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        if (down & one) bits |= ButtonBit(one);
    }
    return bits;
}

}  // namespace

Pointer::Pointer(forms::Form& form, forms::UserInput& input, WindowDrag& drag, MirrorOf mirrorOf)
    : form(form), input(input), drag(drag), mirrorOf(std::move(mirrorOf)) {
}

Mirror& Pointer::TargetOf(Mirror& mirror) const {
    forms::Control* control = &mirror.GetControl();
    while (!Listens(*control) && control->Parent()) {
        control = control->Parent();
    }
    Mirror* target = mirrorOf(*control);
    return target ? *target : mirror;
}

bool Pointer::Handle(Mirror& mirror, QMouseEvent& event) {
    // The widget itself decides, not what lies behind it: a caret needs its own mouse.
    const bool consumed = !mirror.UsesMouse();
    switch (event.type()) {
        case QEvent::MouseButtonPress:
            return Press(TargetOf(mirror), event, false) || consumed;
        case QEvent::MouseButtonDblClick:
            return Press(TargetOf(mirror), event, true) || consumed;
        case QEvent::MouseMove:
            return Move(mirror, event) || consumed;
        case QEvent::MouseButtonRelease:
            return Release(event, consumed);
        default:
            return false;
    }
}

bool Pointer::Press(Mirror& mirror, const QMouseEvent& event, bool second) {
    forms::Control& control = mirror.GetControl();
    const int bit = ButtonBit(event.button());
    if (bit == 0) return true;
    // The toolkit calls it a double click wherever in the window the first one was.
    const bool again = second && last == &control && event.button() == Qt::LeftButton;
    const bool doubled = again && (control.onDblClick || mirror.HasRows());
    last = again ? nullptr : &control;
    drag.Disarm();
    dragsControl = false;
    const bool fetches = OnlyActivates(mirror, second);
    if (!control.IsReachable() || fetches) {
        pressed = nullptr;
        return true;
    }
    auto* box = dynamic_cast<forms::ComboBox*>(&control);
    if (box && bit == forms::buttons::left && mirror.IsOnArrow(GlobalOf(event)) &&
        input.DropDown(*box)) {
        pressed = nullptr;
        return true;
    }
    pressed = &control;
    button = event.button();
    pressedAt = GlobalOf(event);
    clickPending = button == Qt::LeftButton && !doubled;
    if (mirror.HasRows() && !mirror.UsesMouse()) {
        PressList(mirror, event, doubled);
        return true;
    }
    if (doubled) {
        control.DoubleClick();
    } else {
        const forms::Mouse mouse = MouseOf(mirror, event, bit);
        mirror.ShowPressed(button == Qt::LeftButton);
        input.MouseDown(control, mouse);
        if (ReleaseIsLost(control)) {
            LoseButton();
            ClickOn(control);
            input.MouseUp(control, mouse);
        }
    }
    // A handler may have put the widget away: then its own press would be a stranger's.
    return !mirror.Widget() || !mirror.Widget()->isVisible() || !control.IsReachable();
}

bool Pointer::ReleaseIsLost(const forms::Control& control) const {
    const bool up = !(QApplication::mouseButtons() & button);
    return pressed == &control && clickPending && up && !form.Dragged();
}

bool Pointer::OnlyActivates(const Mirror& mirror, bool second) {
    // Milliseconds in which the click arrives that has activated the window.
    constexpr qint64 promptly = 300;
    const QWidget* widget = mirror.Widget();
    const bool fresh = activated.isValid() && activated.elapsed() < promptly;
    const bool fetches = fresh || (second && fetching) || !widget || !widget->isActiveWindow();
    fetching = fetches && !mirror.GetControl().TakesActivatingClick();
    return fetching;
}

void Pointer::Hover(forms::Control* control) {
    forms::Control* from = std::exchange(hovered, control);
    if (from != control) input.MouseLeave(from, control);
}

void Pointer::LoseButton() {
    forms::Control* control = std::exchange(pressed, nullptr);
    button = Qt::NoButton;
    clickPending = false;
    dragsControl = false;
    drag.Disarm();
    if (form.Dragged()) {
        Mirror* dragged = mirrorOf(*form.Dragged());
        input.CancelDrag();
        if (dragged) dragged->Apply(forms::Aspect::geometry);
    }
    Mirror* mirror = control ? mirrorOf(*control) : nullptr;
    if (mirror && mirror->Widget()) mirror->ShowPressed(false);
}

void Pointer::PressList(Mirror& mirror, const QMouseEvent& event, bool second) {
    forms::Control& control = mirror.GetControl();
    clickPending = false;
    const std::optional<int> row = mirror.RowAt(GlobalOf(event));
    const forms::Mouse mouse = MouseOf(mirror, event, ButtonBit(event.button()));
    if (event.button() == Qt::RightButton) {
        control.SetFocus();
        if (row && control.IsReachable()) mirror.SelectRow(*row);
        input.MouseDown(control, mouse);
        return;
    }
    if (!second) input.MouseDown(control, mouse);
    // The handlers may have emptied the list; a row that is gone is not clicked.
    if (!row || !control.IsReachable() || event.button() != Qt::LeftButton) return;
    if (!second || mirror.SelectedRow() != *row) mirror.ClickRow(*row, mouse.shift);
    if (second && control.IsReachable()) control.DoubleClick();
}

bool Pointer::Move(Mirror& mirror, const QMouseEvent& event) {
    if (pressed || form.Dragged()) {
        // Press and release may both have waited while a handler ran, and the release have gone to
        // somebody else.
        if (!(event.buttons() & (button == Qt::NoButton ? Qt::LeftButton : button))) LoseButton();
    }
    if (!pressed) Hover(&mirror.GetControl());
    if (button == Qt::LeftButton && pressed && drag.Moved(GlobalOf(event))) {
        clickPending = false;
        return true;
    }
    if (DragControl(GlobalOf(event))) return true;
    Mirror* target = pressed ? mirrorOf(*pressed) : &mirror;
    if (!target || !target->Widget()) return true;
    if (pressed && clickPending) {
        target->ShowPressed(
            target->Widget()->rect().contains(target->Widget()->mapFromGlobal(GlobalOf(event))));
    }
    forms::Control& control = target->GetControl();
    if (control.onMouseMove) {
        input.MouseMove(control, MouseOf(*target, event, ButtonsOf(event.buttons())));
    }
    return false;
}

forms::Point Pointer::PlaceOf(QPoint global) const {
    const forms::Mouse mouse = mirrorOf(form)->MouseAt(global, 0, 0);
    return {mouse.x, mouse.y};
}

bool Pointer::DragControl(QPoint global) {
    forms::Control* dragged = form.Dragged();
    Mirror* mirror = dragged ? mirrorOf(*dragged) : nullptr;
    if (!mirror || !mirror->Widget()) return false;
    // A click must stay one.
    const int distance = (global - pressedAt).manhattanLength();
    if (!dragsControl && distance < QApplication::startDragDistance()) return false;
    if (!std::exchange(dragsControl, true)) draggedFrom = PixelRect(*dragged).topLeft();
    clickPending = false;
    // The picture follows the mouse where no handler moves the control itself.
    const QPoint by = global - pressedAt;
    input.DragOver(PlaceOf(global));
    if (PixelRect(*dragged).topLeft() == draggedFrom) mirror->Widget()->move(draggedFrom + by);
    return true;
}

bool Pointer::DropControl(QPoint global) {
    forms::Control* dragged = form.Dragged();
    if (!dragged) return false;
    input.Drop(PlaceOf(global));
    if (Mirror* mirror = mirrorOf(*dragged)) mirror->Apply(forms::Aspect::geometry);
    return true;
}

bool Pointer::Release(const QMouseEvent& event, bool consumed) {
    drag.Disarm();
    forms::Control* control = pressed;
    if (!control || event.button() != button) return consumed;
    pressed = nullptr;
    button = Qt::NoButton;
    if (std::exchange(dragsControl, false) && DropControl(GlobalOf(event))) return true;
    Mirror* mirror = mirrorOf(*control);
    if (!mirror || !mirror->Widget()) return true;
    mirror->ShowPressed(false);
    const QPoint place = mirror->Widget()->mapFromGlobal(GlobalOf(event));
    const bool inside = mirror->Widget()->rect().contains(place);
    const forms::Mouse mouse = MouseOf(*mirror, event, ButtonBit(event.button()));
    if (std::exchange(clickPending, false) && inside) ClickOn(*control);
    input.MouseUp(*control, mouse);
    return consumed;
}

void Pointer::ClickOn(forms::Control& control) {
    if (!control.IsReachable()) return;
    if (auto* box = dynamic_cast<forms::CheckBox*>(&control)) {
        box->SetValue(box->Value() == 0 ? 1 : 0);
    } else if (auto* option = dynamic_cast<forms::OptionButton*>(&control)) {
        option->SetValue(1);
    } else if (!dynamic_cast<forms::ListControl*>(&control)) {
        control.Click();
    }
}

void Pointer::DragWindow() {
    if (pressed && button == Qt::LeftButton) drag.Arm(pressedAt);
}

}  // namespace kivu::view
