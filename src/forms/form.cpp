#include "forms/form.h"

#include <algorithm>
#include <utility>

#include "forms/names.h"
#include "forms/window_host.h"

namespace kivu::forms {

Form::Form(std::string name, Toolkit toolkit)
    : Container(nullptr, std::move(name)), toolkit(toolkit) {
}

Form::~Form() {
    if (toolkit.windows) toolkit.windows->Gone(*this);
}

Control* Form::Find(std::string_view name, int index) const {
    const auto found = std::find_if(controls.begin(), controls.end(), [&](const Control* control) {
        return control->Index() == index && SameName(control->Name(), name);
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

void Form::SetFrameFlag(bool& flag, bool value) {
    if (flag == value) return;
    flag = value;
    Notify(Aspect::windowFrame);
}

void Form::SetActivates(bool value) {
    SetFrameFlag(activates, value);
}

void Form::SetAboveAll(bool value) {
    SetFrameFlag(aboveAll, value);
}

void Form::SetResizable(bool value) {
    SetFrameFlag(resizable, value);
}

void Form::SetHasFrame(bool value) {
    SetFrameFlag(hasFrame, value);
}

void Form::SetToolWindow(bool value) {
    SetFrameFlag(toolWindow, value);
}

void Form::SetTopmost(bool value) {
    SetFrameFlag(topmost, value);
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

void Form::Load() {
    if (life == Life::loaded) return;
    life = Life::loaded;
    if (toolkit.windows) {
        visible = false;
        toolkit.windows->Loaded(*this);
    }
    Run(onLoad);
}

void Form::Unload() {
    if (life != Life::loaded || unloading) return;
    const HeldForm whole(*this);
    unloading = true;
    Run(onUnload);
    unloading = false;
    life = Life::unloaded;
    focus = entered = nullptr;
    SetVisible(false);
    if (toolkit.windows) toolkit.windows->Unloaded(*this);
    if (const auto forget = std::exchange(onForget, {})) forget();
}

bool Form::Close() {
    if (!RequestClose()) return false;
    Unload();
    return true;
}

void Form::Release() {
    if (--held == 0 && IsUnloaded() && toolkit.windows) toolkit.windows->Released();
}

void Form::TellWindowHost() {
    if (toolkit.windows) toolkit.windows->VisibilityChanged(*this);
}

}  // namespace kivu::forms
