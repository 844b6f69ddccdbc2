#include "support/logged_controllers.h"

#include <gmock/gmock.h>

#include "testing/scripted_host.h"

namespace kivu::support {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class LoggedControllersTest : public ::testing::Test {
 protected:
    std::vector<std::string> Lines() { return std::exchange(log.lines, {}); }
    bool Read(std::size_t device) {
        platform::ControllerState state;
        return controllers.Read(device, state);
    }

    kivu::testing::ScriptedControllers host;
    kivu::testing::ScriptedLog log;
    LoggedControllers controllers{host, log};
};

TEST_F(LoggedControllersTest, AMouseAndAKeyboardAreNotWorthALine) {
    ASSERT_TRUE(controllers.Open().has_value());
    controllers.Close();
    EXPECT_THAT(Lines(), IsEmpty());
    EXPECT_EQ(host.opened, 1);
    EXPECT_EQ(host.closed, 1);
}

TEST_F(LoggedControllersTest, WhatIsOpenedIsToldOnceUntilItChanges) {
    host.devices.push_back({{"Pad\n", 18}, {}});
    host.devices.push_back({{"", 0}, {}});
    EXPECT_EQ(controllers.Open()->size(), 4U);
    EXPECT_THAT(Lines(), ElementsAre("game controllers: Pad<0A> (18 buttons), "
                                     "one that cannot be opened"));
    controllers.Open();
    EXPECT_THAT(Lines(), IsEmpty());
    host.devices.resize(2);
    controllers.Open();
    EXPECT_THAT(Lines(), ElementsAre("game controllers: none"));
}

TEST_F(LoggedControllersTest, AServiceThatFailsIsTold) {
    host.noService = true;
    EXPECT_FALSE(controllers.Open().has_value());
    EXPECT_FALSE(controllers.Open().has_value());
    EXPECT_THAT(Lines(), ElementsAre("game controllers: no service for them"));
    EXPECT_FALSE(Read(7));
    EXPECT_THAT(Lines(), IsEmpty());
}

TEST_F(LoggedControllersTest, OneThatIsLostIsToldOnceUntilItIsOpenedAnew) {
    host.devices.push_back({{"Pad", 4}, {}});
    controllers.Open();
    EXPECT_TRUE(Read(2));
    Lines();
    const auto pad = host.devices.back();
    host.devices.pop_back();
    EXPECT_FALSE(Read(2));
    EXPECT_FALSE(Read(2));
    EXPECT_THAT(Lines(), ElementsAre("game controller lost: Pad"));
    host.devices.push_back(pad);
    controllers.Open();
    host.devices.pop_back();
    EXPECT_FALSE(Read(2));
    EXPECT_THAT(Lines(), ElementsAre("game controller lost: Pad"));
}

TEST_F(LoggedControllersTest, NewsArePassedOn) {
    EXPECT_FALSE(controllers.Changed());
    host.changed = true;
    EXPECT_TRUE(controllers.Changed());
}

}  // namespace
}  // namespace kivu::support
