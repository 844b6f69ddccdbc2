#include "hosts/late_controllers.h"

#include "testing/scripted_host.h"

namespace kivu::hosts {
namespace {

class LateControllersTest : public ::testing::Test {
 protected:
    LateControllersTest() { service.devices.push_back({{"Pad", 4}, Right()}); }

    static platform::ControllerState Right() {
        platform::ControllerState state;
        state.x = 65535;
        return state;
    }
    std::size_t Opened() {
        return controllers.Open().value_or(std::vector<platform::Controller>()).size();
    }

    kivu::testing::ScriptedControllers service;
    LateControllers controllers{service};
};

TEST_F(LateControllersTest, BeforeTheWindowStandsThereAreAMouseAndAKeyboard) {
    const auto list = controllers.Open();
    ASSERT_TRUE(list.has_value());
    ASSERT_EQ(list->size(), 2U);
    EXPECT_EQ(list->at(0).name, "Mouse");
    EXPECT_EQ(list->at(1).name, "Keyboard");
    platform::ControllerState state = Right();
    EXPECT_TRUE(controllers.Read(1, state));
    EXPECT_EQ(state, platform::ControllerState());
    EXPECT_FALSE(controllers.Read(2, state));
    EXPECT_FALSE(controllers.Changed());
    controllers.Close();
    EXPECT_EQ(service.opened + service.closed, 0);
}

TEST_F(LateControllersTest, ThenTheyHaveChangedUntilTheyAreOpenedAnew) {
    EXPECT_EQ(Opened(), 2U);
    controllers.Wake();
    EXPECT_TRUE(controllers.Changed());
    EXPECT_TRUE(controllers.Changed());
    controllers.Close();
    EXPECT_FALSE(controllers.Changed());
    EXPECT_EQ(service.opened + service.closed, 0);
    EXPECT_EQ(Opened(), 3U);
    EXPECT_FALSE(controllers.Changed());
    platform::ControllerState state;
    EXPECT_TRUE(controllers.Read(2, state));
    EXPECT_EQ(state, Right());
    controllers.Close();
    EXPECT_EQ(service.opened, 1);
    EXPECT_EQ(service.closed, 1);
}

TEST_F(LateControllersTest, WhoOpensThemOnlyThenHasTheServiceAtOnce) {
    controllers.Wake();
    EXPECT_FALSE(controllers.Changed());
    EXPECT_EQ(Opened(), 3U);
    service.changed = true;
    EXPECT_TRUE(controllers.Changed());
    EXPECT_FALSE(controllers.Changed());
}

TEST_F(LateControllersTest, AServiceThatFailsIsToldAsItIs) {
    service.noService = true;
    EXPECT_EQ(Opened(), 2U);
    controllers.Wake();
    EXPECT_FALSE(controllers.Open().has_value());
}

}  // namespace
}  // namespace kivu::hosts
