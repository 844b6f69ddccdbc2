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

TEST_F(DrivesPanel, IsThereWithTheSmartSelectionAndWithHands) {
    Start();
    EXPECT_TRUE(Visible("SettingsSubPicture"));
    WriteProfile({{"SmartRomSelection", "0"}});
    Start();
    EXPECT_TRUE(Visible("SettingsSubPicture"));
    // The settings alone hide it; the end of the busy state brings it back.
    Call("LoadSettings");
    EXPECT_FALSE(Visible("SettingsSubPicture"));
}

TEST_F(DrivesPanel, EachTargetAddsItsOwnPlaceOrThatOfItsFrame) {
    Start();
    for (const char* shown : {"VorschauBild", "GamePicture", "GamePictureVis", "LoadingBtn",
                              "Current_ProgramNameFull", "FavoritenListe", "UAE_Short"})
        Do("set", std::string("Form1.") + shown + ".Visible", true);
    const std::pair<const char*, std::vector<const char*>> targets[] = {
        {"GamePicture", {"VorschauBild"}},      {"GamePictureVis", {"VorschauBild"}},
        {"VorschauBild", {"VorschauBild"}},     {"Current_ProgramNameFull", {"SettingsFrame"}},
        {"SettingsFrame", {"SettingsFrame"}},   {"TimeString", {"TopRightPic", "TimeString"}},
        {"TopRightPic", {"TopRightPic"}},       {"FavoritenListe", {"FavoritenListe"}},
        {"MyCaptionLabel", {"MyCaptionLabel"}}, {"LoadingBtn", {"LoadingBtn"}},
        {"UAE_Short", {"UAE_Short"}},           {"WIthoutDoubles", {"WIthoutDoubles"}}};
    for (const auto& [target, origins] : targets) {
        Do("set", std::string(panel) + ".Left", 3000);
        Do("set", std::string(panel) + ".Top", 2000);
        int x = 150, y = 90;
        for (const char* origin : origins) {
            x += Number(std::string(origin) + ".Left");
            y += Number(std::string(origin) + ".Top");
        }
        const auto expected = Expected(x, y, 30, 40);
        Do("drag", panel, std::string("Form1.") + target, 150, 90, 30, 40);
        EXPECT_EQ(Place(), expected) << target;
    }
}

TEST_F(DrivesPanel, PanelBeyondTheLeftOrTheTopComesBackInside) {
    Start();
    const int width = Number("SettingsSubPicture.Width");
    const int height = Number("SettingsSubPicture.Height");
    Do("set", std::string(panel) + ".Left", -width);
    Do("set", std::string(panel) + ".Top", -height);
    Do("resize", "Form1", 14000, 10000);
    EXPECT_EQ(Place(), std::make_pair(200, 200));
    // What can still be grabbed stays where it is.
    Do("set", std::string(panel) + ".Left", 300 - width);
    Do("resize", "Form1", 14100, 10000);
    EXPECT_EQ(Place(), std::make_pair(300 - width, 200));
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
