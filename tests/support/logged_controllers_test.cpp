#include "support/logged_controllers.h"

#include <gmock/gmock.h>

#include "testing/scripted_host.h"

namespace kivu::support {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct LoggedControllersTest : ::testing::Test {
    std::vector<std::string> Lines() { return std::exchange(log.lines, {}); }

    kivu::testing::ScriptedControllers host;
    kivu::testing::ScriptedLog log;
    LoggedControllers controllers{host, log};
};

TEST_F(LoggedControllersTest, WhatIsFoundIsToldWhenItIsAnother) {
    host.devices.push_back({{"Pad", 18}, {}});
    host.devices.push_back({{"", 0}, {}});
    EXPECT_EQ(controllers.Open()->size(), 4U);
    EXPECT_THAT(Lines(), ElementsAre("controllers: Mouse (0 buttons), Keyboard (0 buttons), "
                                     "Pad (18 buttons), one that cannot be opened (0 buttons)"));
    controllers.Close();
    EXPECT_EQ(host.closed, 1);
    EXPECT_EQ(controllers.Open()->size(), 4U);
    EXPECT_THAT(Lines(), IsEmpty());
    host.devices.clear();
    EXPECT_TRUE(controllers.Open()->empty());
    EXPECT_THAT(Lines(), ElementsAre("controllers: none"));
    host.noService = true;
    EXPECT_FALSE(controllers.Open());
    EXPECT_FALSE(controllers.Open());
    EXPECT_THAT(Lines(), ElementsAre("no service for controllers"));
}

TEST_F(LoggedControllersTest, ALostOneIsToldOnce) {
    host.devices = {{{"Pad", 18}, {}}, {{"", 0}, {}}};
    EXPECT_TRUE(controllers.Open());
    Lines();
    platform::ControllerState state;
    EXPECT_TRUE(controllers.Read(0, state));
    EXPECT_TRUE(controllers.Read(1, state));
    host.devices.clear();
    for (int time = 0; time < 2; ++time) {
        EXPECT_FALSE(controllers.Read(0, state));
        EXPECT_FALSE(controllers.Read(1, state));
        EXPECT_FALSE(controllers.Read(7, state));
    }
    EXPECT_THAT(Lines(), ElementsAre("controller lost: Pad"));
}

TEST_F(LoggedControllersTest, HandsOnWhetherOneCameOrWent) {
    EXPECT_FALSE(controllers.Changed());
    host.changed = true;
    EXPECT_TRUE(controllers.Changed());
    EXPECT_FALSE(controllers.Changed());
}

}  // namespace
}  // namespace kivu::support
