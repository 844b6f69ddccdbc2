#include "scenarios/scenario.h"

namespace kivu::scenarios {
namespace {

// What comes while something else is under way and lets events run: whenever it comes, one list is
// in front afterwards, something has the focus, and the drop-down stands on the loaded emulator.
class InTheMiddle : public LoadedScenario {
 protected:
    static constexpr int moments = 40;  // more than any of these commands has

    // The command with others when it lets events run for the n-th time; false: it never did.
    template <typename... Arguments>
    bool With(int n, const std::vector<Json>& others, Arguments... command) {
        Json meanwhile = Json::array({"meanwhile", "events", n});
        for (const Json& other : others)
            meanwhile.push_back(other);
        EXPECT_EQ(interpreter->Execute(meanwhile)["ok"], true);
        return !Do(command...)["meanwhile"].empty();
    }
    std::vector<std::string> InFront() {
        std::vector<std::string> lists;
        for (const char* list : {"FavoritenListe", "WIthoutDoubles", "UAE_Short", "SuchErgList",
                                 "FavoritenListeGlobal", "GlobalSearchList", "EmulatorLongListbox"})
            if (Visible(list)) lists.emplace_back(list);
        return lists;
    }
    void ExpectOneList(int n) {
        EXPECT_EQ(InFront().size(), 1U) << n;
        EXPECT_NE(Get("Focus"), "") << n;
        if (!Visible("EmulatorLongListbox")) {
            EXPECT_EQ(Get("EmuListbox.ListIndex"), Get("CurrentEmuIndex")) << n;
        }
        EXPECT_FALSE(Visible("DeLFav")) << n;
    }
    std::string Bee() const { return tree.Path("Roms/Alpha/Bee (1991)(Maker).adf"); }
    // A game that was started meanwhile ends.
    void EndGame() {
        if (Form().EmuActiveTimer.Enabled()) Do("tick", "Form1.EmuActiveTimer", 5);
    }
};

TEST_F(InTheMiddle, HandedFileFindsTheChoiceOpenOrClosed) {
    for (int n = 1; n < moments; ++n) {
        Start();
        With(n, {{"summon", Bee()}}, "click", "Form1.EmuListbox");
        EndGame();
        ExpectOneList(n);
        Do("click", "Form1.EmuListbox");
        With(n, {{"summon", Bee()}}, "key", "Form1", "Escape");
        EndGame();
        ExpectOneList(n);
    }
}

TEST_F(InTheMiddle, EndOfAnEmulatorFindsTheChoiceOpenOrClosed) {
    for (int n = 1; n < moments; ++n) {
        Start();
        Do("click", "Form1.EmuListbox");
        Do("rightclick", "Form1.EmulatorLongListbox", 0);
        With(n, {{"tick", "Form1.EmuActiveTimer", 5}}, "key", "Form1", "Escape");
        With(n, {{"tick", "Form1.EmuActiveTimer", 5}}, "click", "Form1.EmuListbox");
        ExpectOneList(n);
    }
}

TEST_F(InTheMiddle, LetterTypedWhileTheChoiceOpensIsNotLost) {
    for (int n = 1; n < moments; ++n) {
        Start();
        if (With(n, {{"key", "Form1", "b"}}, "click", "Form1.EmuListbox")) {
            EXPECT_EQ(Text("SearchDblsTxt.Text"), "b") << n;
        }
        ExpectOneList(n);
    }
}

TEST_F(InTheMiddle, NoOtherEmulatorIsChosenDuringARescan) {
    for (int n = 1; n < moments; ++n) {
        Start();
        With(n, {{"select", "Form1.EmuListbox", 1}}, "click", "Form1.LoadBtn");
        ExpectOneList(n);
        EXPECT_EQ(InFront(), std::vector<std::string>{"UAE_Short"}) << n;
    }
}

TEST_F(InTheMiddle, ChoiceOpenedDuringASearchStaysOpen) {
    for (int n = 1; n < moments; ++n) {
        Start();
        Do("type", "Form1.SearchDblsTxt", "maker");
        const bool opened = With(n, {{"click", "Form1.EmuListbox"}}, "click", "Form1.SearchAllBtn");
        ExpectOneList(n);
        if (opened && !Visible("GlobalSearchList")) {
            EXPECT_EQ(InFront(), std::vector<std::string>{"EmulatorLongListbox"}) << n;
            EXPECT_EQ(Text("SearchDblsTxt.Text"), "maker") << n;
        }
    }
}

TEST_F(InTheMiddle, FileHandedOverAtTheEndOfAnEmulatorIsRefusedAndNotLeftUnwatched) {
    Start();
    Do("click", "Form1.EmuListbox");
    Do("rightclick", "Form1.EmulatorLongListbox", 0);
    Do("runs");
    EXPECT_TRUE(With(1, {{"summon", Bee()}}, "tick", "Form1.EmuActiveTimer"));
    EXPECT_EQ(Do("runs")["value"], Json::array());
    EXPECT_EQ(Do("beeps")["value"], 1);
    EXPECT_EQ(Get("GameIsRunning"), false);
    ExpectOneList(1);
}

TEST_F(InTheMiddle, RescanAsksWithoutATabAlone) {
    for (int n = 1; n < moments; ++n) {
        Start();
        Do("type", "Form1.SearchDblsTxt", "maker");
        bool asked = false, alone = false;
        Host().dialogs.onShow = [&] {
            asked = true;
            alone = Visible("Label4") && !Visible("Label3");
        };
        With(n, {{"key", "Form1", "Escape"}}, "click", "Form1.LoadBtn");
        EXPECT_FALSE(alone) << n;
        EXPECT_TRUE(asked || n > 1);
        EXPECT_TRUE(Visible("Label4")) << n;
    }
}

TEST_F(InTheMiddle, StartAsksWithoutATabAlone) {
    int asked = 0, alone = 0;
    for (int n = 1; n < moments; ++n) {
        Start();
        Do("type", "Form1.SearchDblsTxt", "maker");
        Do("select", "Form1.SuchErgList", 0);
        Host().dialogs.onShow = [&] {
            ++asked;
            if (Visible("Label4") && !Visible("Label3")) ++alone;
        };
        With(n, {{"close", "Form1"}}, "key", "Form1.SuchErgList", "Enter");
        EndGame();
    }
    EXPECT_GT(asked, 3);
    EXPECT_EQ(alone, 0);
}

// A favourite is looked for in the list, and the complete one comes to the front meanwhile.
TEST_F(InTheMiddle, FavouriteThatIsLookedForOffersNoButtonsInAnotherList) {
    tree.Write("Config/Alpha/Favoriten.ini",
               ProgramDirectory::Encoded("[Favoriten]\r\nFav0_Name=Ant\r\n"
                                         "Fav0_FullPath=/Roms/Alpha/Ant (1990)(Maker)(Disk 1 of "
                                         "2).adf\r\nFav1_Name=Bee\r\n"
                                         "Fav1_FullPath=/Roms/Alpha/Bee (1991)(Maker).adf\r\n"));
    Start();
    EXPECT_EQ(Get("ListMode"), "1");
    EXPECT_TRUE(With(1, {{"click", "Form1.Label3"}}, "select", "Form1.FavoritenListe", 1));
    EXPECT_TRUE(Visible("UAE_Short"));
    EXPECT_FALSE(Visible("DeLFav"));
}

// The drop-down can be seen there, and the keyboard goes through its rows.
TEST_F(InTheMiddle, NoRowIsChosenInAChoiceThatCannotOpen) {
    tree.Write("Config/Alpha/Favoriten.ini",
               ProgramDirectory::Encoded("[Favoriten]\r\nFav0_Name=Bee\r\n"
                                         "Fav0_FullPath=/Roms/Alpha/Bee (1991)(Maker).adf\r\n"));
    prepare = [this](driver::Session&) { Do("device", "add", "Pad", 18); };
    for (const Json& command :
         {Json{"click", "Form1.JoystickIcon"}, Json{"call", "RepairFavoriten"},
          Json{"tick", "Form1.EmuActiveTimer", 3}}) {
        int chosen = 0;
        for (int n = 1; n < 5; ++n) {
            Start();
            if (command[0] == "tick") LaunchBee();
            Do("meanwhile", "events", n, Json{"select", "Form1.EmuListbox", 1});
            const Json meanwhile = interpreter->Execute(command)["meanwhile"];
            if (!meanwhile.empty() && meanwhile[0]["ok"] == true) ++chosen;
            EXPECT_EQ(InFront().size(), 1U) << command << n;
            EXPECT_EQ(Get("ListMode"), Visible("FavoritenListe") ? "1" : "2") << command << n;
            EXPECT_EQ(Get("EmuListbox.ListIndex"), Get("CurrentEmuIndex")) << command << n;
        }
        EXPECT_GT(chosen, 0) << command;
    }
}

// The click on the button is refused, but gives it the focus: the Enter that starts must not press
// it once the game is up.
TEST_F(InTheMiddle, EnterThatStartsAGamePressesNoButtonThatIsClickedMeanwhile) {
    int clicked = 0;
    for (int n = 1; n < moments; ++n) {
        Start();
        Do("click", "Form1.Label3");
        Do("select", "Form1.UAE_Short", 2);
        Do("runs");
        if (With(n, {{"click", "Form1.LoadBtn"}}, "key", "Form1.UAE_Short", "Enter")) ++clicked;
        EXPECT_EQ(Do("runs")["value"].size(), 1U) << n;
        // A rescan would take the selection away.
        EXPECT_EQ(Get("UAE_Short.ListIndex"), 2) << n;
        EndGame();
        ExpectOneList(n);
    }
    EXPECT_GT(clicked, 3);
}

}  // namespace
}  // namespace kivu::scenarios
