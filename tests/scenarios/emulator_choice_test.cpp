#include "scenarios/scenario.h"

namespace kivu::scenarios {
namespace {

class EmulatorChoice : public LoadedScenario {
 protected:
    EmulatorChoice() { tree.MakeDirectory("Config/Empty"); }
    void Open() { Do("focus", "Form1.EmuListbox"); }
};

TEST_F(EmulatorChoice, FocusOnTheDropDownOpensTheLongList) {
    Start();
    Open();
    EXPECT_TRUE(Visible("EmulatorLongListbox"));
    EXPECT_FALSE(Visible("WIthoutDoubles"));
    EXPECT_EQ(Get("ListMode"), "5");
    EXPECT_EQ(Get("EmuListbox.BackColor"), "#000000");
    EXPECT_EQ(Get("EmuListbox.ForeColor"), "#FFFFFF");
    EXPECT_EQ(Get("EmulatorLongListbox.BackColor"), "#F6F7D2");
    EXPECT_EQ(Get("EmuListbox.Width"), Get("EmulatorLongListbox.Width"));
    EXPECT_TRUE(Visible("Label1"));
    EXPECT_FALSE(Visible("Label2"));
}

TEST_F(EmulatorChoice, OpenChoiceShowsTheSearchBoxAndTheFirstTabAtTheRight) {
    Start();
    const auto atTheRight = [this] {
        return Form().Label1.Left() == Form().Width() - Form().Label1.Width() - 400;
    };
    EXPECT_FALSE(atTheRight());
    Open();
    for (const char* mode : {"5", "10"}) {
        if (std::string(mode) == "10") Do("focus", "Form1.EmulatorLongListbox");
        EXPECT_EQ(Get("ListMode"), mode);
        EXPECT_TRUE(Visible("SearchDblsTxt")) << mode;
        EXPECT_TRUE(Visible("Label1")) << mode;
        EXPECT_TRUE(atTheRight()) << mode;
        Do("resize", "Form1", 15000, 9000);
        EXPECT_TRUE(Visible("SearchDblsTxt")) << mode;
        EXPECT_TRUE(Visible("Label1")) << mode;
        EXPECT_TRUE(atTheRight()) << mode;
    }
    Do("key", "Form1", "Escape");
    EXPECT_TRUE(Visible("Label1"));
    EXPECT_FALSE(atTheRight());
}

TEST_F(EmulatorChoice, DoubleClickSwitchesTheEmulatorAndRemembersIt) {
    Start();
    Open();
    Do("dblclick", "Form1.EmulatorLongListbox", 1);
    EXPECT_EQ(Get("EmuListbox.Text"), "Beta");
    EXPECT_EQ(Get("CurrentEmuIndex"), 1);
    EXPECT_EQ(Get("UAE_Short.List"), Json({"Cat (1992)(Maker)"}));
    EXPECT_EQ(tree.Stored("Config/Kivu.ini", "LastEmulator"), "Beta");
    EXPECT_FALSE(Visible("EmulatorLongListbox"));
    EXPECT_TRUE(Visible("WIthoutDoubles"));
    EXPECT_EQ(Get("ListMode"), "2");
    EXPECT_EQ(Get("Focus"), "Form1.WIthoutDoubles");
    EXPECT_EQ(Get("WIthoutDoubles.ListIndex"), 0);
    EXPECT_EQ(Get("UAE_FULL.ListIndex"), 0);
}

TEST_F(EmulatorChoice, EnterInTheLongListSwitchesTheEmulator) {
    Start();
    Open();
    Do("focus", "Form1.EmulatorLongListbox");
    EXPECT_EQ(Get("ListMode"), "10");
    // The row goes over to the drop-down, whose click has the last word.
    Do("select", "Form1.EmulatorLongListbox", 1);
    EXPECT_EQ(Get("ListMode"), "5");
    Do("key", "Form1", "Enter");
    EXPECT_EQ(Get("CurrentEmuIndex"), 1);
    EXPECT_EQ(Get("UAE_Short.ListCount"), 1);
}

TEST_F(EmulatorChoice, RowsOfBothControlsGoTogether) {
    Start();
    Open();
    Do("select", "Form1.EmulatorLongListbox", 1);
    EXPECT_EQ(Get("EmuListbox.ListIndex"), 1);
    Do("set", "Form1.EmuListbox.ListIndex", 0);
    EXPECT_EQ(Get("EmulatorLongListbox.ListIndex"), 0);
    EXPECT_EQ(Get("EmuListLocked"), false);
}

TEST_F(EmulatorChoice, ScannedRowShowsItsCount) {
    Start();
    Open();
    Do("select", "Form1.EmulatorLongListbox", 0);
    EXPECT_EQ(Get("Current_ProgramNameFull.Caption"), "Alpha\r (Roms: 3)");
    EXPECT_EQ(Get("Current_ProgramNameFull.FontSize"),
              Get("EmulatorLongListbox.FontSize").get<double>() + 4);
}

TEST_F(EmulatorChoice, NeverScannedRowShowsAQuestionMark) {
    Start();
    Open();
    Do("select", "Form1.EmulatorLongListbox", 1);
    EXPECT_EQ(Get("Current_ProgramNameFull.Caption"), "Beta\r (Roms: ?)");
    EXPECT_EQ(tree.Stored("Config/Beta/Kivu.ini", "RomCount"), "(none)");
}

TEST_F(EmulatorChoice, RowWithoutAProfileShowsOnlyItsName) {
    Start();
    Open();
    Do("select", "Form1.EmulatorLongListbox", 2);
    EXPECT_EQ(Get("Current_ProgramNameFull.Caption"), "Empty");
    EXPECT_FALSE(tree.Exists("Config/Empty/Kivu.ini"));
}

TEST_F(EmulatorChoice, BackspaceInTheLongListLeavesTheLoadedEmulator) {
    for (const char* key : {"Backspace", "Escape"}) {
        Start();
        Open();
        Do("select", "Form1.EmulatorLongListbox", 1);
        Do("key", "Form1", key);
        EXPECT_FALSE(Visible("EmulatorLongListbox")) << key;
        EXPECT_EQ(Get("EmuListbox.ListIndex"), 0) << key;
        EXPECT_EQ(Get("EmuListbox.Text"), "Alpha") << key;
        EXPECT_EQ(Get("UAE_Short.ListCount"), 3) << key;
        EXPECT_EQ(Get("ListMode"), "2") << key;
        EXPECT_TRUE(Visible("WIthoutDoubles")) << key;
        EXPECT_TRUE(Visible("Label2")) << key;
        EXPECT_FALSE(Visible("LoadingBtn")) << key;
        EXPECT_EQ(Do("boxes")["value"], Json::array()) << key;
    }
}

TEST_F(EmulatorChoice, ListCanBeOpenedAgainAfterItWasLeft) {
    Start();
    Open();
    Do("key", "Form1", "Escape");
    Do("click", "Form1.EmuListbox");
    EXPECT_TRUE(Visible("EmulatorLongListbox"));
}

TEST_F(EmulatorChoice, LetterStartsASearchWithThatLetter) {
    for (const char* where : {"Form1.EmuListbox", "Form1.EmulatorLongListbox"}) {
        Start();
        Open();
        Do("key", where, "b");
        EXPECT_EQ(Get("SearchDblsTxt.Text"), "b") << where;
        EXPECT_EQ(Get("SearchDblsTxt.SelStart"), 1) << where;
        EXPECT_EQ(Get("Focus"), "Form1.SearchDblsTxt") << where;
        EXPECT_EQ(Get("EmuListbox.ListIndex"), 0) << where;
        EXPECT_EQ(Get("EmuListbox.Text"), "Alpha") << where;
    }
}

TEST_F(EmulatorChoice, OtherCharactersDoNothing) {
    Start();
    Open();
    for (const char* key : {"-", "ä"})
        Do("type", "Form1.EmulatorLongListbox", key);
    EXPECT_EQ(Get("Focus"), "Form1.EmulatorLongListbox");
    EXPECT_TRUE(Visible("EmulatorLongListbox"));
}

TEST_F(EmulatorChoice, SelectingTheLoadedEmulatorReloadsNothing) {
    Start();
    tree.WriteCache("Alpha", {{"/Roms/New.adf", "New"}});
    Open();
    Do("dblclick", "Form1.EmulatorLongListbox", 0);
    EXPECT_EQ(Get("UAE_Short.ListCount"), 3);
    EXPECT_FALSE(Visible("EmulatorLongListbox"));
    EXPECT_TRUE(Visible("WIthoutDoubles"));
    EXPECT_TRUE(Visible("EmuListbox"));
    EXPECT_FALSE(Visible("Current_LoadingSmallBtn"));
    EXPECT_FALSE(Visible("LoadingBtn"));
    EXPECT_EQ(Get("Label4.Caption"), " Suchergebnisse (0) ");
}

TEST_F(EmulatorChoice, LockedListStopsTheSwitch) {
    Start();
    Do("set", "Form1.EmuListbox.ListIndex", 1);
    Do("set", "Form1.EmuListLocked", true);
    Call("SelectEmulator", false);
    EXPECT_EQ(Get("CurrentEmuIndex"), 0);
    EXPECT_EQ(Get("StartPfad"), tree.Path("Config/Alpha/"));
}

TEST_F(EmulatorChoice, RightClickStartsTheEmulatorAlone) {
    Start();
    Open();
    Do("rightclick", "Form1.EmulatorLongListbox", 1);
    const Json runs = Do("runs")["value"];
    ASSERT_EQ(runs.size(), 1U);
    EXPECT_EQ(runs[0]["command"], tree.Path("Emu/beta"));
    EXPECT_EQ(runs[0]["style"], "Normal");
    EXPECT_EQ(runs[0]["directory"], tree.Path("Emu"));
    EXPECT_EQ(runs[0]["words"], Json::array({tree.Path("Emu/beta")}));
    EXPECT_EQ(Get("CurrentRunninApplication"), "beta");
    EXPECT_EQ(Get("EmuActiveTimer.Enabled"), true);
}

TEST_F(EmulatorChoice, RightClickWithAShiftKeyStartsNothing) {
    Start();
    Open();
    Do("mousedown", "Form1.EmulatorLongListbox", 2, 1, 10, 10);
    EXPECT_EQ(Do("runs")["value"], Json::array());
}

TEST_F(EmulatorChoice, MissingEmulatorIsToldInTheOtherLanguage) {
    Start();
    Open();
    Do("rightclick", "Form1.EmulatorLongListbox", 2);
    Json box = Do("boxes")["value"][0];
    EXPECT_EQ(box["title"], "Emulator nicht gefunden!");
    EXPECT_EQ(box["text"], "Empty-Emulator wurde nicht gefunden:\r\r");
    options.language = "German";
    Start();
    Open();
    Do("rightclick", "Form1.EmulatorLongListbox", 2);
    box = Do("boxes")["value"][0];
    EXPECT_EQ(box["title"], "Emulator not found!");
    EXPECT_EQ(box["text"], "Empty-Emulator not found:\r\r");
    EXPECT_EQ(Do("runs")["value"], Json::array());
    EXPECT_FALSE(tree.Exists("Config/Empty/Kivu.ini"));
}

TEST_F(EmulatorChoice, QuestionBeforeTheStartCanBeDeclined) {
    Start();
    Do("answer", "No");
    Call("StartEmulator", "Beta", true);
    Json box = Do("boxes")["value"][0];
    EXPECT_EQ(box["title"], "beta starten?");
    EXPECT_EQ(box["text"], "Beta-Emulator zum Einstellen jetzt starten?");
    EXPECT_EQ(Do("runs")["value"], Json::array());
    Do("answer", "Yes");
    Call("StartEmulator", "Beta", true);
    EXPECT_EQ(Do("runs")["value"].size(), 1U);
    EXPECT_EQ(Get("LoadingBtn.Caption"), "Setup:\rBeta\r->beta");
}

TEST_F(EmulatorChoice, SwitchAddsTheCacheToTheGlobalListOnRequest) {
    Start();
    Do("set", "Form1.EmuListbox.ListIndex", 1);
    Call("SelectEmulator", true);
    EXPECT_EQ(tree.Read("Config/Kivu_Global.txt"),
              testing::HostPath("/Roms/Beta/Cat (1992)(Maker).adf\r\nCat (1992)(Maker)\r\n"));
    Do("set", "Form1.EmuListbox.ListIndex", 2);
    Call("SelectEmulator", true);
    Do("set", "Form1.EmuListbox.ListIndex", 1);
    Call("SelectEmulator", true);
    EXPECT_EQ(tree.Read("Config/Kivu_Global.txt").size(), 2 * 53U);
}

TEST_F(EmulatorChoice, ClickThatComesInDuringASwitchStartsNoSecondOne) {
    Start();
    int nested = 0;
    Host().events.onEvents = [&] {
        ++nested;
        Form().EmuListbox.onDblClick();
    };
    Do("set", "Form1.EmuListbox.ListIndex", 1);
    Call("SelectEmulator", false);
    EXPECT_GT(nested, 0);
    EXPECT_EQ(Get("CurrentEmuIndex"), 1);
    EXPECT_EQ(Get("UAE_Short.ListCount"), 1);
    EXPECT_EQ(Get("Busy"), false);
}

}  // namespace
}  // namespace kivu::scenarios
