// The picture of the selected game, or of the emulator.

#include <functional>
#include <tuple>
#include <vector>

#include "scenarios/preview_collection.h"

namespace kivu::scenarios {
namespace {

class Preview : public PreviewScenario {
 protected:
    void StoreBee() {
        tree.Write("Config/Alpha/Favoriten.ini",
                   "[Favoriten]\r\nFav0_Name=Bee\r\nFav0_FullPath=/Roms/Alpha/Bee (1991)(Maker).adf"
                   "\r\n");
    }
    std::string NameBegin() { return Text("Current_ProgramNameFull.Caption").substr(0, 3); }
};

TEST_F(Preview, OfTheFirstGameAtTheStart) {
    Start();
    EXPECT_EQ(Shown(), ant);
    EXPECT_TRUE(InPlace());
}

TEST_F(Preview, OfTheFirstFavouriteAtTheStart) {
    StoreBee();
    Start();
    EXPECT_EQ(Get("ListMode"), "1");
    EXPECT_EQ(Shown(), bee);
    EXPECT_TRUE(InPlace());
}

TEST_F(Preview, OfTheRowThatIsSelectedInEachList) {
    Start();
    Do("select", "Form1.WIthoutDoubles", 1);
    EXPECT_EQ(Shown(), bee);
    Do("key", "Form1.WIthoutDoubles", "Up");
    EXPECT_EQ(Shown(), ant);
    Do("click", "Form1.Label3");
    Do("select", "Form1.UAE_Short", 2);
    EXPECT_EQ(Shown(), bee);
    Do("select", "Form1.UAE_Short", 0);
    EXPECT_EQ(Shown(), ant);
    Do("type", "Form1.SearchDblsTxt", "bee");
    EXPECT_EQ(Shown(), bee) << "the first hit is selected at once";
    EXPECT_TRUE(InPlace());
}

TEST_F(Preview, OfTheEmulatorInTheOpenChoiceAndOfTheGameBehindIt) {
    Start();
    Do("select", "Form1.WIthoutDoubles", 1);
    Do("focus", "Form1.EmuListbox");
    EXPECT_EQ(Shown(), "Alpha.bmp");
    Do("select", "Form1.EmulatorLongListbox", 1);
    EXPECT_EQ(Shown(), "Loading.bmp");
    Do("key", "Form1.EmulatorLongListbox", "Escape");
    EXPECT_EQ(Shown(), bee);
    // The loaded one, chosen anew.
    ChooseEmulator(0);
    EXPECT_EQ(Shown(), bee);
    Do("focus", "Form1.EmuListbox");
    EXPECT_EQ(Shown(), "Alpha.bmp");
    Do("click", "Form1.Label1");
    Do("click", "Form1.EmulatorLongListbox");
    EXPECT_EQ(Shown(), "Alpha.bmp");
}

TEST_F(Preview, OfNothingAfterAChangeToAnEmulatorWithoutPictures) {
    tree.AddEmulator("Gamma");
    Start();
    EXPECT_EQ(Shown(), ant);
    ChooseEmulator(1);
    EXPECT_EQ(Shown(), "(none)") << "Cat has no picture";
    ChooseEmulator(0);
    EXPECT_EQ(Shown(), ant);
    ChooseEmulator(2);
    EXPECT_EQ(Get("UAE_Short.ListCount"), 0);
    EXPECT_EQ(Shown(), "(none)");
    EXPECT_EQ(Text("GamePicture.Picture"), "");
    EXPECT_EQ(Text("GamePictureVis.Picture"), "");
}

TEST_F(Preview, OfTheEmulatorForGamesWithoutOne) {
    Paint("Config/Beta/Pictures/Beta.bmp");
    Start();
    ChooseEmulator(1);
    EXPECT_EQ(Shown(), "Beta.bmp");
}

TEST_F(Preview, FileThatComesOrGoesCountsAtTheNextSelection) {
    Start();
    Paint("Config/Alpha/Pictures/Bee.png");
    Do("select", "Form1.WIthoutDoubles", 1);
    EXPECT_EQ(Shown(), bee) << "its full name is looked for first";
    Do("file", "remove", "Roms/Alpha/Bee (1991)(Maker).png");
    Do("select", "Form1.WIthoutDoubles", 0);
    Do("select", "Form1.WIthoutDoubles", 1);
    EXPECT_EQ(Shown(), "Bee.png");
    Do("file", "remove", "Config/Alpha/Pictures/Bee.png");
    Do("select", "Form1.WIthoutDoubles", 0);
    Do("select", "Form1.WIthoutDoubles", 1);
    EXPECT_EQ(Shown(), "(none)");
    Paint("Config/Alpha/Pictures/Bee.png");
    Do("select", "Form1.WIthoutDoubles", 0);
    Do("select", "Form1.WIthoutDoubles", 1);
    EXPECT_EQ(Shown(), "Bee.png");
}

TEST_F(Preview, DamagedFileShowsNoOthersPicture) {
    Start();
    tree.Write("Config/Alpha/Pictures/Bee (1991)(Maker).bmp", "no picture");
    Do("select", "Form1.WIthoutDoubles", 1);
    EXPECT_EQ(Shown(), "(empty)");
    EXPECT_EQ(Text("GamePicture.Picture"), "");
    Do("click", "Form1.GamePictureVis");
    EXPECT_FALSE(Zoomed());
    Do("select", "Form1.WIthoutDoubles", 0);
    EXPECT_EQ(Shown(), ant);
}

// It stands neither before the window nor within the selection, also for a file that is decoded at
// once.
TEST_F(Preview, BoxOfABadFileComesFromTheEventLoop) {
    tree.Write("Roms/Alpha/" + bee, testing::PngWithBadTree(4, 4));
    StoreBee();
    prepare = [](driver::Session& starting) { starting.Host().background.inlined = false; };
    Start();
    EXPECT_EQ(Do("boxes").at("value"), Json::array());
    auto& background = Host().background;
    while (!background.waiting.empty())
        background.Serve(0);
    const Json boxes = Do("boxes").at("value");
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0]["text"], "Error in tree creation (Static)");
}

