#include "view/fit_into.h"

#include <gtest/gtest.h>

namespace kivu::tests {
namespace {

struct Place {
    int left, top, width, height;
    bool operator==(const Place&) const = default;
};

Place Fitted(Place design, const QRect& room) {
    forms::Form form("F");
    form.Move(design.left, design.top, design.width, design.height);
    view::FitInto(form, room);
    return {form.Left(), form.Top(), form.Width(), form.Height()};
}

TEST(FitInto, LeavesAWindowThatFits) {
    const Place design{600, 600, 14400, 10200};
    EXPECT_EQ(Fitted(design, {0, 0, 1024, 768}), design);
}

TEST(FitInto, MakesALargerOneAsLargeAsTheRoom) {
    EXPECT_EQ(Fitted({600, 600, 14400, 10200}, {0, 0, 800, 600}), (Place{0, 0, 12000, 9000}));
    // Below a bar at the top.
    EXPECT_EQ(Fitted({600, 600, 14400, 10200}, {0, 30, 640, 450}), (Place{0, 450, 9600, 6750}));
}

TEST(FitInto, BringsOneBackThatHangsOut) {
    EXPECT_EQ(Fitted({600, 600, 14400, 10200}, {0, 0, 980, 700}), (Place{300, 300, 14400, 10200}));
}

}  // namespace
}  // namespace kivu::tests
