#pragma once

#include "scenarios/scenario.h"

namespace kivu::scenarios {

class Faults : public LoadedScenario {
 protected:
    void Scan() { Do("click", "Form1.LoadBtn"); }
    // The window takes the next thing that the user does.
    void ExpectUsable() {
        EXPECT_TRUE(Visible("EmuListbox"));
        Do("focus", "Form1.EmuListbox");
        Do("dblclick", "Form1.EmulatorLongListbox", 1);
        EXPECT_EQ(Get("CurrentEmuIndex"), 1);
        EXPECT_FALSE(Visible("LoadingBtn"));
        EXPECT_EQ(Get("Busy"), false);
    }
};

}  // namespace kivu::scenarios
