#include "scenarios/scenario.h"

namespace kivu::scenarios {
namespace {

using WindowKeys = LoadedScenario;

TEST_F(WindowKeys, EscapeAsksAndOnlyOkEnds) {
    Start();
    EXPECT_FALSE(Do("key", "Form1", "Escape").contains("ended"));
    const Json box = Do("boxes")["value"][0];
    EXPECT_EQ(box["buttons"], "OKCancel");
    EXPECT_EQ(box["icon"], "Question");
    Do("answer", "OK");
    EXPECT_EQ(Do("key", "Form1", "Escape")["ended"], true);
    EXPECT_EQ(tree.Stored("Config/Kivu.ini", "WindowState"), "0");
}

TEST_F(WindowKeys, EscapeInTheOpenEmulatorListAsksNothing) {
    Start();
    Do("focus", "Form1.EmuListbox");
    Do("key", "Form1", "Escape");
    EXPECT_EQ(Do("boxes")["value"], Json::array());
    EXPECT_FALSE(Visible("EmulatorLongListbox"));
}

TEST_F(WindowKeys, AltF4BeepsAndNeverEnds) {
    Start();
    Do("key", "Form1", "Alt+F4");
    EXPECT_EQ(Do("beeps")["value"], 1);
    EXPECT_EQ(Do("boxes")["value"], Json::array());
    EXPECT_FALSE(Do("boxes").contains("ended"));
}

TEST_F(WindowKeys, CtrlFGoesToTheSearchBox) {
    Start();
    Do("key", "Form1", "Ctrl+F");
    EXPECT_EQ(Get("Focus"), "Form1.SearchDblsTxt");
    EXPECT_FALSE(Get("SearchDblsTxt.Text").get<std::string>().ends_with("f"));
}

TEST_F(WindowKeys, AltArrowsResizeTheNormalWindowAndTurnNoTab) {
    Start();
    const std::string mode = Text("ListMode");
    const int width = Get("Width"), height = Get("Height");
    Do("key", "Form1", "Alt+Right");
    EXPECT_EQ(Get("Width"), width + 200);
    Do("key", "Form1", "Alt+Left");
    Do("key", "Form1", "Alt+Left");
    EXPECT_EQ(Get("Width"), width - 200);
    Do("key", "Form1", "Alt+Down");
    EXPECT_EQ(Get("Height"), height + 200);
    Do("key", "Form1", "Alt+Up");
    Do("key", "Form1", "Alt+Up");
    EXPECT_EQ(Get("Height"), height - 200);
    EXPECT_EQ(Text("ListMode"), mode);
}

TEST_F(WindowKeys, AltArrowsDoNothingInTheMaximisedWindow) {
    Start();
    Do("state", "Form1", 2);
    const int width = Get("Width");
    Do("key", "Form1", "Alt+Right");
    EXPECT_EQ(Get("Width"), width);
    EXPECT_EQ(Get("CornerRadius"), 0);
    Do("state", "Form1", 0);
    EXPECT_EQ(Get("CornerRadius"), 30);
}

TEST_F(WindowKeys, WindowShrinksToNothingWithoutHarm) {
    Start();
    for (int step = 0; step < 100; ++step) {
        Do("key", "Form1", "Alt+Left");
        Do("key", "Form1", "Alt+Up");
    }
    EXPECT_GE(Get("Width"), 0);
    EXPECT_LE(Get("DriveBoxHeight"), Get("ListHeight"));
    Do("resize", "Form1", 0, 0);
    Do("resize", "Form1", 14400, 10200);
    EXPECT_EQ(Get("FavoritenListe.Width"), Get("ListWidth"));
}

TEST_F(WindowKeys, LayoutFollowsItsFormula) {
    Start();
    for (const int width : {9000, 15360, 28800, 57600}) {
        Do("resize", "Form1", width, 12000);
        const int listWidth = static_cast<int>(std::floor((width - 400) / 6.0 * 4)) - 300;
        EXPECT_EQ(Get("ListWidth"), listWidth);
        EXPECT_EQ(Get("Col2Left"), Get("ListLeft").get<int>() + listWidth + 100);
        EXPECT_EQ(Get("Col2Width"), std::nearbyint((width - 300) / 6.0 - 100));
        EXPECT_EQ(Get("Col3Width"), Get("Col2Width"));
        EXPECT_EQ(Get("ListHeight"), 12000 - Get("FavoritenListe.Top").get<int>() - 300);
        EXPECT_EQ(Get("TopRightPic.Left"), width - Get("TopRightPic.Width").get<int>() - 230);
        EXPECT_EQ(Get("EmuListbox.Width"), 220 * Get("EmuListbox.FontSize").get<int>());
        EXPECT_LE(Get("DriveBoxHeight"), Get("ListHeight"));
    }
}

TEST_F(WindowKeys, ListsStartBelowTheDropDownWhateverItsFont) {
    Start();
    for (const int row : {1, 40, 72}) {
        Do("set", "Form1.FontSizeCombo.ListIndex", row);
        EXPECT_GE(Get("FavoritenListe.Top").get<int>(),
                  Get("EmuListbox.Top").get<int>() + Get("EmuListbox.Height").get<int>());
    }
}

TEST_F(WindowKeys, TitleIsChangedByADoubleClickAndAnEmptyAnswerKeepsIt) {
    Start();
    Do("dblclick", "Form1.MyCaptionLabel");
    EXPECT_EQ(Get("MyCaptionLabel.Caption"), "Kivu 1.4b");
    Json box = Do("boxes")["value"][0];
    EXPECT_EQ(box["text"], "New Title");
    EXPECT_EQ(box["title"], "Title");
    ASSERT_FALSE(tree.Exists("Config/Alpha/Skin"));
    Do("input", "Amiga");
    Do("dblclick", "Form1.MyCaptionLabel");
    EXPECT_EQ(Get("MyCaptionLabel.Caption"), "Amiga");
    EXPECT_EQ(Get("Caption"), "Amiga");
    EXPECT_EQ(tree.Stored("Config/Alpha/Skin/Skin.ini", "TitleString"), "Amiga");
}

TEST_F(WindowKeys, WindowSignTogglesMaximisedAndDoubleClickMinimises) {
    Start();
    Do("click", "Form1.NormalMaxCapt");
    EXPECT_EQ(Get("WindowState"), 2);
    Do("click", "Form1.NormalMaxCapt");
    EXPECT_EQ(Get("WindowState"), 0);
    Do("dblclick", "Form1");
    EXPECT_EQ(Get("WindowState"), 1);
}

// What only the mouse came to: the Tab key passes it over.
TEST_F(WindowKeys, F11MakesTheWindowLargeAndBack) {
    Start();
    Do("key", "Form1", "F11");
    EXPECT_EQ(Get("WindowState"), 2);
    Do("key", "Form1", "F11", "repeat");
    EXPECT_EQ(Get("WindowState"), 2);
    Do("key", "Form1", "F11");
    EXPECT_EQ(Get("WindowState"), 0);
    Do("key", "Form1", "Alt+F11");
    Do("key", "Form1", "Ctrl+F11");
    EXPECT_EQ(Get("WindowState"), 0);
}

TEST_F(WindowKeys, CtrlTTurnsThePin) {
    Start();
    Call("AlwaysOnTop1.LoadSettings");
    ASSERT_EQ(Get("Topmost"), true);
    Do("key", "Form1", "Ctrl+T");
    EXPECT_EQ(Get("Topmost"), false);
    EXPECT_EQ((Host().userStore.values[{"AlwaysOnTop", "OnTop"}]), "False");
    Do("key", "Form1", "Ctrl+T", "repeat");
    EXPECT_EQ(Get("Topmost"), false);
    // The mouse may rest on it.
    Do("mousemove", "Form1.AOT_Disabled", 0, 0, 5, 5);
    Do("key", "Form1", "Ctrl+T");
    EXPECT_EQ(Get("Topmost"), true);
    EXPECT_TRUE(Visible("AOT_Enabled"));
}

TEST_F(WindowKeys, CtrlDFoldsTheDrivesWhereTheyShow) {
    Start();
    const Json width = Get("SettingsSubPicture.Width");
    Do("key", "Form1", "Ctrl+D");
    const Json folded = Get("SettingsSubPicture.Width");
    EXPECT_LT(folded, width);
    Do("key", "Form1", "Ctrl+D", "repeat");
    EXPECT_EQ(Get("SettingsSubPicture.Width"), folded);
    Call("HideAll", false);
    Do("key", "Form1", "Ctrl+D");
    EXPECT_EQ(Get("SettingsSubPicture.Width"), folded);
    Call("HideAll", true);
    Do("key", "Form1", "Ctrl+D");
    EXPECT_EQ(Get("SettingsSubPicture.Width"), width);
}

TEST_F(WindowKeys, KeysOfTheSignsWriteNothingIntoTheSearch) {
    Start();
    Do("type", "Form1.SearchDblsTxt", "an");
    for (const char* key : {"F11", "Ctrl+T", "Ctrl+D"})
        Do("key", "Form1.SearchDblsTxt", key);
    EXPECT_EQ(Get("SearchDblsTxt.Text"), "an");
    EXPECT_EQ(Get("Focus"), "Form1.SearchDblsTxt");
}

TEST_F(WindowKeys, MinimisedWindowKeepsItsLayout) {
    Start();
    const Json width = Get("ListWidth");
    Do("state", "Form1", 1);
    Do("resize", "Form1", 100, 100);
    EXPECT_EQ(Get("ListWidth"), width);
}

TEST_F(WindowKeys, PinIsOneForTheUserAndOnAtFirst) {
    Start();
    Call("AlwaysOnTop1.LoadSettings");
    EXPECT_EQ(Call("GetIsOnTop"), true);
    EXPECT_EQ(Get("Topmost"), true);
    Do("click", "Form1.AOT_Enabled");
    EXPECT_EQ(Get("Topmost"), false);
    EXPECT_TRUE(Visible("AOT_Disabled"));
    EXPECT_EQ((Host().userStore.values[{"AlwaysOnTop", "OnTop"}]), "False");
    Call("SetToTop", false);
    EXPECT_EQ(Get("Topmost"), false);
    Do("click", "Form1.AOT_Disabled");
    EXPECT_EQ(Get("Topmost"), true);
    Call("SetToNormal");
    EXPECT_EQ(Get("Topmost"), false);
    EXPECT_EQ(Call("GetIsOnTop"), true);
}

TEST_F(WindowKeys, DrivesPanelIsBroughtBackIntoTheWindow) {
    Start();
    Do("set", "Form1.SettingsSubPicture.Left", 50000);
    Do("set", "Form1.SettingsSubPicture.Top", 50000);
    Do("resize", "Form1", 14000, 10000);
    const int width = Get("SettingsSubPicture.Width"), height = Get("SettingsSubPicture.Height");
    EXPECT_EQ(Get("SettingsSubPicture.Left"), 14000 - width - 200);
    EXPECT_EQ(Get("SettingsSubPicture.Top"), 10000 - height - 200);
}

TEST_F(WindowKeys, LongNamesAreBrokenIntoLines) {
    Start();
    const std::string name = "A very long name of a game that does not fit into one line at all";
    Do("set", "Form1.Current_ProgramNameFull.Caption", name);
    const std::string shown = Get("Current_ProgramNameFull.Caption");
    EXPECT_NE(shown.find('\r'), std::string::npos);
    EXPECT_EQ(shown.size(), name.size());
}

}  // namespace
}  // namespace kivu::scenarios
