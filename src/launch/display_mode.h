#pragma once

#include <string>

#include "platform/display.h"
#include "platform/log.h"

namespace kivu::launch {

// Some emulators leave the screen in their own mode when they are killed. So the launcher remembers
// the screen's mode, sets a fixed one, and puts the remembered one back with a kill.
class ChangeScreenRes {
 public:
    ChangeScreenRes(platform::Display& display, platform::Log& log) : display(display), log(log) {}

    // Remembers the present mode and sets 800x600 with 16 bits at 60 hertz. Where no mode can be
    // read nothing happens, since none could be put back.
    void SaveAndSetDisplayMode();
    // Sends the remembered mode; nothing where none has been remembered.
    void RestoreDisplayMode();
    // A 0 is a value that is not given. Size alone, bits alone and frequency alone are completed
    // by what was asked for last; any other mix sends the values of the change before once more.
    void ChangeDisplayMode(int Width, int Height, int Colors, int Frequency);

    const platform::DisplayMode& SavedMode() const { return savedMode; }
    // What the changes so far have asked for.
    const platform::DisplayMode& LastMode() const { return lastMode; }
    // What was last printed on the main window's surface: "800x600x16x60".
    const std::string& Printed() const { return printed; }

 private:
    void Print();

    platform::Display& display;
    platform::Log& log;
    platform::DisplayMode record;  // as the system's call takes it; keeps its values between calls
    platform::DisplayMode savedMode, lastMode;
    std::string printed;
};

}  // namespace kivu::launch
