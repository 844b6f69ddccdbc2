#include "driver/windows.h"

#include <charconv>

#include "driver/json.h"
#include "text/text.h"

namespace kivu::driver {

namespace {

struct ArrayName {
    std::string_view name;
    int index = -1;
};

// "Check_Dfx(0)" in its parts; the whole text where there is no index.
ArrayName SplitIndex(std::string_view text) {
    const std::size_t open = text.find('(');
    if (open == std::string_view::npos || !text.ends_with(')')) return {text};
    const char* begin = text.data() + open + 1;
    const char* end = text.data() + text.size() - 1;
    int index = -1;
    const auto [last, error] = std::from_chars(begin, end, index);
    if (error != std::errc{} || last != end || index < 0) return {text};
    return {text.substr(0, open), index};
}

forms::Control& ControlOf(forms::Form& form, std::string_view text) {
    const ArrayName name = SplitIndex(text);
    if (forms::Control* control = form.Find(name.name, name.index)) return *control;
    throw CommandError("no control " + form.Name() + "." + std::string(text));
}

}  // namespace

bool SameName(std::string_view a, std::string_view b) {
    return text::EqualsNoCase(a, b);
}

std::string NameOf(const forms::Control& control) {
    const forms::Form* form = control.ParentForm();
    return form ? form->Name() + "." + control.FullName() : control.Name();
}

forms::Form& Windows::Window(std::string_view name) const {
    if (forms::Form* form = host.Find(name)) return *form;
    throw CommandError("no window " + std::string(name));
}

forms::Control& Windows::Control(std::string_view name) const {
    const std::size_t dot = name.find('.');
    forms::Form& form = Window(name.substr(0, dot));
    if (dot == std::string_view::npos) return form;
    return ControlOf(form, name.substr(dot + 1));
}

Windows::Member Windows::FindMember(std::string_view name) const {
    const std::size_t first = name.find('.');
    forms::Form& form = Window(name.substr(0, first));
    if (first == std::string_view::npos)
        throw CommandError(form.Name() + " is a window: name a property of it");
    const std::size_t last = name.rfind('.');
    std::string member(name.substr(last + 1));
    if (first == last) return {form, form, std::move(member)};
    return {form, ControlOf(form, name.substr(first + 1, last - first - 1)), std::move(member)};
}

}  // namespace kivu::driver
