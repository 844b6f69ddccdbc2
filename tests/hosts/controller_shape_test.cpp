#include "hosts/controller_shape.h"

#include <utility>

#include "testing/controller_states.h"

namespace kivu::hosts {
namespace {

using kivu::testing::At;
using platform::ControllerState;
using std::chrono::milliseconds;

// Of a device that has been seen at rest.
class ControllerShape : public ::testing::Test {
 protected:
    ControllerShape() { Shape({}, memory); }
    ControllerState Shaped(int x, int y, int rz = 32768) { return Shape(At(x, y, rz), memory); }

    ShapeMemory memory;
};

TEST_F(ControllerShape, AnAxisWithinHalfOfItsWayIsInTheCentre) {
    EXPECT_EQ(Shaped(32770, 32000, 40000), ControllerState());
    EXPECT_EQ(Shaped(16384, 49152, 16384), ControllerState());
    EXPECT_EQ(Shaped(49152, 16384, 49152), ControllerState());
}

TEST_F(ControllerShape, FurtherOutItIsWhereItIs) {
    EXPECT_EQ(Shaped(16383, 49153, 16383), At(16383, 49153, 16383));
    EXPECT_EQ(Shaped(49153, 16383, 49153), At(49153, 16383, 49153));
    EXPECT_EQ(Shaped(0, 65535, 65535), At(0, 65535, 65535));
    EXPECT_EQ(Shaped(65535, 0, 0), At(65535, 0, 0));
}

TEST_F(ControllerShape, EachAxisIsShapedAlone) {
    EXPECT_EQ(Shaped(65535, 40000), At(65535, 32768));
    EXPECT_EQ(Shaped(30000, 0), At(32768, 0));
    EXPECT_EQ(Shaped(32768, 32768, 0), At(32768, 32768, 0));
}

TEST_F(ControllerShape, TheRestPassesAsItIs) {
    ControllerState raw;
    raw.z = 5;
    raw.rx = 65535;
    raw.ry = 1;
    raw.buttons[0] = raw.buttons[31] = true;
    EXPECT_EQ(Shape(raw, memory), raw);
}

TEST(ControllerShapeOpened, AStickHeldOverReadsCentreUntilItHasBeenThere) {
    ShapeMemory memory;
    EXPECT_EQ(Shape(At(65535, 32768), memory), ControllerState());
    EXPECT_EQ(Shape(At(60000, 32768), memory), ControllerState());
    // The other axis is there already.
    EXPECT_EQ(Shape(At(65535, 0), memory), At(32768, 0));
    EXPECT_EQ(Shape(At(49152, 0), memory), At(32768, 0));
    EXPECT_EQ(Shape(At(65535, 0), memory), At(65535, 0));
}

TEST(ControllerShapeOpened, AnAxisThatRestsAtItsEndNeverMoves) {
    ShapeMemory memory;
    for (int time = 0; time < 100; ++time)
        EXPECT_EQ(Shape(At(0, 65535), memory), ControllerState());
}

TEST(ControllerShapeOpened, AnRzThatBeginsInAnOuterEighthIsAPedal) {
    for (const int released : {0, 8191, 57344, 65535}) {
        ShapeMemory memory;
        for (const int rz : {released, 32768, 65535, 0})
            EXPECT_EQ(Shape(At(32768, 32768, rz), memory), ControllerState()) << released;
    }
}

TEST(ControllerShapeOpened, AnRzThatBeginsFurtherInIsAStick) {
    for (const int held : {8192, 57343}) {
        ShapeMemory memory;
        EXPECT_EQ(Shape(At(32768, 32768, held), memory), At(32768, 32768, held));
        EXPECT_EQ(Shape(At(32768, 32768, 65535), memory), At(32768, 32768, 65535));
    }
}

Arrows Held(std::initializer_list<Arrow> wanted) {
    Arrows arrows;
    for (const Arrow arrow : wanted)
        arrows.Set(arrow);
    return arrows;
}

ControllerState Steered(ControllerState state, std::initializer_list<Arrow> arrows) {
    Steer(state, Held(arrows));
    return state;
}

TEST(ControllerArrows, AreAStickAtItsEnd) {
    EXPECT_EQ(Steered({}, {}), ControllerState());
    EXPECT_EQ(Steered({}, {Arrow::none}), ControllerState());
    EXPECT_EQ(Steered({}, {Arrow::left}), At(0, 32768));
    EXPECT_EQ(Steered({}, {Arrow::right}), At(65535, 32768));
    EXPECT_EQ(Steered({}, {Arrow::up}), At(32768, 0));
    EXPECT_EQ(Steered({}, {Arrow::down}), At(32768, 65535));
    EXPECT_EQ(Steered({}, {Arrow::down, Arrow::left}), At(0, 65535));
}

TEST(ControllerArrows, LeaveTheAxisThatTheyDoNotPress) {
    EXPECT_EQ(Steered(At(60000, 60000), {Arrow::up}), At(60000, 0));
    EXPECT_EQ(Steered(At(60000, 60000), {}), At(60000, 60000));
}

TEST(ControllerArrows, BothEndsAtOnceAreNone) {
    EXPECT_EQ(Steered({}, {Arrow::left, Arrow::right, Arrow::down}), At(32768, 65535));
    EXPECT_EQ(Steered({}, {Arrow::up, Arrow::down}), ControllerState());
}

class ControllerTaps : public ::testing::Test {
 protected:
    ControllerState Read(milliseconds now, ControllerState state = {}) {
        Arrows held;
        taps.Take(now, state, held);
        Steer(state, held);
        pressed = std::exchange(state.pressed, {});
        return state;
    }

