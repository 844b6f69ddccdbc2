#include "scenarios/scenario.h"

namespace kivu::scenarios {
namespace {

// What opens the choice of emulators and what closes it. Whatever leaves it without loading leads
// the drop-down back to the emulator that is loaded.
class OpenChoice : public LoadedScenario {
 protected:
    void Open() { Do("click", "Form1.EmuListbox"); }
    void LookAtBeta() { Do("select", "Form1.EmulatorLongListbox", 1); }
    void ExpectAlpha() {
        EXPECT_EQ(Get("CurrentEmuIndex"), 0);
        EXPECT_EQ(Get("EmuListbox.ListIndex"), 0);
        EXPECT_EQ(Get("EmuListbox.Text"), "Alpha");
        EXPECT_EQ(Get("EmuListbox.BackColor"), closedColor);
        EXPECT_FALSE(Visible("EmulatorLongListbox"));
    }
    void ExpectOnlyTheFavouritesTab() {
        EXPECT_TRUE(Visible("Label1"));
        for (const char* tab : {"Label2", "Label3", "Label4"})
            EXPECT_FALSE(Visible(tab)) << tab;
        EXPECT_EQ(Form().Label1.Left(), Form().Width() - Form().Label1.Width() - 400);
    }
    void ExpectAsWideAsTheList() {
        EXPECT_EQ(Get("EmuListbox.Width"), Get("EmulatorLongListbox.Width"));
    }
    int ClosedWidth() { return static_cast<int>(220 * Form().EmuListbox.FontSize()); }
    std::string StoredSystem() { return tree.Stored("Config/Favoriten_Global.ini", "Fav1_System"); }
    void StartAlpha() {
        Start();
        closedColor = Get("EmuListbox.BackColor");
    }