TEST_F(Preview, IsThatOfTheMarkedRowAfterARescan) {
    Start();
    Do("select", "Form1.WIthoutDoubles", 1);
    Do("click", "Form1.LoadBtn");
    // No row of the fresh list is marked.
    EXPECT_EQ(Get("UAE_Short.ListIndex"), -1);
    EXPECT_EQ(Shown(), "(none)");
    Do("click", "Form1.Label2");
    EXPECT_EQ(Get("WIthoutDoubles.ListIndex"), 1);
    EXPECT_EQ(Shown(), bee);
    Do("click", "Form1.Label3");
    Do("select", "Form1.UAE_Short", 0);
    EXPECT_EQ(Shown(), ant);
}

TEST_F(Preview, DuringARescanItCanBeZoomedAndIsPutBack) {
    Start();
    Do("meanwhile", "events", 1, Json({"click", "Form1.GamePictureVis"}));
    Do("click", "Form1.LoadBtn");
    EXPECT_FALSE(Visible("GamePicture"));
    Do("select", "Form1.UAE_Short", 0);
    EXPECT_EQ(Shown(), ant);
    EXPECT_TRUE(InPlace());
}

TEST_F(Preview, StaysWhatItIsWhileAGameRuns) {
    Start();
    LaunchBee();
    EXPECT_EQ(Shown(), bee);
    EmulatorComesUp();
    Do("tick", "Form1.EmuActiveTimer", 2);
    EXPECT_EQ(Shown(), bee);
    Do("tick", "Form1.EmuActiveTimer", 3);
    EXPECT_EQ(Shown(), bee);
}

