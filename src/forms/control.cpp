#include "forms/control.h"

#include <algorithm>
#include <utility>

#include "forms/form.h"

namespace kivu::forms {

Control::Control(Container* parent, std::string name, int index)
    : name(std::move(name)), index(index), parent(parent) {
    if (!parent) return;
    form = parent->GetKind() == Kind::form ? static_cast<Form*>(parent) : parent->form;
    font = parent->font;
    parent->children.push_back(this);
    if (form) form->controls.push_back(this);
}

std::string Control::FullName() const {
    return index < 0 ? name : name + "(" + std::to_string(index) + ")";
}

void Control::SetVisible(bool value) {
    if (visible == value) return;
    visible = value;
    Notify(Aspect::visible);
    if (!value && form) form->DropUnreachableFocus();
}

void Control::SetEnabled(bool value) {
    if (enabled == value) return;
    enabled = value;
    Notify(Aspect::enabled);
    if (!value && form) form->DropUnreachableFocus();
}

bool Control::IsReachable() const {
    for (const Control* control = this; control; control = control->parent) {
        if (!control->enabled) return false;
        if (control->GetKind() == Kind::form) break;
        if (!control->visible) return false;
    }
    const Form* owner = GetKind() == Kind::form ? static_cast<const Form*>(this) : form;
    return !owner || !owner->IsUnloaded();
}

void Control::Move(int newLeft, int newTop, int newWidth, int newHeight) {
    if (newWidth < 0 || newHeight < 0) return;
    const bool resized = newWidth != width || newHeight != height;
    if (!resized && newLeft == left && newTop == top) return;
    left = newLeft;
    top = newTop;
    width = newWidth;
    height = newHeight;
    Notify(Aspect::geometry);
    if (resized) Run(onResize);
}

void Control::SetFont(Font value) {
    const bool fits = value.size > 0 && value.size <= largestFont;  // not a number fits nowhere
    if (!fits || font == value) return;
    font = std::move(value);
    Notify(Aspect::font);
    Remeasure();
    Run(onFontChange);
}

void Control::SetFontSize(double points) {
    Font changed = font;
    changed.size = points;
    SetFont(std::move(changed));
}

void Control::SetBackColor(Color value) {
    if (backColor == value) return;
    backColor = value;
    Notify(Aspect::colors);
}

void Control::SetForeColor(Color value) {
    if (foreColor == value) return;
    foreColor = value;
    Notify(Aspect::colors);
}

void Control::SetToolTipText(std::string value) {
    if (toolTipText == value) return;
    toolTipText = std::move(value);
    Notify(Aspect::toolTip);
}

void Control::SetPicture(Picture value) {
    if (picture == value) return;
    picture = std::move(value);
    Notify(Aspect::picture);
}

void Control::BringToFront() {
    if (parent) PlaceAt(parent->children.size() - 1);
}

void Control::SendToBack() {
    if (parent) PlaceAt(0);
}

void Control::PlaceAt(std::size_t place) {
    auto& siblings = parent->children;
    if (siblings[place] == this) return;
    siblings.erase(std::find(siblings.begin(), siblings.end(), this));
    siblings.insert(siblings.begin() + static_cast<std::ptrdiff_t>(place), this);
    Notify(Aspect::zOrder);
}

void Control::StartDrag() {
    if (form) form->SetDragged(this);
}

void Control::SetFocus() {
    if (form && TakesFocus() && IsReachable()) form->MoveFocus(this);
}

bool Control::HasFocus() const {
    return form && form->Focus() == this;
}

void Control::Notify(Aspect aspect) {
    Form* owner = form;
    if (GetKind() == Kind::form) owner = static_cast<Form*>(this);
    if (owner && owner->observer) owner->observer->Changed(*this, aspect);
    if (owner == this && aspect == Aspect::visible) owner->TellWindowHost();
}

HeldForm::HeldForm(Control& control)
    : form(control.GetKind() == Kind::form ? static_cast<Form*>(&control) : control.ParentForm()) {
    if (form) form->Hold();
}

HeldForm::~HeldForm() {
    if (form) form->Release();
}

const Toolkit& Control::GetToolkit() const {
    static const Toolkit none;
    return form ? form->GetToolkit() : none;
}

}  // namespace kivu::forms