    Json closedColor;
};

TEST_F(OpenChoice, RescanClosesItAndKeepsTheLoadedEmulator) {
    tree.Write("Roms/Alpha/Dog (1993)(Maker).adf", "x");
    StartAlpha();
    Open();
    LookAtBeta();
    Do("click", "Form1.LoadBtn");
    ExpectAlpha();
    EXPECT_EQ(Get("UAE_Short.ListCount"), 4);
    EXPECT_EQ(tree.Stored("Config/Alpha/Kivu.ini", "RomCount"), "4");
    EXPECT_EQ(Get("ListMode"), "3");
    EXPECT_TRUE(Visible("UAE_Short"));
    EXPECT_EQ(Get("Focus"), "Form1.UAE_Short");
    EXPECT_EQ(Get("EmuListbox.Width"), ClosedWidth());
    Do("click", "Form1.Label2");
    Do("select", "Form1.WIthoutDoubles", 1);
    Do("click", "Form1.AddToFavorit_Global");
    EXPECT_EQ(StoredSystem(), "Alpha");
}

TEST_F(OpenChoice, RescanFromTheFavouritesOfAllEmulatorsClosesItToo) {
    tree.Write("Config/Favoriten_Global.ini",
               ProgramDirectory::Encoded("[Favoriten_Global]\r\nFav1_Name=Cat\r\n"
                                         "Fav1_System=Beta\r\nFav1_FullPath=/x\r\n"));
    StartAlpha();
    Open();
    Do("click", "Form1.Label1");
    Do("select", "Form1.FavoritenListeGlobal", 0);
    ASSERT_EQ(Get("EmuListbox.ListIndex"), 1);
    Do("click", "Form1.LoadBtn");
    ExpectAlpha();
    EXPECT_FALSE(Visible("FavoritenListeGlobal"));
    EXPECT_FALSE(Visible("DeLFav"));
    EXPECT_EQ(Get("Label1.Caption"), " Favorites (0) ");
}

TEST_F(OpenChoice, RescanFromASearchOverItClosesItToo) {
    StartAlpha();
    Open();
    LookAtBeta();
    Do("click", "Form1.SearchDblsTxt");
    Do("click", "Form1.LoadBtn");
    ExpectAlpha();
    EXPECT_EQ(Get("ListMode"), "3");
}

TEST_F(OpenChoice, OpenedTwiceItStillLeadsBack) {
    for (const char* key : {"Escape", "Backspace"}) {
        StartAlpha();
        Open();
        LookAtBeta();
        Open();
        EXPECT_EQ(Get("EmuBoxIndexSaved"), 0) << key;
        Call("ShowEmulatorBox", false);
        EXPECT_EQ(Get("EmuListbox.ListIndex"), 0) << key;
        StartAlpha();
        Open();
        LookAtBeta();
        Open();
        Do("key", "Form1", key);
        ExpectAlpha();
    }
}

TEST_F(OpenChoice, OpenedTwiceItStillLoadsTheRow) {
    StartAlpha();
    Open();
    LookAtBeta();
    Open();
    Do("dblclick", "Form1.EmulatorLongListbox", 1);
    EXPECT_EQ(Get("CurrentEmuIndex"), 1);
    EXPECT_EQ(Get("EmuBoxIndexSaved"), 1);
    EXPECT_EQ(Get("EmuListbox.Text"), "Beta");
    Open();
    Do("key", "Form1", "Escape");
    EXPECT_EQ(Get("EmuListbox.ListIndex"), 1);
}

TEST_F(OpenChoice, OpenedTwiceWhileAGameRunsItLeadsBackAtItsEnd) {
    for (const bool seen : {true, false}) {
        StartAlpha();
        LaunchBee();
        if (seen) {
            EmulatorComesUp();
            Do("tick", "Form1.EmuActiveTimer", 4);
        }
        Open();
        LookAtBeta();
        // A look at the processes puts the list away, with the row that is chosen.
        if (seen) Do("tick", "Form1.EmuActiveTimer");
        Open();
        if (seen) EmulatorGoes();
        Do("tick", "Form1.EmuActiveTimer", seen ? 1 : 3);
        EXPECT_EQ(Get("GameIsRunning"), false) << seen;
        ExpectAlpha();
        EXPECT_TRUE(Visible("WIthoutDoubles")) << seen;
        EXPECT_EQ(Get("ListMode"), "2") << seen;
        Do("select", "Form1.WIthoutDoubles", 1);
        Do("click", "Form1.AddToFavorit_Global");
        EXPECT_EQ(StoredSystem(), "Alpha") << seen;
    }
}

TEST_F(OpenChoice, SetUpStartLeadsBackAtItsEnd) {
    StartAlpha();
    Open();
    LookAtBeta();
    Open();
    Host().starter.onRun = [&](const platform::StartRequest&) {
        Host().processes.Add("beta", 4711);
    };
    Do("rightclick", "Form1.EmulatorLongListbox", 1);
    EXPECT_TRUE(Visible("AppRunningPicture"));
    EXPECT_FALSE(Visible("EmulatorLongListbox"));
    EmulatorGoes();
    Do("tick", "Form1.EmuActiveTimer");
    ExpectAlpha();
    EXPECT_FALSE(Visible("AppRunningPicture"));
    EXPECT_TRUE(Visible("WIthoutDoubles"));
}

TEST_F(OpenChoice, KillOfAnEmulatorThatIsSetUpLeadsBack) {
    StartAlpha();
    Open();
    Host().starter.onRun = [&](const platform::StartRequest&) {
        Host().processes.Add("beta", 4711);
    };
    Do("rightclick", "Form1.EmulatorLongListbox", 1);
    Do("click", "Form1.AppRunningPicture");
    ExpectAlpha();
    EXPECT_TRUE(Visible("WIthoutDoubles"));
    Do("click", "Form1.AddToFavorit_Global");
    EXPECT_EQ(StoredSystem(), "Alpha");
}

TEST_F(OpenChoice, FavouriteLookedAtInAGameLeadsBackAtItsEnd) {
    tree.Write("Config/Favoriten_Global.ini",
               ProgramDirectory::Encoded(
                   "[Favoriten_Global]\r\nFav1_Name=Bee\r\nFav1_System=Alpha\r\nFav1_FullPath=" +
                   tree.Path("Roms/Alpha/Bee (1991)(Maker).adf") +
                   "\r\nFav2_Name=Cat\r\nFav2_System=Beta\r\nFav2_FullPath=/x\r\n"));
    StartAlpha();
    Open();
    Do("click", "Form1.Label1");
    Do("dblclick", "Form1.FavoritenListeGlobal", 0);
    ASSERT_TRUE(Visible("FavoritenListeGlobal"));
    Do("select", "Form1.FavoritenListeGlobal", 1);
    Open();
    Do("tick", "Form1.EmuActiveTimer", 3);
    ExpectAlpha();
}

TEST_F(OpenChoice, EachTabOverItLeadsBack) {
    for (const char* tab : {"Form1.Label2", "Form1.Label3", "Form1.Label4"}) {
        StartAlpha();
        Open();
        LookAtBeta();
        Open();
        Do("click", "Form1.SearchDblsTxt");
        Do("click", tab);
        ExpectAlpha();
    }
}

TEST_F(OpenChoice, LeftWithNoEmulatorLoadedItShowsThePromptAgain) {
    tree.WriteProgramProfile({{"LastEmulator", "Gone"}});
    Start();
    ASSERT_EQ(Get("EmuListbox.Text"), "Select Emulator:");
    Open();
    LookAtBeta();
    EXPECT_EQ(Get("EmuListbox.Text"), "Beta");
    Do("key", "Form1", "Escape");
    EXPECT_EQ(Get("EmuListbox.ListIndex"), -1);
    EXPECT_EQ(Get("EmuListbox.Text"), "Select Emulator:");
}

TEST_F(OpenChoice, NoTabButTheFavouritesShowsWhateverWasInFront) {
    for (const char* tab : {"Form1.Label1", "Form1.Label2", "Form1.Label3", "Form1.Label4"}) {
        StartAlpha();
        Do("click", "Form1.Label3");
        Do("click", tab);
        Open();
        EXPECT_EQ(Get("ListMode"), "5") << tab;
        ExpectOnlyTheFavouritesTab();
        Do("focus", "Form1.EmulatorLongListbox");
        EXPECT_EQ(Get("ListMode"), "10") << tab;
        ExpectOnlyTheFavouritesTab();
        LookAtBeta();
        ExpectOnlyTheFavouritesTab();
        Do("resize", "Form1", 15000, 9000);
        ExpectOnlyTheFavouritesTab();
    }
}

TEST_F(OpenChoice, NoTabButTheFavouritesShowsAfterASearch) {
    StartAlpha();
    Do("type", "Form1.SearchDblsTxt", "bee");
    ASSERT_TRUE(Visible("Label4"));
    Open();
    ExpectOnlyTheFavouritesTab();
    Do("key", "Form1", "Escape");
    Do("set", "Form1.SearchDblsTxt.Text", "maker");
    Do("key", "Form1.SearchDblsTxt", "Ctrl+Enter");
    ASSERT_TRUE(Visible("GlobalSearchList"));
    Open();
    ExpectOnlyTheFavouritesTab();
}

TEST_F(OpenChoice, TabsShowWithTheSearchBoxOverItAndGoWithItsList) {
    StartAlpha();
    Open();
    Do("click", "Form1.SearchDblsTxt");
    EXPECT_EQ(Get("ListMode"), "7");
    for (const char* tab : {"Label1", "Label2", "Label3", "Label4"})
        EXPECT_TRUE(Visible(tab)) << tab;
    EXPECT_EQ(Get("EmuListbox.Width"), ClosedWidth());
    LookAtBeta();
    ExpectOnlyTheFavouritesTab();
    ExpectAsWideAsTheList();
    Do("click", "Form1.SearchDblsTxt");
    Open();
    ExpectOnlyTheFavouritesTab();
    ExpectAsWideAsTheList();
}

TEST_F(OpenChoice, ListOfEmulatorsComesInFrontOfTheFavouritesWithTheFocus) {
    StartAlpha();
    Open();
    Do("click", "Form1.Label1");
    ASSERT_TRUE(Visible("FavoritenListeGlobal"));
    Do("focus", "Form1.EmulatorLongListbox");
    EXPECT_FALSE(Visible("FavoritenListeGlobal"));
    EXPECT_FALSE(Visible("DeLFav"));
    ExpectOnlyTheFavouritesTab();
    ExpectAsWideAsTheList();
}

TEST_F(OpenChoice, ResizeKeepsTheDropDownAsWideAsTheList) {
    StartAlpha();
    Open();
    const int before = Form().EmuListbox.Width();
    for (const char* where : {"Form1.EmuListbox", "Form1.EmulatorLongListbox"}) {
        Do("focus", where);
        Do("resize", "Form1", 18000, 11000);
        EXPECT_GT(Form().EmuListbox.Width(), before) << where;
        ExpectAsWideAsTheList();
        Do("resize", "Form1", 14400, 10200);
        EXPECT_EQ(Form().EmuListbox.Width(), before) << where;
        Do("select", "Form1.FontSizeCombo", 20);
        ExpectAsWideAsTheList();
        Do("select", "Form1.FontSizeCombo", 16);
    }
    // Beside the tabs it is as wide as its text needs.
    Do("click", "Form1.SearchDblsTxt");
    Do("resize", "Form1", 18000, 11000);
    EXPECT_EQ(Get("EmuListbox.Width"), ClosedWidth());
    Open();
    Do("click", "Form1.Label1");
    Do("resize", "Form1", 14400, 10200);
    EXPECT_EQ(Get("EmuListbox.Width"), ClosedWidth());
    Do("key", "Form1", "Escape");
    Do("resize", "Form1", 18000, 11000);
    EXPECT_EQ(Get("EmuListbox.Width"), ClosedWidth());
}

TEST_F(OpenChoice, LoadingSignStandsBesideTheClosedDropDown) {
    StartAlpha();
    const Json place = Get("Current_LoadingSmallBtn.Left");
    Open();
    Do("resize", "Form1", 18000, 11000);
    EXPECT_EQ(Get("Current_LoadingSmallBtn.Left"), place);
    EXPECT_GT(Form().Current_LoadingSmallBtn.Width(), 0);
}

TEST_F(OpenChoice, ListHasTheSizeOfTheSearchTabAlways) {
    StartAlpha();
    const auto expectOneSize = [this](const char* when) {
        EXPECT_EQ(Get("EmulatorLongListbox.FontSize"), Get("Label4.FontSize")) << when;
    };
    expectOneSize("at the start");
    EXPECT_EQ(Get("Current_ProgramNameFull.FontSize"), Form().Label4.FontSize() + 4);
    Open();
    expectOneSize("first opened");
    LookAtBeta();
    EXPECT_EQ(Get("Current_ProgramNameFull.FontSize"), Form().Label4.FontSize() + 4);
    Do("resize", "Form1", 15000, 9000);
    expectOneSize("resized");
    Do("click", "Form1.LoadBtn");
    Open();
    expectOneSize("opened after a rescan");
    Do("set", "Form1.Label4.FontSize", 13);
    Do("key", "Form1", "Escape");
    Open();
    expectOneSize("with another size of the tab");
}

}  // namespace
}  // namespace kivu::scenarios