// The simple list comes to the front behind a game, whichever list it was started from.
TEST_F(Preview, BehindAGameIsThatOfTheGameWhoseNameIsShown) {
    Start();
    LaunchBee();
    EmulatorComesUp();
    Do("tick", "Form1.EmuActiveTimer", 2);
    EmulatorGoes();
    Do("tick", "Form1.EmuActiveTimer", 5);
    ASSERT_EQ(Get("WIthoutDoubles.ListIndex"), 0);
    ASSERT_EQ(Get("UAE_Short.ListIndex"), 2);
    EXPECT_EQ(NameBegin(), "Ant");
    EXPECT_EQ(Shown(), ant);
    // Over the tabs, too. No favourite is marked.
    Do("click", "Form1.Label1");
    EXPECT_EQ(NameBegin(), "Bee");
    EXPECT_EQ(Shown(), bee);
    Do("click", "Form1.Label3");
    EXPECT_EQ(NameBegin(), "Bee");
    EXPECT_EQ(Shown(), bee);
    Do("click", "Form1.Label2");
    EXPECT_EQ(NameBegin(), "Bee");
    EXPECT_EQ(Shown(), bee);
}

TEST_F(Preview, BehindAGameWithNoRowMarkedNameAndPictureAreThatGames) {
    Start();
    Do("set", "Form1.WIthoutDoubles.ListIndex", -1);
    LaunchBee();
    EmulatorComesUp();
    Do("tick", "Form1.EmuActiveTimer", 2);
    EmulatorGoes();
    Do("tick", "Form1.EmuActiveTimer", 5);
    ASSERT_TRUE(Visible("WIthoutDoubles"));
    ASSERT_EQ(Get("WIthoutDoubles.ListIndex"), -1);
    EXPECT_EQ(NameBegin(), "Bee");
    EXPECT_EQ(Shown(), bee);
}

TEST_F(Preview, OfAHitsEmulatorAndOfTheGameOnceTheHitsAreLeft) {
    Start();
    SearchAllFor("(19");
    ASSERT_TRUE(Visible("GlobalSearchList"));
    EXPECT_EQ(Shown(), "Alpha.bmp");
    Do("select", "Form1.GlobalSearchList", Number("GlobalSearchList.ListCount") - 1);
    EXPECT_EQ(Shown(), "Loading.bmp");
    Do("click", "Form1.Label2");
    const int row = Number("UAE_Short.ListIndex");
    EXPECT_EQ(Shown(), row < 0 ? "(none)" : row == 2 ? bee : ant);
    // The next search shows its hits' emulator again, also when that was the last one shown.
    SearchAllFor("(19");
    Do("select", "Form1.GlobalSearchList", 0);
    EXPECT_EQ(Shown(), "Alpha.bmp");
    Do("click", "Form1.Label2");
    EXPECT_NE(Shown(), "Alpha.bmp");
    SearchAllFor("bee");
    EXPECT_EQ(Shown(), "Alpha.bmp");
}

TEST_F(Preview, OfTheSelectedGameAfterASearchInAllWithoutAHit) {
    Start();
    Do("select", "Form1.WIthoutDoubles", 1);
    SearchAllFor("nobody");
    EXPECT_EQ(Get("GlobalSearchList.ListCount"), 0);
    EXPECT_EQ(Shown(), bee);
    // Nor does the emulator of an earlier search's hits stay.
    SearchAllFor("(19");
    ASSERT_EQ(Shown(), "Alpha.bmp");
    SearchAllFor("nobody");
    EXPECT_EQ(Get("GlobalSearchList.ListCount"), 0);
    EXPECT_EQ(Shown(), bee);
}

TEST_F(Preview, OfTheGameOnceARunningOneIsEndedOverTheOpenChoice) {
    Start();
    LaunchBee();
    EmulatorComesUp();
    Do("tick", "Form1.EmuActiveTimer", 1);
    ASSERT_TRUE(Visible("AppRunningPicture"));
    Do("focus", "Form1.EmuListbox");
    EXPECT_EQ(Shown(), "Alpha.bmp");
    Do("key", "Form1", "Alt+F4");
    EXPECT_TRUE(Visible("WIthoutDoubles"));
    EXPECT_EQ(Shown(), bee);
    Do("tick", "Form1.EmuActiveTimer", 5);
    EXPECT_EQ(NameBegin(), "Ant") << "its row is marked in front";
    EXPECT_EQ(Shown(), ant);
}

