#include "forms/window_host.h"

#include <algorithm>
#include <utility>

#include "forms/names.h"
#include "forms/tab_order.h"

namespace kivu::forms {

namespace {

void PlaceOver(Form& form, const Form& over) {
    form.Move(over.Left() + (over.Width() - form.Width()) / 2,
              over.Top() + (over.Height() - form.Height()) / 2, form.Width(), form.Height());
}

}  // namespace

WindowHost::~WindowHost() = default;

void WindowHost::Show(Form& form, Form* over) {
    if (IsOpen(form)) {
        Raise(form);
    } else {
        PutInFront(form, over, false);
    }
}

void WindowHost::ShowModal(Form& form, Form* over) {
    const Known* before = Entry(form);
    if (before && before->modal && form.Visible()) {
        Raise(form);
        return;
    }
    const HeldForm held(form);
    const Question question(*this);
    if (!PutInFront(form, over, true)) return;
    Serve(form, [&] { return IsOpen(form); });
    if (IsOpen(form)) form.SetVisible(false);
    if (Known* entry = Entry(form)) entry->modal = false;
}

void WindowHost::Adopt(Form& form) {
    Loaded(form);
    Entry(form)->placed = true;
}

bool WindowHost::PutInFront(Form& form, Form* over, bool modal) {
    if (IsDying(form) || over == &form) return false;
    const HeldForm held(form);
    form.Load();
    Known* entry = Entry(form);
    if (!entry) return false;  // its own load handler has unloaded it
    entry->over = over;
    entry->modal = modal;
    if (!std::exchange(entry->placed, true) && over && !form.KeepsPlace()) PlaceOver(form, *over);
    MoveToFront(form);
    form.SetVisible(true);
    if (form.Activates() && !form.Focus()) FocusFirst(form);
    return IsOpen(form);
}

void WindowHost::Raise(Form& form) {
    if (!IsOpen(form)) return;
    std::vector<Form*> raised;
    for (const Window& window : windows) {
        if (window.form->Visible() && StandsOver(*window.form, form)) raised.push_back(window.form);
    }
    for (Form* one : raised) {
        MoveToFront(*one);
        ComeForward(*one);
    }
}

void WindowHost::CountQuestion(int change) {
    questions += change;
    if (onQuestions) onQuestions();
}

void WindowHost::MoveToFront(const Form& form) {
    const auto at = std::find_if(windows.begin(), windows.end(),
                                 [&](const Window& window) { return window.form == &form; });
    std::rotate(at, at + 1, windows.end());
}

std::vector<WindowHost::Window> WindowHost::OpenWindows() const {
    std::vector<Window> open;
    std::copy_if(windows.begin(), windows.end(), std::back_inserter(open),
                 [](const Window& window) { return window.form->Visible(); });
    return open;
}

Form* WindowHost::Find(std::string_view name) const {
    const auto found = std::find_if(windows.begin(), windows.end(), [&](const Window& window) {
        return SameName(window.form->Name(), name);
    });
    return found == windows.end() ? nullptr : found->form;
}

bool WindowHost::IsOpen(const Form& form) const {
    return form.Visible() && Entry(form);
}

bool WindowHost::IsBlocked(const Form& form) const {
    const auto modal = std::find_if(windows.rbegin(), windows.rend(), [](const Window& window) {
        return window.modal && window.form->Visible();
    });
    return modal != windows.rend() && !StandsOver(form, *modal->form);
}

// The form itself counts as standing over it, too.
bool WindowHost::StandsOver(const Form& form, const Form& below) const {
    const Form* at = &form;
    for (std::size_t steps = 0; at && steps <= windows.size(); ++steps) {
        if (at == &below) return true;
        const Known* entry = Entry(*at);
        at = entry ? entry->over : nullptr;
    }
    return false;
}

const WindowHost::Known* WindowHost::Entry(const Form& form) const {
    const auto found = std::find_if(windows.begin(), windows.end(),
                                    [&](const Known& window) { return window.form == &form; });
    return found == windows.end() ? nullptr : &*found;
}

WindowHost::Known* WindowHost::Entry(const Form& form) {
    return const_cast<Known*>(std::as_const(*this).Entry(form));
}

bool WindowHost::IsDying(const Form& form) const {
    return std::any_of(dying.begin(), dying.end(),
                       [&](const Dying& one) { return one.form == &form; });
}

void WindowHost::Loaded(Form& form) {
    if (!Entry(form)) windows.push_back({{&form, nullptr, false}});
}

void WindowHost::VisibilityChanged(Form& form) {
    const Known* entry = Entry(form);
    if (!entry) return;
    if (form.Visible()) {
        Appear(Window(*entry));
    } else {
        Vanish(form);
    }
}

void WindowHost::Unloaded(const Form& form) {
    std::erase_if(windows, [&](const Known& window) { return window.form == &form; });
    for (Known& window : windows) {
        if (window.over == &form) window.over = nullptr;
    }
}

void WindowHost::Gone(Form& form) {
    Unloaded(form);
    Forget(form);
}

void WindowHost::FreeLater(Form& form, std::shared_ptr<void> owner) {
    dying.push_back({&form, std::move(owner)});
    FreeWanted();
}

void WindowHost::FreeUnloaded() {
    for (;;) {
        const auto free = std::find_if(dying.begin(), dying.end(),
                                       [](const Dying& one) { return !one.form->IsHeld(); });
        if (free == dying.end()) return;
        const Dying last = std::move(*free);
        dying.erase(free);
        Forget(*last.form);
        // With its owner the form goes, which may unload others.
    }
}

}  // namespace kivu::forms
