#pragma once

#include <array>
#include <chrono>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

#include "hosts/linux/controllers_sdl.h"
#include "testing/scripted_host.h"

namespace kivu::testing {

// The machine may have controllers of its own: ours are found by their names.
class SdlControllersTest : public ::testing::Test {
 protected:
    SdlControllersTest() { clock.Set({12, 0, 0}); }

    void Open() {
        auto opened = controllers.Open();
        ASSERT_TRUE(opened.has_value());
        list = std::move(*opened);
    }
    // The number of the list's devices, if there is none of that name.
    std::size_t Place(const std::string& name) const {
        std::size_t place = 0;
        while (place < list.size() && list[place].name != name)
            ++place;
        return place;
    }
    bool IsThere(const std::string& name) const { return Place(name) < list.size(); }
    // After the pause between two polls.
    platform::ControllerState Read(const std::string& name = "Pad") {
        clock.MoveOn(std::chrono::milliseconds(140));
        platform::ControllerState state;
        EXPECT_TRUE(controllers.Read(Place(name), state));
        pressed = std::exchange(state.pressed, {});
        return state;
    }

    ScriptedClock clock;
    ScriptedLog log;
    hosts::SdlControllers controllers{clock, log};
    std::vector<platform::Controller> list;
    std::array<bool, 32> pressed{};  // at the last read
};

}  // namespace kivu::testing
