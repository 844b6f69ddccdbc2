#include <gmock/gmock.h>

#include "hosts/windows/controllers_dinput.h"
#include "testing/scripted_host.h"

namespace kivu::hosts {
namespace {

using platform::ControllerState;
using std::chrono::milliseconds;
using ::testing::Contains;
using ::testing::Field;
using ::testing::IsEmpty;

// The machine may have controllers: only a mouse and a keyboard are there everywhere.
class ControllersDirectInput : public ::testing::Test {
 protected:
    std::vector<platform::Controller> Opened() {
        return controllers.Open().value_or(std::vector<platform::Controller>());
    }

    kivu::testing::ScriptedClock clock;
    kivu::testing::ScriptedLog log;
    DirectInputControllers controllers{clock, log};
};

TEST_F(ControllersDirectInput, ListsTheMouseAndTheKeyboard) {
    const auto list = Opened();
    EXPECT_THAT(list, Contains(Field(&platform::Controller::name, "Mouse")));
    EXPECT_THAT(list, Contains(Field(&platform::Controller::name, "Keyboard")));
    for (const platform::Controller& device : list) {
        if (device.name == "Mouse" || device.name == "Keyboard") {
            EXPECT_EQ(device.buttons, 0);
        }
    }
    EXPECT_THAT(log.lines, IsEmpty());
}

TEST_F(ControllersDirectInput, TheyReadAtRest) {
    const auto list = Opened();
    for (std::size_t i = 0; i < list.size(); ++i) {
        if (list[i].name != "Mouse" && list[i].name != "Keyboard") continue;
        ControllerState state;
        state.x = 5;
        EXPECT_TRUE(controllers.Read(i, state));
        EXPECT_EQ(state, ControllerState());
    }
}

TEST_F(ControllersDirectInput, OnesBehindTheListAreGone) {
    ControllerState state;
    EXPECT_FALSE(controllers.Read(0, state));
    const auto list = Opened();
    state.x = 5;
    EXPECT_FALSE(controllers.Read(list.size(), state));
    EXPECT_EQ(state, ControllerState());
    controllers.Close();
    EXPECT_FALSE(controllers.Read(0, state));
    EXPECT_EQ(Opened().size(), list.size());
}

HWND NoticeWindow() {
    return ::FindWindowExW(HWND_MESSAGE, nullptr, DeviceNotices::windowClass, nullptr);
}

TEST(DeviceNoticesTest, TakesWhatComesAndGoes) {
    DeviceNotices notices;
    ASSERT_NE(notices.Window(), nullptr);
    EXPECT_FALSE(notices.Take());
    for (const WPARAM event : {DBT_DEVICEARRIVAL, DBT_DEVICEREMOVECOMPLETE}) {
        ::SendMessageW(notices.Window(), WM_DEVICECHANGE, event, 0);
        EXPECT_TRUE(notices.Take());
        EXPECT_FALSE(notices.Take());
    }
    ::SendMessageW(notices.Window(), WM_DEVICECHANGE, DBT_DEVICEQUERYREMOVE, 0);
    EXPECT_FALSE(notices.Take());
}

TEST(DeviceNoticesTest, ItsWindowGoesWithIt) {
    { const DeviceNotices notices; }
    EXPECT_EQ(NoticeWindow(), nullptr);
}

// A keyboard that is plugged in is noticed too.
TEST_F(ControllersDirectInput, ANoticeAloneIsNoNews) {
    EXPECT_FALSE(controllers.Changed());
    Opened();
    EXPECT_FALSE(controllers.Changed());
    ASSERT_NE(NoticeWindow(), nullptr);
    ::SendMessageW(NoticeWindow(), WM_DEVICECHANGE, DBT_DEVICEARRIVAL, 0);
    for (int look = 0; look < 20; ++look) {
        EXPECT_FALSE(controllers.Changed());
        clock.MoveOn(milliseconds(140));
    }
}

}  // namespace
}  // namespace kivu::hosts
