#include "forms/form.h"

#include <algorithm>
#include <utility>

namespace kivu::forms {

namespace {

bool SameAsciiText(std::string_view a, std::string_view b) {
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [&](char x, char y) { return lower(x) == lower(y); });
}

}  // namespace

Form::Form(std::string name, Toolkit toolkit)
    : Container(nullptr, std::move(name)), toolkit(toolkit) {
}

Control* Form::Find(std::string_view name, int index) const {
    const auto found = std::find_if(controls.begin(), controls.end(), [&](const Control* control) {
        return control->Index() == index && SameAsciiText(control->Name(), name);
    });
    return found == controls.end() ? nullptr : *found;
}

void Form::SetCaption(std::string value) {
    if (caption == value) return;
    caption = std::move(value);
    Notify(Aspect::text);
}

void Form::SetState(WindowState value) {
    if (state == value) return;
    state = value;
    Notify(Aspect::windowState);
    Run(onResize);
}

void Form::MoveFocus(Control* next) {
    if (next == focus) return;
    focus = next;
    Notify(Aspect::focus);
    if (Control* left = std::exchange(entered, nullptr)) Run(left->onLostFocus);
    // The handler may have moved the focus on, and even back here.
    if (!next || focus != next || entered == next) return;
    entered = next;
    Run(next->onGotFocus);
}

void Form::DropUnreachableFocus() {
    if (focus && !focus->IsReachable()) MoveFocus(nullptr);
}

void Form::SetCornerRadius(int pixels) {
    if (cornerRadius == pixels) return;
    cornerRadius = pixels;
    Notify(Aspect::windowFrame);
}

void Form::SetHasFrame(bool value) {
    if (hasFrame == value) return;
    hasFrame = value;
    Notify(Aspect::windowFrame);
}

void Form::SetToolWindow(bool value) {
    if (toolWindow == value) return;
    toolWindow = value;
    Notify(Aspect::windowFrame);
}

void Form::SetTopmost(bool value) {
    if (topmost == value) return;
    topmost = value;
    Notify(Aspect::windowFrame);
}

void Form::BeginDrag() {
    if (observer) observer->DragWindow();
}

void Form::SetDragged(Control* value) {
    dragged = value;
    if (value) draggedFrom = {value->Left(), value->Top()};
}

bool Form::RequestClose() {
    bool cancel = false;
    Run(onQueryClose, cancel);
    return !cancel;
}

}  // namespace kivu::forms
