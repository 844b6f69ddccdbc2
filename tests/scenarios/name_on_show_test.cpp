// The name of the marked row's game stands at the right whenever its list is in front.

#include "scenarios/scenario.h"

namespace kivu::scenarios {
namespace {

class NameOnShow : public LoadedScenario {
 protected:
    NameOnShow() { options.language = "English"; }
    // On one line; the label breaks it to its width.
    std::string Name() {
        std::string name = Visible("Current_ProgramNameFull")
                               ? Text("Current_ProgramNameFull.Caption")
                               : "(hidden)";
        std::erase(name, '\r');
        std::erase(name, ' ');
        return name;
    }
    void StoreBee() {
        tree.Write("Config/Alpha/Favoriten.ini",
                   "[Favoriten]\r\nFav0_Name=Bee\r\nFav0_FullPath=/Roms/Alpha/Bee (1991)(Maker).adf"
                   "\r\n");
    }
    const std::string ant = "Ant(1990)(Maker)(Disk1of2).adf";
    const std::string bee = "Bee(1991)(Maker).adf";
};

TEST_F(NameOnShow, AtTheStart) {
    Start();
    EXPECT_EQ(Get("WIthoutDoubles.ListIndex"), 0);
    EXPECT_EQ(Name(), ant);
    StoreBee();
    Start();
    EXPECT_EQ(Get("FavoritenListe.ListIndex"), 0);
    EXPECT_EQ(Name(), bee);
}

TEST_F(NameOnShow, AfterTheChoiceHasBeenLeft) {
    Start();
    Do("select", "Form1.WIthoutDoubles", 1);
    Do("focus", "Form1.EmuListbox");
    Do("key", "Form1.EmuListbox", "Escape");
    EXPECT_EQ(Name(), bee);
}

TEST_F(NameOnShow, OverTheOpenChoiceOfEmulators) {
    Start();
    Do("focus", "Form1.EmuListbox");
    const std::string alpha = Name();
    EXPECT_EQ(alpha.substr(0, 11), "Alpha(Roms:");
    // Nothing else of the row's click is done.
    EXPECT_EQ(Get("ListMode"), "5");
    EXPECT_EQ(Get("Focus"), "Form1.EmuListbox");
    Do("select", "Form1.EmulatorLongListbox", 1);
    EXPECT_EQ(Name().substr(0, 5), "Beta(");
    Do("select", "Form1.EmulatorLongListbox", 0);
    EXPECT_EQ(Name(), alpha);
    Do("key", "Form1", "Escape");
    EXPECT_EQ(Name(), ant);
}

TEST_F(NameOnShow, OverTheOpenChoiceWithNothingMarkedThereIsNone) {
    tree.WriteProgramProfile({{"LastEmulator", "Gone"}});
    Start();
    Do("focus", "Form1.EmuListbox");
    EXPECT_TRUE(Visible("EmulatorLongListbox"));
    EXPECT_EQ(Get("EmulatorLongListbox.ListIndex"), -1);
    EXPECT_EQ(Get("Current_ProgramNameFull.Caption"), "");
}

TEST_F(NameOnShow, AfterAChangeOfEmulator) {
    Start();
    Do("focus", "Form1.EmuListbox");
    Do("dblclick", "Form1.EmulatorLongListbox", 1);
    EXPECT_EQ(Name(), "Cat(1992)(Maker).adf");
    Do("focus", "Form1.EmuListbox");
    Do("dblclick", "Form1.EmulatorLongListbox", 1);
    EXPECT_EQ(Name(), "Cat(1992)(Maker).adf");
}

TEST_F(NameOnShow, AfterAGameAndNothingElseIsTouched) {
    Start();
    Do("click", "Form1.Label3");
    Do("select", "Form1.UAE_Short", 1);
    const Json drives = Get("DiskSlots");
    Do("dblclick", "Form1.UAE_Short", 2);
    const Json slots = Get("DiskSlots");
    EXPECT_NE(slots, drives);
    EmulatorComesUp();
    Do("tick", "Form1.EmuActiveTimer");
    EXPECT_EQ(Get("Current_ProgramNameFull.Caption"), "");
    EmulatorGoes();
    Do("tick", "Form1.EmuActiveTimer", 4);
    EXPECT_TRUE(Visible("WIthoutDoubles"));
    // The row marked there, of which nothing else is done.
    EXPECT_EQ(Name(), ant);
    EXPECT_EQ(Get("UAE_Short.ListIndex"), 2);
    EXPECT_EQ(Get("UAE_FULL.ListIndex"), 2);
    EXPECT_EQ(Get("DiskSlots"), slots);
    Do("click", "Form1.Label3");
    EXPECT_EQ(Get("DiskSlots"), slots);
}

TEST_F(NameOnShow, OnAClickOnTheSelectedRow) {
    Start();
    Do("click", "Form1.Label3");
    Do("select", "Form1.UAE_Short", 2);
    Do("set", "Form1.Current_ProgramNameFull.Caption", "");
    Do("select", "Form1.UAE_Short", 2);
    EXPECT_EQ(Name(), bee);
    Do("click", "Form1.Label2");
    Do("select", "Form1.WIthoutDoubles", 1);
    Do("set", "Form1.Current_ProgramNameFull.Caption", "");
    Do("select", "Form1.WIthoutDoubles", 1);
    EXPECT_EQ(Name(), bee);
    Do("type", "Form1.SearchDblsTxt", "bee");
    Do("select", "Form1.SuchErgList", 0);
    Do("set", "Form1.Current_ProgramNameFull.Caption", "");
    Do("select", "Form1.SuchErgList", 0);
    EXPECT_EQ(Name(), bee);
}

TEST_F(NameOnShow, OfAFavouriteThatIsNotThereNothingIsAskedNorWritten) {
    StoreBee();
    Start();
    Do("click", "Form1.Label2");
    std::filesystem::remove(tree.Path("Roms/Alpha/Bee (1991)(Maker).adf"));
    Do("click", "Form1.LoadBtn");
    Do("set", "Form1.Current_ProgramNameFull.Caption", "");
    Do("boxes");
    Do("click", "Form1.Label1");
    EXPECT_EQ(Get("FavoritenListe.ListIndex"), 0);
    EXPECT_TRUE(Do("boxes")["value"].empty());
    EXPECT_EQ(Get("Current_ProgramNameFull.Caption"), "");
}

TEST_F(NameOnShow, ABusyWindowShowsNone) {
    Start();
    Do("set", "Form1.SearchDblsTxt.Text", "ant");
    Do("select", "Form1.SuchErgList", 0);
    Host().events.onEvents = [&] {
        if (!Form().ListsVisible) {
            EXPECT_EQ(Form().Current_ProgramNameFull.Caption(), "");
        }
    };
    Do("click", "Form1.LoadBtn");
    Host().events.onEvents = nullptr;
    EXPECT_TRUE(Visible("UAE_Short"));
}

}  // namespace
}  // namespace kivu::scenarios
