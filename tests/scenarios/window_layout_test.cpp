// The window's surface and sizes, over whole runs of the program.

#include "scenarios/drives_collection.h"

namespace kivu::scenarios {
namespace {

class WindowLayout : public DrivesScenario {
 protected:
    int Number(const std::string& name) { return Get(name).get<int>(); }
};

TEST_F(WindowLayout, PanelOfAMaximisedWindowIsWhereItWasAtTheNextStart) {
    Start();
    Do("state", "Form1", 2);
    Do("resize", "Form1", 28800, 16200);
    Do("drag", "Form1.SettingsSubPicture", "Form1", 15000, 700, 10, 20);
    const int left = Number("SettingsSubPicture.Left"), top = Number("SettingsSubPicture.Top");
    ASSERT_GT(left, 14400);
    Do("click", "Form1.ExitBtn");
    Start();
    // The window manager makes it large only when it is shown.
    Do("resize", "Form1", 28800, 16200);
    EXPECT_EQ(Number("SettingsSubPicture.Left"), left);
    EXPECT_EQ(Number("SettingsSubPicture.Top"), top);
}

TEST_F(WindowLayout, TinyWindowLeavesNothingBehind) {
    Start();
    std::vector<int> before;
    const auto measure = [&] {
        std::vector<int> all;
        for (const char* name : {"SettingsSubPicture", "SettingsFrame", "VorschauBild", "ExitBtn",
                                 "FavoritenListe", "FontSizeCombo", "AddToFavorit"})
            for (const char* what : {".Left", ".Top", ".Width", ".Height"})
                all.push_back(Number(std::string(name) + what));
        return all;
    };
    before = measure();
    for (const auto& [width, height] : {std::pair{1500, 1500}, {12000, 1900}, {3000, 12000}}) {
        Do("resize", "Form1", width, height);
        Do("resize", "Form1", 14400, 10200);
        EXPECT_EQ(measure(), before) << width << "x" << height;
    }
}

TEST_F(WindowLayout, DoubleClickOnTheSurfaceMinimises) {
    for (const char* surface :
         {"Form1", "Form1.SettingsFrame", "Form1.TopRightPic", "Form1.TimeString"}) {
        Start();
        Do("dblclick", surface);
        EXPECT_EQ(Get("WindowState"), 1) << surface;
    }
}

TEST_F(WindowLayout, TwoListsHaveTheirColours) {
    Start();
    EXPECT_EQ(Get("FavoritenListe.BackColor"), "#E0FFF1");
    EXPECT_EQ(Get("FavoritenListe.ForeColor"), "#000000");
    EXPECT_EQ(Get("EmulatorLongListbox.BackColor"), "#F6F7D2");
    EXPECT_EQ(Get("EmulatorLongListbox.ForeColor"), "#000000");
}

}  // namespace
}  // namespace kivu::scenarios
