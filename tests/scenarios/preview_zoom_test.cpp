// A click shows the picture at its natural size, over the lists; whatever comes puts it back.

#include <functional>

#include "scenarios/preview_collection.h"

namespace kivu::scenarios {
namespace {

class PreviewZoom : public PreviewScenario {
 protected:
    PreviewZoom() { Paint("Config/Alpha/Pictures/Ant (1990).bmp", 400, 300); }
    std::string BeePath() { return tree.Path("Roms/Alpha/Bee (1991)(Maker).adf"); }
};

TEST_F(PreviewZoom, ClickShowsTheNaturalSizeAndAnotherOneTheOld) {
    Start();
    const int left = Number("VorschauBild.Left"), width = Number("VorschauBild.Width");
    const int frame = Number("SettingsFrame.Top");
    Zoom();
    EXPECT_FALSE(Visible("GamePictureVis"));
    EXPECT_EQ(Number("VorschauBild.Width"), 6000);
    EXPECT_EQ(Number("VorschauBild.Height"), 4500);
    EXPECT_EQ(Number("VorschauBild.Left"), Number("Width") - 6300);
    EXPECT_EQ(Number("SettingsFrame.Top"), frame);
    Do("click", "Form1.GamePicture");
    EXPECT_EQ(Number("VorschauBild.Left"), left);
    EXPECT_EQ(Number("VorschauBild.Width"), width);
    EXPECT_TRUE(Visible("GamePictureVis"));
    EXPECT_TRUE(InPlace());
    // The next game of another size.
    Do("select", "Form1.WIthoutDoubles", 1);
    Zoom();
    EXPECT_EQ(Number("VorschauBild.Width"), 32 * 15);
}

TEST_F(PreviewZoom, EndsWithWhateverComes) {
    const std::vector<std::pair<const char*, std::function<void()>>> events{
        {"size", [&] { Do("resize", "Form1", 16000, 12000); }},
        {"tab", [&] { Do("click", "Form1.Label3"); }},
        {"next game", [&] { Do("select", "Form1.WIthoutDoubles", 1); }},
        {"emulator", [&] { ChooseEmulator(1); }},
        {"choice", [&] { Do("focus", "Form1.EmuListbox"); }},
        {"maximised", [&] { Do("state", "Form1", 2); }},
        {"font", [&] { Do("set", "Form1.FontSizeCombo.ListIndex", 30); }},
        {"search", [&] { Do("type", "Form1.SearchDblsTxt", "bee"); }},
        {"search in all", [&] { SearchAllFor("(19"); }},
        {"start", [&] { Call("StartGame", BeePath()); }},
        {"start by a key", [&] { Do("key", "Form1.WIthoutDoubles", "Enter"); }},
        {"start of a game handed over", [&] { Do("summon", BeePath()); }},
        {"rescan", [&] { Do("click", "Form1.LoadBtn"); }},
        {"narrower", [&] { Do("key", "Form1", "Alt+Left"); }},
        {"higher", [&] { Do("key", "Form1", "Alt+Down"); }},
        {"key", [&] { Do("key", "Form1", "F2"); }},
    };
    for (const auto& [name, event] : events) {
        tree.WriteProgramProfile({{"LastEmulator", "Alpha"}});
        Start();
        Zoom();
        event();
        EXPECT_FALSE(Visible("GamePicture")) << name;
        EXPECT_TRUE(InPlace()) << name;
    }
}

TEST_F(PreviewZoom, StaysWhileThePanelIsDraggedOverIt) {
    tree.AddEmulator("Alpha", {{"RomPath", "/Roms/Alpha"}, {"SmartRomSelection", "1"}});
    Start();
    Zoom();
    const int frame = Number("SettingsFrame.Top");
    Do("drag", "Form1.SettingsSubPicture", "Form1.GamePicture", 500, 400, 10, 20);
    EXPECT_TRUE(Zoomed());
    EXPECT_EQ(Number("SettingsFrame.Top"), frame);
    EXPECT_EQ(Number("VorschauBild.Width"), 6000);
    Do("click", "Form1.GamePicture");
    EXPECT_TRUE(InPlace());
}

TEST_F(PreviewZoom, PictureOfAnEmulatorStartsItInstead) {
    Start();
    Do("focus", "Form1.EmuListbox");
    Do("select", "Form1.EmulatorLongListbox", 1);
    Do("answer", "Yes");
    Do("click", "Form1.GamePictureVis");
    const Json boxes = Do("boxes")["value"];
    ASSERT_EQ(boxes.size(), 1U) << boxes;
    EXPECT_THAT(boxes[0]["text"].get<std::string>(), ::testing::HasSubstr("Beta"));
    EXPECT_EQ(Do("runs")["value"].size(), 1U);
    EXPECT_FALSE(Zoomed());
}

TEST_F(PreviewZoom, EndsBeforeTheSignsOfALaunchAndARescan) {
    for (const bool rescan : {false, true}) {
        for (int n = 2; n < 5; ++n) {
            Start();
            Zoom();
            Do("meanwhile", "events", n, Json({"get", "Form1.GamePicture.Visible"}),
               Json({"get", "Form1.LoadingBtn.Visible"}));
            const Json seen = (rescan ? Do("click", "Form1.LoadBtn")
                                      : Do("dblclick", "Form1.WIthoutDoubles", 0))["meanwhile"];
            ASSERT_EQ(seen.size(), 2U) << n;
            EXPECT_EQ(seen[0]["value"], false) << n;
            EXPECT_EQ(seen[1]["value"], true) << n;
        }
    }
}

TEST_F(PreviewZoom, EndsWhenAnEmulatorComesUp) {
    Start();
    LaunchBee();
    Zoom();
    EmulatorComesUp();
    Do("tick", "Form1.EmuActiveTimer", 1);
    ASSERT_TRUE(Visible("AppRunningPicture"));
    EXPECT_FALSE(Visible("GamePicture"));
    EXPECT_TRUE(InPlace());
    EXPECT_EQ(Shown(), bee);
}

TEST_F(PreviewZoom, EndsWhenAMinimisedWindowComesBack) {
    Start();
    Zoom();
    Do("state", "Form1", 1);
    EXPECT_TRUE(Zoomed());
    Do("state", "Form1", 0);
    EXPECT_TRUE(InPlace());
    EXPECT_EQ(Shown(), ant);
}

TEST_F(PreviewZoom, KeyTogglesIt) {
    Start();
    Do("key", "Form1", "F2");
    EXPECT_TRUE(Zoomed());
    EXPECT_EQ(Number("VorschauBild.Width"), 6000);
    Do("key", "Form1", "Shift+F2");
    EXPECT_TRUE(Zoomed());
    Do("key", "Form1", "F2");
    EXPECT_TRUE(InPlace());
    Do("key", "Form1", "Ctrl+F2");
    EXPECT_TRUE(InPlace());
    // Typed into a box it does the same, and writes nothing.
    Do("focus", "Form1.SearchDblsTxt");
    const std::string text = Text("SearchDblsTxt.Text");
    Do("key", "Form1.SearchDblsTxt", "F2");
    EXPECT_TRUE(Zoomed());
    EXPECT_EQ(Text("SearchDblsTxt.Text"), text);
}

TEST_F(PreviewZoom, KeyDoesNothingInTheChoiceAndWhileAGameRuns) {
    Start();
    Do("focus", "Form1.EmuListbox");
    Do("key", "Form1", "F2");
    EXPECT_FALSE(Zoomed());
    Do("click", "Form1.Label1");
    Do("key", "Form1", "F2");
    EXPECT_FALSE(Zoomed()) << "the favourites of all lie over the choice";
    EXPECT_EQ(Do("runs")["value"], Json::array());
    Do("key", "Form1", "Escape");
    LaunchBee();
    Do("key", "Form1", "F2");
    EXPECT_FALSE(Zoomed());
    EmulatorComesUp();
    Do("tick", "Form1.EmuActiveTimer", 1);
    Do("key", "Form1", "F2");
    EXPECT_FALSE(Zoomed());
    EmulatorGoes();
    Do("tick", "Form1.EmuActiveTimer", 5);
    Do("key", "Form1", "F2");
    EXPECT_TRUE(Zoomed());
}

TEST_F(PreviewZoom, PictureOfACoveredEmulatorStartsNone) {
    Start();
    Do("focus", "Form1.EmuListbox");
    Do("select", "Form1.EmulatorLongListbox", 1);
    Do("click", "Form1.Label1");
    ASSERT_TRUE(Visible("FavoritenListeGlobal"));
    Do("answer", "Yes");
    Do("click", "Form1.GamePictureVis");
    EXPECT_EQ(Do("boxes")["value"], Json::array());
    EXPECT_EQ(Do("runs")["value"], Json::array());
    EXPECT_FALSE(Zoomed());
}

}  // namespace
}  // namespace kivu::scenarios