    std::array<bool, 32> pressed{};  // at the last read
    Taps taps{milliseconds(1000)};
};

TEST_F(ControllerTaps, AButtonThatIsUpAgainWasDownOnce) {
    taps.Press(3);
    ControllerState expected;
    expected.buttons[3] = true;
    EXPECT_EQ(Read(milliseconds(1140)), expected);
    EXPECT_EQ(Read(milliseconds(1280)), ControllerState());
}

TEST_F(ControllerTaps, WhatIsDownStaysDown) {
    ControllerState held;
    held.buttons[1] = true;
    taps.Press(2);
    ControllerState both = held;
    both.buttons[2] = true;
    EXPECT_EQ(Read(milliseconds(1140), held), both);
    EXPECT_EQ(Read(milliseconds(1280), held), held);
}

TEST_F(ControllerTaps, WhatIsHammeredIsPressedAnewAndWhatIsHeldIsNot) {
    ControllerState held;
    held.buttons[1] = true;
    for (int time = 0; time < 3; ++time) {
        taps.Press(2);
        Read(milliseconds(1250 + 250 * time), held);
        EXPECT_EQ(pressed, kivu::testing::Down({2}).buttons);
    }
    Read(milliseconds(2000), held);
    EXPECT_EQ(pressed, ControllerState().pressed);
    // Nor what was pressed in a long pause.
    taps.Press(2);
    Read(milliseconds(3000), held);
    EXPECT_EQ(pressed, ControllerState().pressed);
}

TEST_F(ControllerTaps, ATappedArrowIsOneStep) {
    taps.Press(Arrow::up);
    EXPECT_EQ(Read(milliseconds(1140)), At(32768, 0));
    EXPECT_EQ(Read(milliseconds(1280)), ControllerState());
}

TEST_F(ControllerTaps, ButtonsThatNoStateHoldsAreNone) {
    taps.Press(32);
    taps.Press(255);
    EXPECT_EQ(Read(milliseconds(1140)), ControllerState());
}

TEST_F(ControllerTaps, WhatWasPressedInALongPauseIsForgotten) {
    taps.Press(3);
    taps.Press(Arrow::left);
    EXPECT_EQ(Read(milliseconds(1501)), ControllerState());
    EXPECT_EQ(Read(milliseconds(1502)), ControllerState());
    taps.Press(3);
    EXPECT_TRUE(Read(milliseconds(2002)).buttons[3]);
}

}  // namespace
}  // namespace kivu::hosts
