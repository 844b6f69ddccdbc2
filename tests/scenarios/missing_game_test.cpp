#include "scenarios/launches.h"

namespace kivu::scenarios {
namespace {

// A start that ends in a box: the window goes back to the list that was in front.
class MissingGame : public Launch {
 protected:
    void RemoveBee() { std::filesystem::remove(Bee()); }
    // The window while a box is shown.
    void WatchBoxes() {
        Host().dialogs.onShow = [this] {
            EXPECT_FALSE(Visible("Label4"));
            ++shown;
        };
    }
    void ExpectList(const char* list, const char* mode) {
        EXPECT_EQ(shown, 1);
        EXPECT_EQ(Do("runs")["value"], Json::array());
        EXPECT_TRUE(Visible(list));
        EXPECT_EQ(Get("Focus"), std::string("Form1.") + list);
        EXPECT_EQ(Get("ListMode"), mode);
        for (const char* control : {"EmuListbox", "Label1", "Label2", "Label3", "SearchDblsTxt",
                                    "SettingsBtn", "SettingsSubPicture"}) {
            EXPECT_TRUE(Visible(control)) << control;
        }
        EXPECT_FALSE(Visible("LoadingBtn"));
        EXPECT_FALSE(Visible("SettingsShortBtn"));
        EXPECT_EQ(Get("ListsVisible"), true);
        EXPECT_EQ(Get("EmuListbox.ListIndex"), Get("CurrentEmuIndex"));
    }

    int shown = 0;
};

TEST_F(MissingGame, LeadsBackToTheCompleteList) {
    Start();
    RemoveBee();
    WatchBoxes();
    Do("click", "Form1.Label3");
    Do("dblclick", "Form1.UAE_Short", 2);
    ExpectList("UAE_Short", "3");
    EXPECT_EQ(Get("UAE_Short.ListIndex"), 2);
    EXPECT_TRUE(Visible("Label4"));
}

TEST_F(MissingGame, LeadsBackToTheSimpleList) {
    Start();
    RemoveBee();
    WatchBoxes();
    Do("select", "Form1.WIthoutDoubles", 1);
    Do("key", "Form1.WIthoutDoubles", "Enter");
    ExpectList("WIthoutDoubles", "2");
    EXPECT_EQ(Get("WIthoutDoubles.ListIndex"), 1);
    EXPECT_FALSE(Visible("Label4"));
    EXPECT_TRUE(Visible("AddToFavorit"));
}

TEST_F(MissingGame, LeadsBackToTheFavourites) {
    tree.Write(
        "Config/Alpha/Favoriten.ini",
        ProgramDirectory::Encoded("[Favoriten]\r\nFav0_Name=Bee (1991)(Maker)\r\n"
                                  "Fav0_FullPath=" +
                                  testing::HostPath("/Roms/Alpha/Bee (1991)(Maker).adf") + "\r\n"));
    Start();
    RemoveBee();
    WatchBoxes();
    Do("dblclick", "Form1.FavoritenListe", 0);
    ExpectList("FavoritenListe", "1");
}

TEST_F(MissingGame, LeadsBackToTheSearchResults) {
    Start();
    RemoveBee();
    WatchBoxes();
    Do("type", "Form1.SearchDblsTxt", "bee");
    Do("key", "Form1.SearchDblsTxt", "Enter");
    Do("key", "Form1.SuchErgList", "Enter");
    ExpectList("SuchErgList", "4");
    EXPECT_EQ(Get("SuchErgList.List"), Json({"Bee (1991)(Maker)"}));
    EXPECT_EQ(Get("Label4.Caption"), " Search results (1) ");
    EXPECT_TRUE(Visible("Label4"));
}

TEST_F(MissingGame, LeadsBackToTheListWithTheFocusOnTheSearchBox) {
    Start();
    RemoveBee();
    Do("type", "Form1.SearchDblsTxt", "bee");
    WatchBoxes();
    Call("LaunchBtn_Click");
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(Get("Focus"), "Form1.SearchDblsTxt");
    EXPECT_EQ(Get("ListMode"), "7");
    EXPECT_TRUE(Visible("SuchErgList"));
    EXPECT_EQ(Get("SearchDblsTxt.Text"), "bee");
}

TEST_F(MissingGame, ClosesTheChoiceOfEmulators) {
    Start();
    RemoveBee();
    Do("select", "Form1.WIthoutDoubles", 1);
    Do("focus", "Form1.EmuListbox");
    Do("select", "Form1.EmulatorLongListbox", 1);
    WatchBoxes();
    Call("LaunchBtn_Click");
    ExpectList("WIthoutDoubles", "2");
    EXPECT_FALSE(Visible("EmulatorLongListbox"));
    EXPECT_EQ(Get("EmuListbox.Text"), "Alpha");
}

TEST_F(MissingGame, NextGameStartsFromTheSameList) {
    Start();
    RemoveBee();
    Do("click", "Form1.Label3");
    Do("dblclick", "Form1.UAE_Short", 2);
    Do("dblclick", "Form1.UAE_Short", 0);
    EXPECT_EQ(Do("runs")["value"].size(), 1U);
    EXPECT_EQ(Get("GameIsRunning"), true);
}

TEST_F(MissingGame, EndsOverTheFavouritesOfAllEmulatorsAsEachStartThere) {
    tree.Write("Config/Favoriten_Global.ini",
               ProgramDirectory::Encoded("[Favoriten_Global]\r\nFav1_Name=Bee (1991)(Maker)\r\n"
                                         "Fav1_System=Alpha\r\nFav1_FullPath=" +
                                         Bee() + "\r\n"));
    Start();
    RemoveBee();
    Do("focus", "Form1.EmuListbox");
    Do("click", "Form1.Label1");
    WatchBoxes();
    Do("dblclick", "Form1.FavoritenListeGlobal", 0);
    EXPECT_EQ(shown, 1);
    EXPECT_TRUE(Visible("FavoritenListeGlobal"));
    EXPECT_EQ(Get("Focus"), "Form1.FavoritenListeGlobal");
    EXPECT_TRUE(Visible("EmuListbox"));
    EXPECT_EQ(Get("ListsVisible"), false);
    EXPECT_FALSE(Visible("Label4"));
    // From there a key to the side goes on to a list, and no two lie over one another.
    Do("key", "Form1", "Right");
    EXPECT_FALSE(Visible("FavoritenListeGlobal"));
    EXPECT_TRUE(Visible("UAE_Short"));
    EXPECT_EQ(Get("Focus"), "Form1.UAE_Short");
    EXPECT_EQ(Get("ListsVisible"), true);
}

}  // namespace
}  // namespace kivu::scenarios
