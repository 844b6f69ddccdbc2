// The pictures, the colours and the place of the loading screen.

#include "scenarios/loading_screen.h"
#include "wiring/routines.h"

namespace kivu::scenarios {
namespace {

class LoadingPictures : public LoadingScreen {
 protected:
    int Length(const std::string& name) { return Screen(name).get<int>(); }
    // Twips of the screen, beside the window's two edges.
    void ExpectInTheMiddle() {
        const forms::Size room = session->Screen().room;
        EXPECT_NEAR(Length("Left"), room.width - Length("Left") - Length("Width"), 1);
        EXPECT_NEAR(Length("Top"), room.height - Length("Top") - Length("Height"), 1);
        EXPECT_LE(Length("Width"), room.width * 2 / 3);
        EXPECT_LE(Length("Height"), room.height * 2 / 3);
    }
    void ExpectTextOnly() {
        EXPECT_EQ(Screen("GameImage.Picture"), "");
        EXPECT_EQ(Screen("GameImage.Visible"), false);
        EXPECT_GT(Length("TxtTitle.Width"), Length("Width") * 3 / 4);
        EXPECT_EQ(Screen("TxtTitle.Caption"), "Bee (1991)(Maker)");
    }
    void LaunchBeeWithoutPicture() {
        std::filesystem::remove(tree.Path("Roms/Alpha/Bee (1991)(Maker).png"));
        Start();
        LaunchBee();
    }
    void StartAway(const char* path) { Do("call", "StartGame", tree.Path(path)); }
};

TEST_F(LoadingPictures, ShowsThePreviewThatIsOnView) {
    Paint("Config/Alpha/Skin/Loading.bmp");
    Start();
    LaunchBee();
    EXPECT_EQ(GameImage(), bee);
    EXPECT_LT(Length("GameImage.Left") + Length("GameImage.Width"), Length("TxtTitle.Left"));
}

TEST_F(LoadingPictures, ZoomedItIsTheSame) {
    Start();
    Do("click", "Form1.Label3");
    Do("select", "Form1.UAE_Short", 2);
    Zoom();
    Do("call", "LaunchBtn_Click");
    EXPECT_EQ(GameImage(), bee);
}

TEST_F(LoadingPictures, WithoutOneItIsTheSkins) {
    Paint("Config/Alpha/Skin/Loading.bmp");
    LaunchBeeWithoutPicture();
    EXPECT_EQ(GameImage(), "Loading.bmp");
    EXPECT_EQ(Screen("GameImage.Visible"), true);
}

TEST_F(LoadingPictures, NamesOfTheSkinsFilesCountWithoutCase) {
    Paint("Config/Alpha/Skin/LOADING.BMP");
    Paint("Config/Alpha/Skin/settings.bMP");
    LaunchBeeWithoutPicture();
    EXPECT_EQ(GameImage(), "LOADING.BMP");
    const std::string background = Screen("Picture1.Picture");
    EXPECT_TRUE(background.ends_with("settings.bMP")) << background;
}

TEST_F(LoadingPictures, WithoutAnyItShowsTextOnly) {
    LaunchBeeWithoutPicture();
    ExpectTextOnly();
    EXPECT_EQ(Screen("Picture1.Picture"), "");
}

TEST_F(LoadingPictures, BrokenOnesLeaveText) {
    tree.Write("Config/Alpha/Skin/Loading.jpg", "no picture");
    tree.Write("Config/Alpha/Skin/Settings.png", "\x89PNG");
    LaunchBeeWithoutPicture();
    ExpectTextOnly();
    EXPECT_EQ(Screen("Picture1.Picture"), "");
    EXPECT_EQ(Boxes(), 0U);
    EXPECT_EQ(Runs(), 1U);
}

TEST_F(LoadingPictures, OnesOfAnyShapeKeepTheirs) {
    for (const auto& [width, height] :
         std::vector<std::pair<unsigned, unsigned>>{{10000, 100}, {30, 3000}, {320, 200}, {1, 1}}) {
        Paint("Config/Alpha/Skin/Loading.bmp", width, height);
        LaunchBeeWithoutPicture();
        const double shown = double(Length("GameImage.Width")) / Length("GameImage.Height");
        const double own = double(width) / height;
        EXPECT_NEAR(shown / own, 1, 0.05) << width << "x" << height;
        EXPECT_GE(Length("GameImage.Left"), 0);
        EXPECT_GE(Length("GameImage.Top"), 0);
        EXPECT_LE(Length("GameImage.Left") + Length("GameImage.Width"), Length("TxtTitle.Left"));
        EXPECT_LE(Length("GameImage.Top") + Length("GameImage.Height"), Length("Height"));
    }
}

// The row on view is that of another game, or of another emulator.
TEST_F(LoadingPictures, AGameFromElsewhereHasItsOwn) {
    Paint("Config/Alpha/Skin/Loading.bmp");
    Start();
    Do("click", "Form1.Label3");
    Do("select", "Form1.UAE_Short", 2);
    StartAway("Roms/Alpha/Ant (1990)(Maker)(Disk 1 of 2).adf");
    EXPECT_EQ(GameImage(), ant);
    Click("");
    Do("tick", "Form1.EmuActiveTimer", 4);
    tree.Write("Roms/Alpha/Elk (1999).adf", "x");
    StartAway("Roms/Alpha/Elk (1999).adf");
    EXPECT_EQ(GameImage(), "Loading.bmp");
}

TEST_F(LoadingPictures, AGlobalFavouriteHasThatOfItsEmulator) {
    tree.Write(
        "Config/Favoriten_Global.ini",
        ProgramDirectory::Encoded("[Favoriten_Global]\r\nFav1_Name=Cat\r\nFav1_System=Beta\r\n"
                                  "Fav1_FullPath=" +
                                  tree.Path("Roms/Beta/Cat (1992)(Maker).adf") + "\r\n"));
    Start();
    Do("click", "Form1.Label3");
    Do("select", "Form1.UAE_Short", 2);
    Do("focus", "Form1.EmuListbox");
    Do("click", "Form1.Label1");
    Do("dblclick", "Form1.FavoritenListeGlobal", 0);
    ASSERT_TRUE(IsUp());
    EXPECT_EQ(GameImage(), "Loading.bmp");
    EXPECT_TRUE(std::string(Screen("GameImage.Picture")).find("Beta") != std::string::npos);
}

// A file that takes long must not hold the emulator up.
TEST_F(LoadingPictures, LargeOnesComeLater) {
    Paint("Config/Alpha/Skin/Loading.bmp", 4000, 3000);
    Paint("Config/Alpha/Skin/Settings.bmp", 4000, 3000);
    prepare = [](driver::Session& made) { made.Host().background.inlined = false; };
    LaunchBeeWithoutPicture();
    EXPECT_EQ(Runs(), 1U);
    ExpectTextOnly();
    auto& background = Host().background;
    while (!background.waiting.empty())
        background.Serve(0);
    EXPECT_EQ(GameImage(), "Loading.bmp");
    EXPECT_EQ(Screen("GameImage.Visible"), true);
    EXPECT_LT(Length("TxtTitle.Width"), Length("Width") / 2);
    EXPECT_NE(Screen("Picture1.Picture"), "");
}

TEST_F(LoadingPictures, OnesThatComeTooLateAreNobodys) {
    Paint("Config/Alpha/Skin/Loading.bmp", 4000, 3000);
    Paint("Config/Alpha/Skin/Settings.bmp", 4000, 3000);
    prepare = [](driver::Session& made) { made.Host().background.inlined = false; };
    LaunchBeeWithoutPicture();
    Click("");
    auto& background = Host().background;
    while (!background.waiting.empty())
        background.Serve(0);
    EXPECT_FALSE(IsUp());
}

// The one that is still seen is the last game's.
TEST_F(LoadingPictures, APreviewOnItsWayIsReadForTheScreenToo) {
    Paint("Roms/Alpha/Bee (1991)(Maker).png", 1100, 1100);
    Start();
    Do("click", "Form1.Label3");
    Do("select", "Form1.UAE_Short", 0);
    EXPECT_EQ(Shown(), ant);
    auto& background = Host().background;
    background.inlined = false;
    Do("select", "Form1.UAE_Short", 2);
    EXPECT_EQ(Shown(), ant);
    Do("call", "LaunchBtn_Click");
    EXPECT_EQ(GameImage(), "");
    while (!background.waiting.empty())
        background.Serve(0);
    EXPECT_EQ(GameImage(), bee);
}

TEST_F(LoadingPictures, TakesTheMainWindowsColours) {
    tree.Write("Config/Alpha/Skin/Skin.ini",
               "[Settings]\r\nBackColor=#1c1206\r\nFontColor=#ffb000\r\n");
    Start();
    LaunchBee();
    EXPECT_EQ(Screen("BackColor"), "#1C1206");
    for (const char* control : {"TxtTitle", "Label1", "Command1"}) {
        EXPECT_EQ(Screen(std::string(control) + ".BackColor"), "#1C1206") << control;
        EXPECT_EQ(Screen(std::string(control) + ".ForeColor"), "#FFB000") << control;
    }
}

TEST_F(LoadingPictures, StandsInTheMiddleOfTheScreenAtAnyFont) {
    Start();
    Do("resize", "Form1", 9000, 7000);
    for (const int row : {8, 16, 40, 72}) {
        Do("select", "Form1.FontSizeCombo", row);
        StartAway("Roms/Alpha/Bee (1991)(Maker).adf");
        ExpectInTheMiddle();
        for (const char* control : {"Label1", "TxtTitle", "Command1", "GameImage"}) {
            const std::string name = control;
            EXPECT_GE(Length(name + ".Left"), 0) << name;
            EXPECT_LE(Length(name + ".Left") + Length(name + ".Width"), Length("Width")) << name;
            EXPECT_LE(Length(name + ".Top") + Length(name + ".Height"), Length("Height")) << name;
        }
        Click("");
        Do("tick", "Form1.EmuActiveTimer", 4);
    }
}

TEST_F(LoadingPictures, FitsASmallScreen) {
    Start();
    session->Screen().room = {640 * forms::twipsPerPixel, 400 * forms::twipsPerPixel};
    LaunchBee();
    ExpectInTheMiddle();
}

}  // namespace
}  // namespace kivu::scenarios
