#pragma once

#include <functional>
#include <string>
#include <vector>

#include "joystick/button_setup_form.h"
#include "scenarios/pad.h"

namespace kivu::scenarios {

// The window that asks for the buttons.
class PadSetup : public PadScenario {
 protected:
    static constexpr const char* profile = "Config/Kivu.ini";

    // Opens it from the icon, and the user does that in it.
    void Open(std::function<void()> user) {
        int opened = 0;
        session->Screen().onModal = [&](forms::Form& form, const std::function<bool()>& isOpen) {
            EXPECT_EQ(form.Name(), "SetJoystickButtons");
            open = isOpen;
            ++opened;
            user();
        };
        Do("dblclick", "Form1.JoystickIcon");
        session->Screen().onModal = nullptr;
        EXPECT_EQ(opened, 1);
        EXPECT_EQ(Get("JoystickButtonSetupModus"), false);
        EXPECT_TRUE(Refused("get", "SetJoystickButtons.Caption"));
        EXPECT_TRUE(Refused("tick", "SetJoystickButtons.PollingTimer"));
    }
    Json Of(const std::string& name) {
        return Do("get", "SetJoystickButtons." + name).value("value", Json());
    }
    void P(int ticks = 1) { Do("tick", "SetJoystickButtons.PollingTimer", ticks); }
    void S() { Do("tick", "SetJoystickButtons.ShowTimer"); }
    void Key(const char* key) { Do("key", "SetJoystickButtons", key); }
    void Skip(int times) {
        for (int i = 0; i < times && open(); ++i)
            Key("Space");
    }
    std::string Info() {
        S();
        return Of("InfoLabel.Caption").get<std::string>();
    }
    std::vector<std::string> Stored() {
        std::vector<std::string> values;
        for (int action = 1; action <= 12; ++action)
            values.push_back(tree.Stored(profile, "Button" + std::to_string(action)));
        return values;
    }

    std::function<bool()> open;
};

}  // namespace kivu::scenarios
