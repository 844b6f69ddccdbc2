// Names and entries that only a POSIX file system holds.
#include <algorithm>
#include <sys/stat.h>

#include "scenarios/all_search.h"
#include "scenarios/faults.h"

namespace kivu::scenarios {
namespace {

using ::testing::HasSubstr;

TEST_F(Faults, LinksThatLoopEndTheScanAndCountNothingTwice) {
    std::filesystem::create_directory_symlink(tree.Path("Roms"), tree.Path("Roms/Alpha/loop"));
    std::filesystem::create_directory_symlink(".", tree.Path("Roms/Alpha/self"));
    Start();
    Scan();
    // The loop leads out of the tree, where there is one more game.
    EXPECT_EQ(Get("UAE_FULL.ListCount"), 4);
    ExpectUsable();
}

TEST_F(Faults, OddEntriesAreLeftOut) {
    std::filesystem::create_symlink("/nowhere", tree.Path("Roms/Alpha/dangling.adf"));
    ASSERT_EQ(::mkfifo(tree.Path("Roms/Alpha/pipe.adf").c_str(), 0600), 0);
    tree.Write("Roms/Alpha/.hidden.adf");
    tree.Write("Roms/Alpha/line\nbreak.adf");
    tree.Write("Roms/Alpha/carriage\rreturn.adf");
    Start();
    Scan();
    EXPECT_EQ(Get("UAE_FULL.ListCount"), 3);
    ExpectUsable();
}

TEST_F(Faults, NameThatIsNoUtf8ComesThroughTheCacheAndIsStarted) {
    const std::string name = "B\xe4r [long].adf";
    tree.Write("Roms/Alpha/" + name, "x");
    Start();
    Scan();
    EXPECT_EQ(Form().UAE_Short.List(2), "Bär [long]");
    Start();
    ASSERT_EQ(Form().UAE_FULL.List(2), tree.Path("Roms/Alpha/" + name));
    EXPECT_EQ(Form().UAE_Short.List(2), "Bär [long]");
    LaunchBee();
    EXPECT_THAT(tree.Read("Config/Alpha/Kivu_tmp.bat"), HasSubstr(name));
}

TEST_F(LoadedScenario, EmulatorWhoseNameIsNoUtf8IsTheLastOneAgain) {
    tree.AddEmulator("Gr\xfcn", {{"RomPath", "/Roms/Beta"}});
    tree.WriteCache("Gr\xfcn", {{"/Roms/Beta/Cat (1992)(Maker).adf", "Cat (1992)(Maker)"}});
    tree.AddEmulator("Grün", {{"RomPath", "/Roms/Alpha"}});
    tree.AddEmulator("Wei\xdf");
    Start();
    for (const std::string name : {"Gr\xfcn", "Grün", "Wei\xdf"}) {
        const auto& rows = Form().EmuListbox.Rows();
        const auto row = static_cast<int>(std::find(rows.begin(), rows.end(), name) - rows.begin());
        Form().EmuListbox.SetListIndex(row);
        Call("SelectEmulator", false);
        ASSERT_EQ(Form().CurrentEmuIndex, row);
        Start();
        EXPECT_EQ(Form().EmuListbox.SelectedText(), name);
        EXPECT_EQ(Form().CurrentEmuIndex, row);
    }
}

TEST_F(LoadedScenario, EmulatorWithBlanksAroundItsNameIsStartedFromTheGlobalFavourites) {
    for (const std::string name : {" Beta", "Gamma ", "'Delta'", "Gr\xfcn"}) {
        tree.AddEmulator(name, {{"RomPath", "/Roms/Beta"}, {"EmulatorPath", "/Emu/beta"}});
        tree.WriteCache(name, {{"/Roms/Beta/Cat (1992)(Maker).adf", "Cat (1992)(Maker)"}});
    }
    for (const std::string name : {" Beta", "Gamma ", "'Delta'", "Gr\xfcn", "Beta"}) {
        Start();
        const auto& rows = Form().EmuListbox.Rows();
        const auto row = static_cast<int>(std::find(rows.begin(), rows.end(), name) - rows.begin());
        Form().EmuListbox.SetListIndex(row);
        Call("SelectEmulator", false);
        Do("select", "Form1.WIthoutDoubles", 0);
        Do("click", "Form1.AddToFavorit_Global");
        // Read back by another start, under another emulator, and written once more.
        tree.WriteProgramProfile({{"LastEmulator", "Alpha"}});
        Start();
        Do("select", "Form1.WIthoutDoubles", 0);
        Do("click", "Form1.AddToFavorit_Global");
        Start();
        Do("focus", "Form1.EmuListbox");
        Do("click", "Form1.Label1");
        Do("dblclick", "Form1.FavoritenListeGlobal", 0);
        EXPECT_EQ(Form().EmuListbox.SelectedText(), name);
        EXPECT_EQ(Form().CurrentEmuIndex, row);
        EXPECT_EQ(Do("runs")["value"].size(), 1U) << name;
        std::filesystem::remove(tree.Path("Config/Favoriten_Global.ini"));
        tree.WriteProgramProfile({{"LastEmulator", "Alpha"}});
    }
}

TEST_F(Faults, NameOf255BytesIsStarted) {
    const std::string name = std::string(251, 'n') + ".adf";
    tree.Write("Roms/Alpha/" + name, "x");
    Start();
    Scan();
    EXPECT_EQ(Form().UAE_Short.List(3), std::string(251, 'n'));
    Do("click", "Form1.Label3");
    Do("dblclick", "Form1.UAE_Short", 3);
    EXPECT_THAT(tree.Read("Config/Alpha/Kivu_tmp.bat"), HasSubstr(name));
}

TEST_F(AllSearchScenario, AnEmulatorWithAColonInItsNameCannotBeStarted) {
    tree.AddEmulator("C: Sixty Four");
    tree.WriteCache("C: Sixty Four", {{"/Roms/C/Ant (1984)(M).d64", "Ant (1984)(M)"}});
    Start();
    SearchAll("1984");
    ASSERT_EQ(Get("GlobalSearchList.ListCount"), 1);
    Do("key", "Form1.GlobalSearchList", "Enter");
    EXPECT_EQ(Get("CurrentEmuIndex"), 0);
    EXPECT_TRUE(Visible("GlobalSearchList"));
}

}  // namespace
}  // namespace kivu::scenarios
