#include "scenarios/scenario.h"

namespace kivu::scenarios {
namespace {

using ::testing::HasSubstr;

class Rescan : public LoadedScenario {
 protected:
    void Scan() { Do("click", "Form1.LoadBtn"); }
    int CacheLines(const char* emulator = "Alpha") {
        const std::string cache = tree.Read(std::string("Config/") + emulator + "/Kivu_Cache.txt");
        return static_cast<int>(std::count(cache.begin(), cache.end(), '\n'));
    }
};

TEST_F(Rescan, FindsWhatIsThereAndWritesTheCacheAndTheCount) {
    tree.Write("Roms/Alpha/Sub/Dog (1993)(Maker).adf");
    Start();
    Scan();
    EXPECT_EQ(Get("UAE_Short.List"), Json({"Ant (1990)(Maker)", "Ant (1990)(Maker)",
                                           "Bee (1991)(Maker)", "Dog (1993)(Maker)"}));
    EXPECT_EQ(CacheLines(), 8);
    EXPECT_EQ(tree.Stored("Config/Alpha/Kivu.ini", "RomCount"), "4");
    EXPECT_EQ(tree.Stored("Config/Alpha/Kivu.ini", "Dir_Parameter"), "*.*");
    EXPECT_THAT(tree.Read("Config/Alpha/Kivu_Cache.txt"),
                HasSubstr(testing::HostPath("/Roms/Alpha/Sub/Dog (1993)(Maker).adf") +
                          "\r\nDog (1993)(Maker)\r\n"));
    EXPECT_TRUE(Visible("EmuListbox"));
    EXPECT_EQ(Get("LoadBtn.Enabled"), true);
    EXPECT_FALSE(Visible("LoadingBtn"));
    EXPECT_EQ(Get("Label3.Caption"), " Complete List (4) ");
}

TEST_F(Rescan, SimpleListKeepsItsRowsUntilTheEmulatorIsSelectedAnew) {
    tree.Write("Roms/Alpha/Dog (1993)(Maker).adf");
    Start();
    Scan();
    EXPECT_EQ(Get("WIthoutDoubles.ListCount"), 2);
    Do("focus", "Form1.EmuListbox");
    Do("dblclick", "Form1.EmulatorLongListbox", 0);
    EXPECT_EQ(Get("WIthoutDoubles.ListCount"), 2);
    Do("focus", "Form1.EmuListbox");
    Do("dblclick", "Form1.EmulatorLongListbox", 1);
    Do("focus", "Form1.EmuListbox");
    Do("dblclick", "Form1.EmulatorLongListbox", 0);
    EXPECT_EQ(Get("WIthoutDoubles.ListCount"), 3);
}

TEST_F(Rescan, PatternsAreSplitAtCommasAndTrimmed) {
    tree.Write("Roms/Alpha/Disk.zip");
    tree.Write("Roms/Alpha/Read.txt");
    tree.Write(
        "Config/Alpha/Kivu.ini",
        ProgramDirectory::Profile({{"RomPath", "/Roms/Alpha"}, {"Dir_Parameter", "*.ADF, *.zip"}}));
    Start();
    Scan();
    EXPECT_EQ(Get("UAE_FULL.ListCount"), 4);
    EXPECT_EQ(CacheLines(), 8);
}

TEST_F(Rescan, FileFoundByTwoPatternsStandsTwice) {
    tree.Write(
        "Config/Alpha/Kivu.ini",
        ProgramDirectory::Profile({{"RomPath", "/Roms/Alpha"}, {"Dir_Parameter", "*.adf,B*,"}}));
    Start();
    Scan();
    EXPECT_EQ(Get("UAE_FULL.ListCount"), 4);
    EXPECT_EQ(Get("UAE_FULL.List")[2], Get("UAE_FULL.List")[3]);
}

TEST_F(Rescan, AliasesGoIntoTheListAndTheCacheOneRowARule) {
    tree.Write("Config/Alpha/ALIASLIST.txt",
               "ant ; Formica\r\nnothing;here\r\n\r\nno rule\r\nbee;Apis\r\n");
    Start();
    Scan();
    EXPECT_EQ(Get("UAE_Short.List"), Json({"Formica", "Ant (1990)(Maker)", "Apis"}));
    EXPECT_THAT(tree.Read("Config/Alpha/Kivu_Cache.txt"), HasSubstr("\r\nApis\r\n"));
}

TEST_F(Rescan, EmptyRomDirectoryGivesAnEmptyCache) {
    tree.MakeDirectory("Roms/None");
    tree.Write("Config/Alpha/Kivu.ini", ProgramDirectory::Profile({{"RomPath", "/Roms/None"}}));
    Start();
    Scan();
    EXPECT_EQ(Get("UAE_FULL.ListCount"), 0);
    EXPECT_EQ(tree.Read("Config/Alpha/Kivu_Cache.txt"), "");
    EXPECT_EQ(tree.Stored("Config/Alpha/Kivu.ini", "RomCount"), "0");
}

TEST_F(Rescan, DisappearedDirectoryStillGivesTheListFromTheCache) {
    std::filesystem::remove_all(tree.Path("Roms"));
    Start();
    EXPECT_EQ(Get("UAE_Short.ListCount"), 3);
}

TEST_F(Rescan, MissingCacheGivesEmptyListsAndNoScan) {
    std::filesystem::remove(tree.Path("Config/Alpha/Kivu_Cache.txt"));
    Start();
    EXPECT_EQ(Get("UAE_Short.ListCount"), 0);
    EXPECT_EQ(Get("WIthoutDoubles.ListCount"), 0);
    EXPECT_FALSE(tree.Exists("Config/Alpha/Kivu_Cache.txt"));
    EXPECT_EQ(Do("boxes")["value"], Json::array());
}

TEST_F(Rescan, CacheMovesWithTheProgram) {
    Start();
    Scan();
    const ProgramDirectory other;
    std::filesystem::remove(other.Root());
    std::filesystem::copy(tree.Root(), other.Root(), std::filesystem::copy_options::recursive);
    driver::Options moved;
    moved.programDirectory = other.Root();
    driver::Session run(disk, moved);
    driver::Interpreter commands(run);
    commands.Execute(Json::array({"start"}));
    EXPECT_EQ(run.MainWindow().UAE_FULL.List(2), other.Path("Roms/Alpha/Bee (1991)(Maker).adf"));
}

TEST_F(Rescan, CacheFromAnotherOrderKeepsNamesWithTheirPaths) {
    tree.WriteCache("Alpha", {{"/Roms/c.adf", "C"}, {"/Roms/a.adf", "A"}, {"/Roms/B.adf", "B"}});
    Start();
    EXPECT_EQ(Get("UAE_Short.List"), Json({"A", "B", "C"}));
    EXPECT_EQ(Get("UAE_FULL.List")[1], tree.Path("Roms/B.adf"));
}

TEST_F(Rescan, CacheWithWindowsPathsAndCodePageReadsRight) {
    tree.Write("Config/Alpha/Kivu_Cache.txt", "\\Roms\\\xc4rger.adf\r\n\xc4rger\r\n");
    Start();
    EXPECT_EQ(Get("UAE_Short.List"), Json({"Ärger"}));
    EXPECT_EQ(Get("UAE_FULL.List"), Json::array({tree.Path("Roms/Ärger.adf")}));
}

TEST_F(Rescan, OddLastLineGivesAPathWithoutAName) {
    tree.Write("Config/Alpha/Kivu_Cache.txt", "/Roms/a.adf\r\nA\r\n/Roms/b.adf\r\n");
    Start();
    EXPECT_EQ(Get("UAE_FULL.ListCount"), 2);
    EXPECT_EQ(Get("UAE_Short.ListCount"), 1);
    EXPECT_EQ(Get("WIthoutDoubles.List"), Json({"A"}));
}

TEST_F(Rescan, EqualNamesGiveASimpleListOfOneRow) {
    tree.WriteCache("Alpha", {{"/a", "Same"}, {"/b", "Same"}, {"/c", "Same"}, {"/d", "same"}});
    Start();
    EXPECT_EQ(Get("WIthoutDoubles.List"), Json({"Same", "same"}));
}

TEST_F(Rescan, ScanOfAllEmulatorsCollectsTheFormerCaches) {
    tree.AddEmulator("-ALL-");
    Start();
    tree.Write("Roms/Beta/Dog (1993)(Maker).adf");
    Call("ReloadEmulatorsAll");
    const std::string global = tree.Read("Config/Kivu_Global.txt");
    EXPECT_THAT(global, HasSubstr("Cat (1992)(Maker)\r\n"));
    EXPECT_THAT(global, ::testing::Not(HasSubstr("Dog (1993)(Maker)")));
    EXPECT_EQ(CacheLines("Beta"), 4);
    EXPECT_FALSE(tree.Exists("Config/-ALL-/Kivu_Cache.txt"));
    EXPECT_EQ(Get("EmuListbox.ListIndex"), Get("CurrentEmuIndex"));
}

TEST_F(Rescan, ReservedNameInTheLastRowIsNotLeftInTheDropDown) {
    std::filesystem::remove_all(tree.Path("Config/Beta"));
    std::filesystem::rename(tree.Path("Config/Alpha"), tree.Path("Config/!Alpha"));
    tree.AddEmulator("-ALL-");
    tree.WriteProgramProfile({{"LastEmulator", "!Alpha"}});
    Start();
    const int reserved = Get("EmuListbox.List")[1] == "-ALL-" ? 1 : 0;
    Call("ReloadEmulatorsAll");
    EXPECT_EQ(Get("CurrentEmuIndex"), 1 - reserved);
    EXPECT_EQ(Get("EmuListbox.ListIndex"), 1 - reserved);
    EXPECT_EQ(Get("ListMode"), "3");
}

TEST_F(Rescan, RescanOverTheHitsOfAllEmulatorsTakesTheirCaptionAway) {
    Start();
    Do("set", "Form1.SearchDblsTxt.Text", "maker");
    Do("key", "Form1.SearchDblsTxt", "Ctrl+Enter");
    ASSERT_TRUE(Visible("GlobalSearchList"));
    Scan();
    EXPECT_FALSE(Visible("GlobalSearchList"));
    EXPECT_TRUE(Visible("UAE_Short"));
    EXPECT_EQ(Get("Label4.Caption"), " Search results (0) ");
}

TEST_F(Rescan, SwitchThatCollectsAppendsTheNewCacheUnderACaptionOfItsOwn) {
    struct Captions : forms::Observer {
        void Changed(forms::Control& control, forms::Aspect aspect) override {
            const auto* label = dynamic_cast<forms::Label*>(&control);
            if (!label || label->Name() != "Label1" || aspect != forms::Aspect::text) return;
            seen.push_back(label->Caption());
        }
        std::vector<std::string> seen;
    } captions;
    Start();
    tree.Write("Config/Kivu_Global.txt", "before\r\n");
    Do("set", "Form1.EmuListbox.ListIndex", 1);
    Form().SetObserver(&captions);
    Call("SelectEmulator", true);
    Form().SetObserver(nullptr);
    EXPECT_THAT(captions.seen, ::testing::Contains("Global List: Beta"));
    EXPECT_EQ(Get("Label1.Caption"), " Favorites (0) ");
    EXPECT_EQ(tree.Read("Config/Kivu_Global.txt"),
              "before\r\n" + tree.Read("Config/Beta/Kivu_Cache.txt"));
    // The same emulator again loads and collects nothing.
    Call("SelectEmulator", true);
    EXPECT_EQ(tree.Read("Config/Kivu_Global.txt"),
              "before\r\n" + tree.Read("Config/Beta/Kivu_Cache.txt"));
}

TEST_F(Rescan, SecondRescanDuringTheFirstDoesNothing) {
    Start();
    int nested = 0;
    Host().events.onEvents = [&] {
        ++nested;
        Form().LoadBtn.onClick();
        Form().EmuListbox.onDblClick();
    };
    Scan();
    EXPECT_GT(nested, 0);
    EXPECT_EQ(Get("UAE_FULL.ListCount"), 3);
    EXPECT_EQ(CacheLines(), 6);
}

TEST_F(Rescan, TreeOfMoreThanTheLimitStopsThereWithABeep) {
    for (int i = 0; i < 33000; ++i) {
        if (i % 1100 == 0) tree.MakeDirectory("Roms/Many/" + std::to_string(i / 1100));
        std::ofstream(
            tree.Path("Roms/Many/" + std::to_string(i / 1100) + "/G" + std::to_string(i) + ".adf"));
    }
    tree.Write("Config/Alpha/Kivu.ini", ProgramDirectory::Profile({{"RomPath", "/Roms/Many"}}));
    Start();
    Scan();
    EXPECT_EQ(Get("UAE_FULL.ListCount"), 31999);
    EXPECT_EQ(Do("beeps")["value"], 1);
    EXPECT_EQ(tree.Stored("Config/Alpha/Kivu.ini", "RomCount"), "31999");
    EXPECT_EQ(CacheLines(), 2 * 31999);
    EXPECT_EQ(Call("ScanFiles", tree.Path("Roms/Many"), "*.adf", "", "LoadingBtn"), 31999);
    EXPECT_EQ(Get("LoadingBtn.Caption"), "Abbruch!");
}

TEST_F(Rescan, BrokenScanLeavesTheResultHidden) {
    Start();
    Host().clock.perLook = std::chrono::milliseconds(50);
    Host().events.onEvents = [&] { Call("BreakScan"); };
    tree.Write("Roms/Alpha/1/x.adf");
    tree.Write("Roms/Alpha/2/y.adf");
    Call("ScanFiles", tree.Path("Roms/Alpha"), "*.nothing", "");
    EXPECT_FALSE(Visible("ResultList"));
}

TEST_F(Rescan, QuotedPathWithBlanksScansLikeTheBareOne) {
    Start();
    EXPECT_EQ(Call("ScanFiles", "  \"" + tree.Path("Roms/Alpha") + "\" ", "*.adf"), 3);
    EXPECT_TRUE(Visible("ResultList"));
    EXPECT_EQ(Call("ScanDirs", tree.Path("Roms")), 2);
    EXPECT_EQ(Call("Result_list"), Json({tree.Path("Roms/Alpha/"), tree.Path("Roms/Beta/")}));
}

}  // namespace
}  // namespace kivu::scenarios
