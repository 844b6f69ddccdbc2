#include "scenarios/scenario.h"

namespace kivu::scenarios {
namespace {

using ::testing::HasSubstr;

class Hints : public LoadedScenario {};

class FirstSteps : public Scenario {};

TEST_F(FirstSteps, StandBelowTheTitleOfAFirstStart) {
    Start();
    EXPECT_TRUE(Visible("LoadingBtn"));
    EXPECT_EQ(Text("LoadingBtn.Caption"), "Kivu 1.4b");
    // The way to the first emulator, by buttons that can be pressed.
    EXPECT_EQ(Text("LoadingBtn.Hint"),
              "No emulator yet.\rPress \"Optionen..\" at the bottom right\r"
              "and there \"New emulator..\".");
    EXPECT_TRUE(Visible("SettingsBtn"));
    EXPECT_EQ(Get("SettingsBtn.Enabled"), true);
    // No box to search in, and nothing of it.
    for (const char* name : {"SearchDblsTxt", "SuchErg", "SearchAllBtn"})
        EXPECT_FALSE(Visible(name)) << name;
}

TEST_F(FirstSteps, HaveTheFocusOnWhatTheyTellToPress) {
    Start();
    EXPECT_EQ(Get("Focus"), "Form1.SettingsBtn");
    EXPECT_TRUE(Visible("LoadingBtn"));
    EXPECT_FALSE(Visible("EmulatorLongListbox"));
    // With emulators to choose from the drop-down is the first that the Tab key comes to.
    tree.AddEmulator("Alpha");
    Start();
    EXPECT_EQ(Get("Focus"), "");
    Do("key", "Form1", "Tab");
    EXPECT_EQ(Get("Focus"), "Form1.EmuListbox");
}

TEST_F(FirstSteps, AreToChooseAnEmulatorWhereThereAreSome) {
    options.language = "German";
    tree.AddEmulator("Alpha");
    Start();
    EXPECT_EQ(Text("LoadingBtn.Hint"), "Wähle oben links einen Emulator.");
    Do("focus", "Form1.EmuListbox");
    Do("dblclick", "Form1.EmulatorLongListbox", 0);
    EXPECT_EQ(Text("LoadingBtn.Hint"), "");
    EXPECT_EQ(Text("WIthoutDoubles.Hint"),
              "Noch keine Spiele.\r\"Optionen..\" fragt nach dem Emulator\r"
              "und dem Verzeichnis der Spiele.");
}

TEST_F(FirstSteps, SayThatNothingCanBeStored) {
    for (const char* language : {"English", "German"}) {
        options.language = language;
        prepare = [](driver::Session& run) { run.disk.MakeReadOnly(); };
        Start();
        const std::string hint = Text("LoadingBtn.Hint");
        EXPECT_THAT(hint, HasSubstr(Text("ConfigPath")));
        EXPECT_THAT(hint,
                    HasSubstr(language == std::string("English")
                                  ? "cannot be written to: nothing will be stored."
                                  : "kann nicht geschrieben werden: nichts wird gespeichert."));
        EXPECT_THAT(hint, HasSubstr("--data"));
        EXPECT_EQ(Text("EmulatorLongListbox.Hint"), hint);
    }
}

TEST_F(FirstSteps, SayItBesideTheEmulatorsToo) {
    tree.AddEmulator("Alpha");
    prepare = [](driver::Session& run) { run.disk.MakeReadOnly(); };
    Start();
    EXPECT_THAT(Text("LoadingBtn.Hint"), HasSubstr("Choose an emulator at the top left.\r\rThe"));
    EXPECT_THAT(Text("LoadingBtn.Hint"), HasSubstr("nothing will be stored"));
}

TEST_F(FirstSteps, LeadToTheDemoWhereItIsInstalled) {
    prepare = [](driver::Session& run) { run.Host().starter.path["kivu-demo"] = "/usr/bin/x"; };
    Start();
    EXPECT_EQ(Text("LoadingBtn.Hint"),
              "No emulator yet.\rPress \"Optionen..\" at the bottom right\r"
              "and there \"New emulator..\".\r\r"
              "To look around first: \"Kivu Demo\"\rin the menu of applications.");
    EXPECT_EQ(Text("EmulatorLongListbox.Hint"), Text("LoadingBtn.Hint"));
    options.language = "German";
    Start();
    EXPECT_THAT(Text("LoadingBtn.Hint"),
                HasSubstr("Zum Ausprobieren: \"Kivu-Demo\" im Menü\rder Anwendungen."));
    // Who has emulators has no need of it, and where nothing is stored it cannot be made.
    tree.AddEmulator("Alpha");
    Start();
    EXPECT_EQ(Text("LoadingBtn.Hint"), "Wähle oben links einen Emulator.");
    std::filesystem::remove_all(tree.Path("Config/Alpha"));
    prepare = [](driver::Session& run) {
        run.Host().starter.path["kivu-demo"] = "/usr/bin/x";
        run.disk.MakeReadOnly();
    };
    Start();
    EXPECT_THAT(Text("LoadingBtn.Hint"), ::testing::Not(HasSubstr("Demo")));
}

TEST_F(FirstSteps, LookingLeavesNothingBehind) {
    Start();
    for (const auto& entry : std::filesystem::directory_iterator(tree.Path("Config")))
        EXPECT_NE(entry.path().extension(), ".tmp") << entry.path();
}

TEST_F(Hints, TheTitlesLineSaysThatNothingCanBeStored) {
    for (const char* language : {"English", "German"}) {
        const bool english = language == std::string("English");
        options.language = language;
        prepare = [](driver::Session& run) { run.disk.MakeReadOnly(); };
        Start();
        ASSERT_EQ(Get("CurrentEmuIndex"), 0);
        const std::string words = (english ? " – Nothing will be stored, not writable: "
                                           : " – Nichts wird gespeichert, nicht beschreibbar: ") +
                                  Text("ConfigPath");
        EXPECT_EQ(Text("MyCaptionLabel.Caption"), "Kivu 1.4b");
        EXPECT_EQ(Text("MyCaptionLabel.ShownText"), "Kivu 1.4b" + words);
        EXPECT_THAT(Text("MyCaptionLabel.ToolTipText"), HasSubstr(Text("ConfigPath")));
        EXPECT_THAT(Text("MyCaptionLabel.ToolTipText"), HasSubstr("--data"));
        // Nobody has to answer, and what the line says of the moment stands in front.
        EXPECT_EQ(Do("boxes")["value"], Json::array());
        Do("set", "Form1.MyCaptionLabel.Caption", "Running: alpha");
        EXPECT_EQ(Text("MyCaptionLabel.ShownText"), "Running: alpha" + words);
        // With another emulator too.
        Do("focus", "Form1.EmuListbox");
        Do("dblclick", "Form1.EmulatorLongListbox", 1);
        ASSERT_EQ(Get("CurrentEmuIndex"), 1);
        EXPECT_EQ(Text("MyCaptionLabel.ShownText"), "Kivu 1.4b" + words);
    }
}

TEST_F(Hints, TheTitlesLineSaysItWithTheLastEmulatorGoneToo) {
    tree.WriteProgramProfile({{"LastEmulator", "Gone"}});
    prepare = [](driver::Session& run) { run.disk.FillDisk(); };
    Start();
    ASSERT_EQ(Get("CurrentEmuIndex"), -1);
    EXPECT_THAT(Text("MyCaptionLabel.ShownText"), HasSubstr("Nothing will be stored"));
}

TEST_F(Hints, TheTitlesLineIsPlainWhereAllCanBeStored) {
    Start();
    EXPECT_EQ(Text("MyCaptionLabel.ShownText"), "");
    EXPECT_EQ(Text("MyCaptionLabel.ToolTipText"), "");
    for (const auto& entry : std::filesystem::directory_iterator(tree.Path("Config")))
        EXPECT_NE(entry.path().extension(), ".tmp") << entry.path();
}

TEST_F(Hints, EmptyListsTellWhatIsTheMatter) {
    Start();
    EXPECT_THAT(Text("FavoritenListe.Hint"), HasSubstr("No favorites yet"));
    EXPECT_THAT(Text("UAE_Short.Hint"), HasSubstr(tree.Path("Roms/Alpha")));
    EXPECT_EQ(Get("FavoritenListe.ListCount"), 0);
    Do("focus", "Form1.EmuListbox");
    Do("dblclick", "Form1.EmulatorLongListbox", 1);
    EXPECT_THAT(Text("UAE_Short.Hint"), HasSubstr(tree.Path("Roms/Beta")));
}

TEST_F(Hints, SearchWithoutHitsNamesItsWords) {
    Start();
    Do("type", "Form1.SearchDblsTxt", "q");
    EXPECT_THAT(Text("SuchErgList.Hint"), HasSubstr("two or more characters"));
    Do("type", "Form1.SearchDblsTxt", "qx");
    EXPECT_EQ(Get("SuchErgList.ListCount"), 0);
    EXPECT_THAT(Text("SuchErgList.Hint"), HasSubstr("No game with \"qqx\""));
    Do("key", "Form1.SearchDblsTxt", "Ctrl+Enter");
    EXPECT_TRUE(Visible("GlobalSearchList"));
    EXPECT_EQ(Get("GlobalSearchList.ListCount"), 0);
    EXPECT_THAT(Text("GlobalSearchList.Hint"), HasSubstr("No game with \"qqx\""));
    EXPECT_THAT(Text("GlobalSearchList.Hint"), HasSubstr("all emulators"));
}

TEST_F(Hints, DropDownHasItsColoursAgainOverTheGlobalFavourites) {
    Start();
    const std::string back = Text("EmuListbox.BackColor");
    Do("focus", "Form1.EmuListbox");
    EXPECT_EQ(Text("EmuListbox.BackColor"), "#000000");
    Do("click", "Form1.Label1");
    ASSERT_TRUE(Visible("FavoritenListeGlobal"));
    EXPECT_EQ(Text("EmuListbox.BackColor"), back);
    Do("click", "Form1.Label2");
    EXPECT_EQ(Text("EmuListbox.BackColor"), back);
}

TEST_F(Hints, MagnifierAndAllGoWithTheSearchBox) {
    Start();
    for (const char* name : {"SearchDblsTxt", "SuchErg", "SearchAllBtn"})
        EXPECT_TRUE(Visible(name)) << name;
    Call("HideAll", false);
    for (const char* name : {"SearchDblsTxt", "SuchErg", "SearchAllBtn"})
        EXPECT_FALSE(Visible(name)) << name;
    Do("focus", "Form1.EmuListbox");
    for (const char* name : {"SearchDblsTxt", "SuchErg", "SearchAllBtn"})
        EXPECT_TRUE(Visible(name)) << name;
}

}  // namespace
}  // namespace kivu::scenarios
