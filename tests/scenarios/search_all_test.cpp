#include "scenarios/all_search.h"
#include "wiring/routines.h"

namespace kivu::scenarios {
namespace {

TEST_F(AllSearchScenario, FindsInTheCachesOfAllEmulators) {
    Start();
    SearchAll("ANT");
    EXPECT_EQ(Hits(),
              Json({Padded("Alpha:  Ant (1990)", 10, 21), Padded("Beta:  Giant (1993)", 12, 21)}));
    EXPECT_EQ(Get("Label4.Caption"), " Globale Suche: 2" + backing);
    EXPECT_TRUE(Visible("GlobalSearchList"));
    EXPECT_TRUE(Visible("Label4"));
    EXPECT_TRUE(Visible("SearchDblsTxt"));
    EXPECT_FALSE(Visible("SuchErgList"));
    EXPECT_FALSE(Visible("LoadingBtn"));
    EXPECT_EQ(Get("SearchDblsTxt.Enabled"), true);
    EXPECT_EQ(Get("SearchDblsTxt.Text"), "ANT");
    EXPECT_EQ(Get("SearchAllBtn.BackColor"), "#C0FFC0");
    EXPECT_EQ(Get("GlobalSearchList.ListIndex"), 0);
    EXPECT_EQ(Get("Focus"), "Form1.GlobalSearchList");
    EXPECT_EQ(Get("ListMode"), "4");
    EXPECT_EQ(Get("Label4.Left"), Form().EmuListbox.Right() + 200);
    EXPECT_EQ(Get("EmuListbox.Width"), static_cast<int>(220 * Form().EmuListbox.FontSize()));
    EXPECT_EQ(Get("GlobalSearchList.FontSize"), Get("EmuListbox.FontSize"));
    EXPECT_EQ(Get("GlobalSearchList.Top"), Get("SuchErgList.Top"));
    EXPECT_EQ(Get("Label4.BackColor"), Get("GlobalSearchList.BackColor"));
}

TEST_F(AllSearchScenario, TheButtonSearchesAllToo) {
    Start();
    Do("set", "Form1.SearchDblsTxt.Text", "199");
    Do("click", "Form1.SearchAllBtn");
    EXPECT_EQ(Get("GlobalSearchList.ListCount"), 4);
    Do("key", "Form1.SearchDblsTxt", "F3");
    EXPECT_EQ(Get("GlobalSearchList.ListCount"), 4);
}

TEST_F(AllSearchScenario, NamesArePaddedToTheNextStep) {
    EXPECT_EQ(library::GlobalSearchRow("E", std::string(19, 'x')).size(), 4U + 21);
    EXPECT_EQ(library::GlobalSearchRow("E", std::string(20, 'x')).size(), 4U + 41);
    EXPECT_EQ(library::GlobalSearchRow("E", std::string(39, 'x')).size(), 4U + 41);
    EXPECT_EQ(library::GlobalSearchRow("E", std::string(40, 'x')).size(), 4U + 61);
    EXPECT_EQ(library::GlobalSearchRow("E", std::string(59, 'x')).size(), 4U + 61);
    EXPECT_EQ(library::GlobalSearchRow("E", std::string(60, 'x')), "E:  " + std::string(60, 'x'));
    EXPECT_EQ(library::GlobalSearchRow("E", "ä").size(), 4U + 22);
    EXPECT_EQ(library::GlobalSearchRow("E", ""), "E:  " + std::string(21, ' '));
}

TEST_F(AllSearchScenario, ANameWithoutABracketGivesTwoRows) {
    tree.WriteCache("Gamma", {{"/Roms/G/Turrican.adf", "Turrican"}});
    Start();
    SearchAll("turr");
    EXPECT_EQ(Hits(), Json({Padded("Gamma:  Turr", 4, 21), Padded("Gamma:  Turrican", 8, 21)}));
}

TEST_F(AllSearchScenario, TheLastHitOfASearchIsKnownToTheNext) {
    tree.WriteCache("Gamma", {{"/Roms/G/Giant (1993)(Else).d64", "Giant (1993)(Else)"}});
    Start();
    SearchAll("giant (1993");
    EXPECT_EQ(Get("GlobalSearchList.ListCount"), 1);
    SearchAll("giant (1993");
    EXPECT_EQ(Get("GlobalSearchList.ListCount"), 0);
    EXPECT_EQ(Get("Label4.Caption"), " Globale Suche: 0" + backing);
    SearchAll("bee");
    EXPECT_EQ(Get("GlobalSearchList.ListCount"), 1);
    SearchAll("giant (1993");
    EXPECT_EQ(Get("GlobalSearchList.ListCount"), 1);
}

TEST_F(AllSearchScenario, WordsThatOnlyThePathHasFallWithTheBoxsText) {
    Start();
    // The hits are there, and then the box's own text narrows them by what their rows show.
    SearchAll("roms cat");
    EXPECT_EQ(Get("GlobalSearchList.ListCount"), 0);
    Call("GlobalSearch", "roms cat");
    EXPECT_EQ(Get("GlobalSearchList.ListCount"), 0);
}

TEST_F(AllSearchScenario, OneCharacterClearsAndScansNothing) {
    Start();
    SearchAll("ant");
    Do("click", "Form1.Label2");
    Do("set", "Form1.SearchDblsTxt.Text", "a");
    files.OnlyFor("_Cache");
    files.FailFrom(testing::FaultyFileSystem::Step::Read, 1, std::errc::io_error);
    Call("SearchAllBtn_Click");
    EXPECT_EQ(files.Failures(), 0);
    EXPECT_EQ(Get("GlobalSearchList.ListCount"), 0);
    EXPECT_EQ(Get("SuchErgList.ListCount"), 0);
    EXPECT_FALSE(Visible("GlobalSearchList"));
    EXPECT_TRUE(Visible("SearchDblsTxt"));
    EXPECT_FALSE(Visible("LoadingBtn"));
}

TEST_F(AllSearchScenario, CtrlEnterOverAnEmptyBoxLeavesTheBoxUsable) {
    Start();
    for (const char* text : {"", "a"}) {
        SearchAll(text);
        EXPECT_TRUE(Visible("SearchDblsTxt"));
        EXPECT_EQ(Get("Focus"), "Form1.SearchDblsTxt");
        EXPECT_FALSE(Visible("LoadingBtn"));
        EXPECT_TRUE(Visible("SuchErgList"));
        EXPECT_EQ(Get("Label4.Caption"), " Search results (0) ");
    }
    Do("set", "Form1.SearchDblsTxt.Text", "ant");
    EXPECT_EQ(Get("SuchErgList.ListCount"), 1);
}

TEST_F(AllSearchScenario, AnEmulatorWithoutANameIsPassedOver) {
    tree.Write("Config/Kivu_Cache.txt", "/Roms/Ant (1977)(M).adf\r\nAnt (1977)(M)\r\n");
    Start();
    Form().EmuListbox.AddItem("");
    Form().EmuListbox.AddItem("Nothing there");
    SearchAll("1977");
    EXPECT_EQ(Get("GlobalSearchList.ListCount"), 0);
}

TEST_F(AllSearchScenario, EachEmulatorBeginsWithTheCountersSoFar) {
    Start();
    std::vector<std::string> captions;
    Host().clock.perLook = std::chrono::milliseconds(40);
    Host().events.onEvents = [&] {
        if (Form().SearchDblsTxt.Enabled()) return;
        captions.push_back(Form().Label4.Caption());
        EXPECT_EQ(Form().Label4.Left(), Form().EmuListbox.Right() + 200);
        EXPECT_GE(Form().Label4.Right(), Form().Label3.Right());
    };
    SearchAll("ant");
    Host().events.onEvents = {};
    // Three games are six lines.
    EXPECT_EQ(captions, (std::vector<std::string>{"Alpha: (0/0)", "Beta: (1/6)"}));
}

TEST_F(AllSearchScenario, NothingToSearchForLeavesTheHitsAlone) {
    Start();
    SearchAll("ant");
    Do("set", "Form1.SearchAllBtn.BackColor", "#FFFFFF");
    Call("GlobalSearch", "  ");
    EXPECT_EQ(Get("SearchAllBtn.BackColor"), "#C0FFC0");
    EXPECT_EQ(Get("GlobalSearchList.ListCount"), 2);
    EXPECT_EQ(Get("SearchDblsTxt.Text"), "ant");
    EXPECT_EQ(Get("SearchDblsTxt.Enabled"), true);
}

TEST_F(AllSearchScenario, AnIdleTextSearchesNothingAndLeavesAListInFront) {
    Start();
    Do("set", "Form1.SearchDblsTxt.Text", "Suche.");
    ASSERT_EQ(Get("SearchAllBtn.Enabled"), true);
    Do("set", "Form1.SearchDblsTxt.Text", "Suche..");
    Do("click", "Form1.SearchAllBtn");
    EXPECT_FALSE(Visible("GlobalSearchList"));
    EXPECT_TRUE(Visible("SuchErgList"));
    EXPECT_TRUE(Visible("SearchDblsTxt"));
    EXPECT_TRUE(Visible("Label1"));
    EXPECT_FALSE(Visible("LoadingBtn"));
    EXPECT_EQ(Get("Label4.Caption").get<std::string>().find(backing), std::string::npos);
}

TEST_F(AllSearchScenario, TheCaptionCoversTheTabThatTheChoiceHasBroughtToTheFront) {
    Start();
    Do("focus", "Form1.EmuListbox");
    Do("dblclick", "Form1.EmulatorLongListbox", 1);
    SearchAll("ant");
    const auto& order = Form().Children();
    const auto place = [&](const forms::Control& control) {
        return std::find(order.begin(), order.end(), &control);
    };
    EXPECT_LT(place(Form().Label1), place(Form().Label4));
    EXPECT_LT(place(Form().Label4), place(Form().SettingsSubPicture));
    EXPECT_LT(place(Form().TopRightPic), place(Form().Label4));
}

TEST_F(AllSearchScenario, HostileCachesGiveWhatTheyHold) {
    const std::string nul("\0", 1);
    tree.Write("Config/Gamma/Kivu_Cache.txt",
               "/Roms/one ant (1)(x)\r\none ant (1)(x)\r\n" + nul + "\r\n" +
                   std::string(300000, 'a') +
                   "nt\r\n/Roms/J\xE4ger ant (2)(x)\nJ\xE4ger ant (2)(x)\n" + nul +
                   "three ant (3)" + nul + "\r\ncut ant (4.adf");
    Start();
    SearchAll("ant");
    const Json hits = Hits();
    EXPECT_EQ(hits.size(), 2U + 4);
    EXPECT_NE(hits.dump().find("Gamma:  Jäger ant (2) "), std::string::npos);
    EXPECT_NE(hits.dump().find("Gamma:  one ant (1) "), std::string::npos);
    SearchAll("JÄGER");
    EXPECT_EQ(Get("GlobalSearchList.ListCount"), 1);
}

TEST_F(AllSearchScenario, CachesThatAreNoFilesAreSkipped) {
    tree.MakeDirectory("Config/Gamma/Kivu_Cache.txt");
    Start();
    std::filesystem::remove_all(tree.Path("Config/Beta"));
    SearchAll("ant");
    EXPECT_EQ(Get("GlobalSearchList.ListCount"), 1);
}

TEST_F(AllSearchScenario, AnUnreadableCacheIsSkipped) {
    Start();
    files.OnlyFor(testing::HostPath("Alpha/Kivu_Cache"));
    files.FailFrom(testing::FaultyFileSystem::Step::Read, 1, std::errc::io_error);
    SearchAll("ant");
    EXPECT_EQ(Get("GlobalSearchList.ListCount"), 1);
}

}  // namespace
}  // namespace kivu::scenarios
