#pragma once

#include <string>
#include <vector>

#include "scenarios/scenario.h"

namespace kivu::scenarios {

// A pad of 18 buttons alone is attached, and in the player's hands.
class PadScenario : public LoadedScenario {
 protected:
    using Buttons = std::vector<int>;

    PadScenario() {
        prepare = [this](driver::Session&) { Do("device", "add", "Pad", 18); };
    }
    void Hold(const Json& state) { Do("device", "set", 0, state); }
    // Buttons from 0, with the sticks in their middle.
    void Press(const Buttons& buttons) {
        Json state = Json::object();
        state["buttons"] = buttons;
        Hold(state);
    }
    void Push(const char* axis, int place) {
        Json state = Json::object();
        state[axis] = place;
        Hold(state);
    }
    void Release() { Press({}); }
    void Poll(int ticks = 1) { Do("tick", "Form1.JoystickTimer", ticks); }
    bool IsSilent() { return Refused("tick", "Form1.JoystickTimer"); }
    // Pressed for one poll.
    void Tap(int button) {
        Press({button});
        Poll();
        Release();
    }
    void TapStick(const char* axis, int place) {
        Push(axis, place);
        Poll();
        Release();
    }
    int Focus() { return Get("JoystickFocus").get<int>(); }
    // The list with so many rows and that one marked, without its click.
    static void Fill(forms::ListBox& list, int count, int row) {
        std::vector<std::string> rows;
        for (int i = 0; i < count; ++i)
            rows.push_back(list.Name() + " " + std::to_string(10000 + i));
        list.Clear();
        list.AddItems(rows);
        list.SetListIndexQuietly(row);
    }
};

}  // namespace kivu::scenarios