TEST_F(Preview, OfNoGameForARowWhoseGameHasGone) {
    Start();
    Do("file", "remove", "Roms/Alpha/Bee (1991)(Maker).adf");
    // It would be found as a game.
    Do("file", "remove", "Roms/Alpha/" + bee);
    Do("click", "Form1.LoadBtn");
    Do("click", "Form1.Label2");
    ASSERT_EQ(Get("UAE_Short.ListIndex"), -1);
    EXPECT_EQ(Shown(), ant) << "that of the marked row";
    Do("select", "Form1.WIthoutDoubles", 1);
    ASSERT_EQ(Get("UAE_Short.ListIndex"), -1);
    EXPECT_EQ(Shown(), "(none)");
}

TEST_F(Preview, OnItsWayComesToNothingOnceSomethingElseIsShown) {
    const std::vector<std::tuple<const char*, std::function<void()>, std::string>> events{
        {"choice", [&] { Do("focus", "Form1.EmuListbox"); }, "Alpha.bmp"},
        {"search in all", [&] { SearchAllFor("(19"); }, "Alpha.bmp"},
        {"emulator", [&] { ChooseEmulator(1); }, "(none)"},
        {"start", [&] { Do("dblclick", "Form1.WIthoutDoubles", 1); }, bee},
    };
    // Larger than what is read at once.
    Paint("Roms/Alpha/Bee (1991)(Maker).png", 1200, 1000);
    for (const auto& [name, event, shown] : events) {
        tree.WriteProgramProfile({{"LastEmulator", "Alpha"}});
        Start();
        Host().background.inlined = false;
        Do("select", "Form1.WIthoutDoubles", 1);
        ASSERT_FALSE(Host().background.waiting.empty()) << name;
        event();
        while (!Host().background.waiting.empty())
            Host().background.Serve(0);
        EXPECT_EQ(Shown(), shown) << name;
        EXPECT_FALSE(Visible("GamePicture")) << name;
        EXPECT_EQ(Get("PreviewTimer.Enabled"), false) << name;
    }
}

TEST_F(Preview, WithoutAnEmulatorNothingIsShownOrMade) {
    tree.WriteProgramProfile({});
    Start();
    EXPECT_EQ(Shown(), "(none)");
    Call("ShowGamePreview", 0);
    EXPECT_EQ(Shown(), "(none)");
    EXPECT_FALSE(tree.Exists("Config/Pictures"));
    tree.WriteProgramProfile({{"LastEmulator", "Gone"}});
    Start();
    Call("ShowGamePreview", -1);
    EXPECT_FALSE(tree.Exists("Config/Pictures"));
    EXPECT_EQ(Get("EmuListbox.List"), Json({"Alpha", "Beta"}));
}

TEST_F(Preview, PicturesDirectoryIsThereForTheUserToFill) {
    Start();
    EXPECT_FALSE(tree.Exists("Config/Beta/Pictures"));
    ChooseEmulator(1);
    EXPECT_TRUE(tree.Exists("Config/Beta/Pictures"));
}

TEST_F(Preview, RoutinesByTheirNames) {
    Start();
    EXPECT_EQ(Call("FindPreviewPicture", "Bee.adf"), tree.Path("Roms/Alpha/" + bee));
    EXPECT_EQ(Call("FindPreviewPicture", "Nobody.adf"), "");
    Call("ShowGamePreview", 2);
    EXPECT_EQ(Shown(), bee);
    Call("ShowEmulatorPreview", 1);
    EXPECT_EQ(Shown(), "Loading.bmp");
    Call("ShowEmulatorPreview", 7);
    EXPECT_EQ(Shown(), "(none)");
    Call("LoadVorschauImageFromPAth", tree.Path("Roms/Alpha/" + bee));
    EXPECT_EQ(Shown(), bee);
    Call("LoadVorschauImageFromPAth", "");
    EXPECT_EQ(Shown(), "(empty)");
    Call("SetVorschaubild", false);
    EXPECT_EQ(Shown(), "(none)");
    Call("SetVorschaubild", true);
    EXPECT_EQ(Shown(), "(empty)");
}

}  // namespace
}  // namespace kivu::scenarios
