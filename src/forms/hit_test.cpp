#include "forms/hit_test.h"

#include <cstdint>
#include <limits>

namespace kivu::forms {

namespace {

bool Covers(const Control& control, std::int64_t x, std::int64_t y) {
    if (!control.Visible() || control.GetKind() == Kind::timer) return false;
    return x >= control.Left() && y >= control.Top() && x - control.Left() < control.Width() &&
           y - control.Top() < control.Height();
}

Control& Deepest(Container& container, std::int64_t x, std::int64_t y, const Control* without) {
    const auto& children = container.Children();
    for (auto child = children.rbegin(); child != children.rend(); ++child) {
        if (*child == without || !Covers(**child, x, y)) continue;
        auto* inner = dynamic_cast<Container*>(*child);
        if (!inner) return **child;
        return Deepest(*inner, x - inner->Left(), y - inner->Top(), without);
    }
    return container;
}

int Clamped(std::int64_t value) {
    using Range = std::numeric_limits<int>;
    return static_cast<int>(value < Range::min()   ? Range::min()
                            : value > Range::max() ? Range::max()
                                                   : value);
}

}  // namespace

Point CornerInForm(const Control& control) {
    std::int64_t x = 0, y = 0;
    for (const Control* at = &control; at && at->GetKind() != Kind::form; at = at->Parent()) {
        x += at->Left();
        y += at->Top();
    }
    return {Clamped(x), Clamped(y)};
}

Control& ControlAt(Form& form, Point place, const Control* without) {
    return Deepest(form, place.x, place.y, without);
}

}  // namespace kivu::forms
