#include "joystick/pad_state.h"

#include <gmock/gmock.h>

namespace kivu::joystick {
namespace {

using platform::ControllerState;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr int deadZone = 2;

ControllerState At(int x, int y = 32768, int rz = 32768) {
    ControllerState state;
    state.x = x;
    state.y = y;
    state.rz = rz;
    return state;
}

// What a state asks for of a device that rested there.
std::vector<StickEvent> Events(const ControllerState& state, const ControllerState& resting = {}) {
    return StickEvents(state, RestOf(resting, {}), deadZone);
}

MATCHER_P2(Goes, move, panel, "") {
    return arg.move == move && arg.panel == panel;
}

TEST(PadState, FirstStickGivesOneEventBeyondTheDeadZone) {
    EXPECT_THAT(Events(At(32770)), IsEmpty());
    EXPECT_THAT(Events(At(32771)), ElementsAre(StickEvent{Move::right, 3, 1}));
    EXPECT_THAT(Events(At(32766)), IsEmpty());
    EXPECT_THAT(Events(At(32765)), ElementsAre(StickEvent{Move::left, -3, 1}));
    EXPECT_THAT(Events(At(32768, 32771)), ElementsAre(StickEvent{Move::down, 0, 1}));
    EXPECT_THAT(Events(At(32768, 32765)), ElementsAre(StickEvent{Move::up, 0, 1}));
    EXPECT_THAT(Events(At(32769, 32770)), IsEmpty());
    // The value of a vertical event is that of the other axis.
    EXPECT_THAT(Events(At(32770, 32771)), ElementsAre(StickEvent{Move::down, 2, 1}));
}

TEST(PadState, HorizontalWinsATie) {
    EXPECT_THAT(Events(At(33268, 33268)), ElementsAre(StickEvent{Move::right, 500, 1}));
    EXPECT_THAT(Events(At(0, 65535)), ElementsAre(StickEvent{Move::left, -32768, 1}));
}

TEST(PadState, SecondStickComesBesidesTheFirst) {
    EXPECT_THAT(Events(At(32768, 32768, 33000)), ElementsAre(StickEvent{Move::right, 232, 2}));
    EXPECT_THAT(Events(At(65535, 32768, 0)),
                ElementsAre(StickEvent{Move::right, 32767, 1}, StickEvent{Move::left, -32768, 2}));
    EXPECT_THAT(Events(At(32768, 65535, 65535)),
                ElementsAre(Goes(Move::down, 1), Goes(Move::right, 2)));
    EXPECT_THAT(Events(At(32768, 32768, 32770)), IsEmpty());
    EXPECT_THAT(Events(At(32768, 32768, 32765)), ElementsAre(Goes(Move::left, 2)));
}

TEST(PadState, AHeldStickIsTheCentreOfItsOwnAxis) {
    EXPECT_THAT(Events(At(65535), At(65535)), IsEmpty());
    EXPECT_THAT(Events(At(32768), At(65535)), ElementsAre(Goes(Move::left, 1)));
}

// Not against its own.
TEST(PadState, VerticalAxisIsTakenAgainstTheRestOfRz) {
    const ControllerState pedal = At(32768, 32768, 40000);
    EXPECT_THAT(Events(pedal, pedal), ElementsAre(Goes(Move::up, 1)));
    EXPECT_THAT(Events(At(32768, 40000, 40000), pedal), IsEmpty());
    EXPECT_THAT(Events(At(32768), pedal), ElementsAre(Goes(Move::up, 1), Goes(Move::left, 2)));
    const ControllerState trigger = At(32768, 32768, 0);
    EXPECT_THAT(Events(trigger, trigger), ElementsAre(Goes(Move::down, 1)));
    EXPECT_THAT(Events(At(32768, 0, 0), trigger), IsEmpty());
    EXPECT_THAT(Events(At(32768, 50000), At(32768, 50000)), ElementsAre(Goes(Move::down, 1)));
    EXPECT_THAT(Events(At(32768), At(32768, 50000)), IsEmpty());
}

TEST(PadState, RestKeepsWhatDoesNotFit) {
    const RestPosition before{1, 2, 3, 4};
    ControllerState state;
    // Centred, but for z, whose centre is elsewhere.
    EXPECT_EQ(RestOf(state, before), (RestPosition{1, 2, 3, -32768}));
    state.z = 32767;
    EXPECT_EQ(RestOf(state, before), before);
    state.z = 65535;
    state.x = 0;
    state.y = 65535;
    state.rz = 100000;
    EXPECT_EQ(RestOf(state, before), (RestPosition{-32768, 32767, 3, -1}));
    state.x = -2147483647 - 1;
    EXPECT_EQ(RestOf(state, before).x, 1);
}

TEST(PadState, OneButtonMoreThanCountedAndNoneBehindTheEighteenth) {
    ControllerState state;
    state.buttons.fill(true);
    EXPECT_THAT(PressedButtons(state, 4), ElementsAre(1, 2, 3, 4, 5));
    EXPECT_THAT(PressedButtons(state, 0), ElementsAre(1));
    for (const int count : {17, 18, 20, 32, 1000}) {
        EXPECT_EQ(PressedButtons(state, count).size(), 18U) << count;
        EXPECT_EQ(PressedButtons(state, count).back(), 18) << count;
    }
    EXPECT_THAT(PressedButtons(state, -1), IsEmpty());
    state.buttons = {};
    EXPECT_THAT(PressedButtons(state, 18), IsEmpty());
    state.buttons[17] = true;
    EXPECT_THAT(PressedButtons(state, 18), ElementsAre(18));
}

}  // namespace
}  // namespace kivu::joystick
