#include <cmath>
#include <utility>

#include "scenarios/drives_collection.h"

namespace kivu::scenarios {
namespace {

class DrivesPanel : public DrivesScenario {
 protected:
    static constexpr const char* panel = "Form1.SettingsSubPicture";
    int Number(const std::string& name) { return Get(name).get<int>(); }
    // Where a drop with this grip at a place of the window leads.
    std::pair<int, int> Expected(int x, int y, int gripX, int gripY) {
        const double atX = (Number("SettingsSubPicture.Left") + Number("Left")) / 15.0;
        const double atY = (Number("SettingsSubPicture.Top") + Number("Top")) / 15.0;
        return {static_cast<int>(std::nearbyint(x - (gripX - (atX - 700)))),
                static_cast<int>(std::nearbyint(y - (gripY - atY)))};
    }
    std::pair<int, int> Place() {
        return {Number("SettingsSubPicture.Left"), Number("SettingsSubPicture.Top")};
    }
};

TEST_F(DrivesPanel, IsThereWithTheSmartSelectionAlone) {
    Start();
    EXPECT_TRUE(Visible("SettingsSubPicture"));
}

TEST_F(DrivesPanel, DropMovesItToTheListsPlaceLessTheGrip) {
    Start();
    ShowFiles();
    const int left = Number("UAE_Short.Left"), top = Number("UAE_Short.Top");
    const auto expected = Expected(left + 2000, top + 1000, 120, 60);
    const int width = Number("SettingsSubPicture.Width");
    Do("drag", panel, list, 2000, 1000, 120, 60);
    EXPECT_EQ(Place(), expected);
    EXPECT_EQ(Number("SettingsSubPicture.Width"), width);
}

TEST_F(DrivesPanel, DropOnTheWindowItselfCountsFromItsCorner) {
    Start();
    const auto expected = Expected(3000, 4000, 10, 20);
    Do("drag", panel, "Form1", 3000, 4000, 10, 20);
    EXPECT_EQ(Place(), expected);
}

TEST_F(DrivesPanel, DropOnAControlThatTakesNoneLeavesIt) {
    Start();
    const auto before = Place();
    Do("drag", panel, "Form1.ExitBtn", 100, 100, 10, 20);
    EXPECT_EQ(Place(), before);
    Do("drag", "Form1.MyCaptionLabel", "Form1", 100, 100, 10, 20);
    EXPECT_EQ(Place(), before);
}

TEST_F(DrivesPanel, PanelDroppedBelowTheWindowComesBackInside) {
    Start();
    Do("drag", panel, "Form1", 3000, Number("Height") - 10, 10, 20);
    EXPECT_EQ(Place().second, Number("Height") - Number("SettingsSubPicture.Height") - 200);
}

TEST_F(DrivesPanel, PlaceIsStoredAtTheExitAndFoundAtTheStart) {
    Start();
    Do("drag", panel, "Form1", 3000, 4000, 10, 20);
    const auto place = Place();
    Do("click", "Form1.ExitBtn");
    EXPECT_EQ(tree.Stored("Config/Amiga/Kivu.ini", "DrvWindowX"), std::to_string(place.first));
    EXPECT_EQ(tree.Stored("Config/Amiga/Kivu.ini", "DrvWindowY"), std::to_string(place.second));
    Start();
    EXPECT_EQ(Place(), place);
}

TEST_F(DrivesPanel, PressWithoutAMoveLeavesIt) {
    Start();
    const auto before = Place();
    Do("mousedown", panel, 1, 0, 10, 10);
    Do("mouseup", panel, 1, 0, 10, 10);
    EXPECT_EQ(Place(), before);
}

TEST_F(DrivesPanel, HandleFoldsAndUnfoldsIt) {
    Start();
    const int width = Number("SettingsSubPicture.Width");
    const int height = Number("SettingsSubPicture.Height");
    Do("click", "Form1.DrivesResizeLabel");
    EXPECT_EQ(Number("SettingsSubPicture.Width"), 480);
    EXPECT_EQ(Number("SettingsSubPicture.Height"), 210);
    EXPECT_EQ(Get("DrivesResizeLabel.Caption"), ">");
    Do("click", "Form1.DrivesResizeLabel");
    EXPECT_EQ(Number("SettingsSubPicture.Width"), width);
    EXPECT_EQ(Number("SettingsSubPicture.Height"), height);
    EXPECT_EQ(Get("DrivesResizeLabel.Caption"), std::string(10, ' '));
}

}  // namespace
}  // namespace kivu::scenarios
