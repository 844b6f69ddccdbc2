#include "forms/tab_order.h"

#include <algorithm>
#include <iterator>

#include "forms/hit_test.h"

namespace kivu::forms {

namespace {

using Controls = std::vector<Control*>;

// From where to where a control reaches, down or across the form. Edges that overlap by a few
// pixels are no overlap to the eye.
struct Reach {
    int from, to;
};

Reach ReachOf(const Control& control, bool down) {
    const int from = down ? control.Top() : control.Left();
    const int length = down ? control.Height() : control.Width();
    const int inset = std::min(length / 4, 4 * twipsPerPixel);
    return {from + inset, from + length - inset};
}

// Takes away the first of them up to where a straight line crosses none: a line, or a column. All
// of them: there is no such place.
Controls CutOff(Controls& controls, bool down) {
    std::stable_sort(controls.begin(), controls.end(), [down](Control* a, Control* b) {
        return ReachOf(*a, down).from < ReachOf(*b, down).from;
    });
    int end = ReachOf(*controls.front(), down).to;
    const auto behind = std::find_if(controls.begin() + 1, controls.end(), [&](Control* control) {
        const Reach reach = ReachOf(*control, down);
        const bool gap = reach.from >= end;
        end = std::max(end, reach.to);
        return gap;
    });
    Controls first(controls.begin(), behind);
    controls.erase(controls.begin(), behind);
    return first;
}

// Line by line. In a line that a tall control holds together its columns may have lines of their
// own.
void AddByPlace(Controls controls, Controls& order) {
    while (!controls.empty()) {
        Controls first = CutOff(controls, true);
        const bool line = !controls.empty();
        if (!line) {
            controls = std::move(first);
            first = CutOff(controls, false);
        }
        if (controls.empty()) {
            order.insert(order.end(), first.begin(), first.end());
        } else {
            AddByPlace(std::move(first), order);
        }
    }
}

Controls ByPlace(const Controls& children) {
    Controls order;
    AddByPlace(children, order);
    return order;
}

// Those at one place stand as they were made.
void AddByPlace(const Form& form, const Container& container, std::vector<Control*>& order) {
    std::vector<Control*> children;
    std::copy_if(form.Controls().begin(), form.Controls().end(), std::back_inserter(children),
                 [&](const Control* control) { return control->Parent() == &container; });
    for (Control* child : ByPlace(children)) {
        order.push_back(child);
        const auto* inner = dynamic_cast<const Container*>(child);
        if (inner) AddByPlace(form, *inner, order);
    }
}

// All controls in the order of the Tab key.
std::vector<Control*> Ordered(const Form& form) {
    if (form.GetTabOrder() == TabOrder::asCreated) return form.Controls();
    std::vector<Control*> order;
    AddByPlace(form, form, order);
    return order;
}

// Twips within the form.
bool Holds(const Control& control, Point place) {
    const Point corner = CornerInForm(control);
    return place.x >= corner.x && place.x < corner.x + control.Width() && place.y >= corner.y &&
           place.y < corner.y + control.Height();
}

// A panel that lies over it hides its middle: the focus would not be seen there.
bool IsCovered(const Control& control) {
    const Point corner = CornerInForm(control);
    const Point middle{corner.x + control.Width() / 2, corner.y + control.Height() / 2};
    const auto covers = [middle](const Control* other) {
        const auto* frame = dynamic_cast<const Frame*>(other);
        return frame && frame->IsRaised() && frame->Visible() && Holds(*frame, middle);
    };
    for (const Control* at = &control; at->Parent(); at = at->Parent()) {
        const auto& siblings = at->Parent()->Children();
        const auto own = std::find(siblings.begin(), siblings.end(), at);
        if (own != siblings.end() && std::any_of(own + 1, siblings.end(), covers)) return true;
    }
    return false;
}

bool IsStop(const Control& control) {
    return control.TakesFocus() && control.IsReachable() && !IsCovered(control);
}

}  // namespace

std::vector<OptionButton*> OptionsBeside(const OptionButton& button) {
    std::vector<OptionButton*> options;
    for (Control* control : Ordered(*button.ParentForm())) {
        const bool beside = control->Parent() == button.Parent() && IsStop(*control);
        if (beside && control->GetKind() == Kind::optionButton)
            options.push_back(static_cast<OptionButton*>(control));
    }
    return options;
}

namespace {

// The one with the focus, else the one that is on, else the first.
const OptionButton& StopAmong(const std::vector<OptionButton*>& options) {
    const auto focused =
        std::find_if(options.begin(), options.end(), [](auto* one) { return one->HasFocus(); });
    if (focused != options.end()) return **focused;
    const auto on =
        std::find_if(options.begin(), options.end(), [](auto* one) { return one->Value() != 0; });
    return on == options.end() ? *options.front() : **on;
}

}  // namespace

std::vector<Control*> TabStops(const Form& form) {
    std::vector<Control*> stops;
    for (Control* control : Ordered(form)) {
        if (!IsStop(*control)) continue;
        const auto* option = dynamic_cast<const OptionButton*>(control);
        if (!option || &StopAmong(OptionsBeside(*option)) == option) stops.push_back(control);
    }
    return stops;
}

Control* StopBehind(const Control& control) {
    const std::vector<Control*> order = Ordered(*control.ParentForm());
    const auto at = std::find(order.begin(), order.end(), &control);
    const auto found = std::find_if(
        at, order.end(), [&](const Control* other) { return other != &control && IsStop(*other); });
    return found == order.end() ? nullptr : *found;
}

void FocusFirst(Form& form) {
    const auto stops = TabStops(form);
    if (!stops.empty()) stops.front()->SetFocus();
}

}  // namespace kivu::forms
