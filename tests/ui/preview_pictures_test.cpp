#include "ui/preview_pictures.h"

#include <gmock/gmock.h>
#include <map>

#include "ui/preview_room.h"

namespace kivu::ui {
namespace {

using ::testing::ElementsAreArray;

using PreviewPicturesTest = PreviewRoom;

TEST_F(PreviewPicturesTest, ThreeNamesAreLookedForInEightPlaces) {
    MakeAllDirectories();
    previews.ShowGamePreview(0);
    std::vector<std::string> expected;
    for (const std::string name :
         {"Turrican (1990)(Rainbow)(Disk 1 of 2)", "Turrican", "Amiga 500"}) {
        for (const std::string& pattern :
             {"/opt/kivu/Config/Amiga 500/Pictures/" + name + "*.*",
              "/roms/amiga/" + name + "*.jpg", "/roms/amiga/" + name + "*.png",
              "/roms/snap/" + name + "*.*", "/roms/Titles/" + name + "*.*",
              "/emu/uae/Titles/" + name + "*.*", "/emu/uae/Pictures/" + name + "*.*",
              "/roms/amiga/" + name + "*.gif"})
            expected.push_back(pattern);
    }
    EXPECT_THAT(disk.looks, ElementsAreArray(expected));
    EXPECT_EQ(Shown(), "(none)");
}

TEST_F(PreviewPicturesTest, EachPlaceIsFoundAloneAndTheEarlierOneWins) {
    MakeAllDirectories();
    const std::vector<std::string> places{
        "/roms/amiga/N.gif",     "/emu/uae/Pictures/N.bmp",
        "/emu/uae/Titles/N.bmp", "/roms/Titles/N.webp",
        "/roms/snap/N.ico",      "/roms/amiga/N.png",
        "/roms/amiga/N.jpg",     "/opt/kivu/Config/Amiga 500/Pictures/N.BMP"};
    for (const std::string name :
         {"Amiga 500", "Turrican", "Turrican (1990)(Rainbow)(Disk 1 of 2)"}) {
        // From the last place to the first: each new one is found before all of those that are
        // there.
        for (std::string place : places) {
            place.replace(place.find("N."), 1, name);
            Files({place});
            previews.ShowGamePreview(0);
            EXPECT_EQ(Shown(), place);
        }
    }
}

TEST_F(PreviewPicturesTest, NamesOfTheTries) {
    disk.AddDirectory("/opt/kivu/Config/Amiga 500/Pictures");
    const std::map<std::string, std::pair<std::string, std::string>> tries{
        {"Game (Disk 1).adf", {"Game (Disk 1)", "Game"}},
        {"Game.adz.gz", {"Game.adz.gz", "Game.ad"}},
        {"Tetris.gb", {"Tetris.gb", "Tetri"}},
        {"Dr.Who.d64", {"Dr.Who", "Dr"}},
        {"Abc (1).adf", {"Abc (1)", "Abc"}},
        {"Ab (1).adf", {"Ab (1)", "Ab (1)"}},
        {"A.b", {"A.b", ""}},
        {"    (x).adf", {"(x)", ""}},
        {"Ünder.adf", {"Ünder", "Ünder"}},
        {".adf", {"", ""}},
    };
    for (const auto& [file, names] : tries) {
        disk.looks.clear();
        ShowGame(file);
        std::vector<std::string> expected;
        for (const std::string& name : {names.first, names.second, std::string("Amiga 500")})
            if (!name.empty())
                expected.push_back("/opt/kivu/Config/Amiga 500/Pictures/" + name + "*.*");
        std::erase_if(disk.looks, [](const std::string& look) {
            return !look.starts_with("/opt/kivu/Config");
        });
        EXPECT_THAT(disk.looks, ElementsAreArray(expected)) << file;
    }
}

TEST_F(PreviewPicturesTest, EndingOfAnEmulatorsNameGoesToo) {
    form.StartPfad = "/opt/kivu/Config/Sega.32X/";
    Files({"/opt/kivu/Config/Sega.32X/Pictures/Sega.png"});
    EXPECT_EQ(ShowGame("Doom.bin"), "/opt/kivu/Config/Sega.32X/Pictures/Sega.png");
}

TEST_F(PreviewPicturesTest, BlanksAroundANameAreNoPartOfIt) {
    Files({"/roms/amiga/Game.png"});
    EXPECT_EQ(previews.FindPreviewPicture("Game .adf"), "/roms/amiga/Game.png");
    EXPECT_EQ(previews.FindPreviewPicture("Game.adf"), "/roms/amiga/Game.png");
    EXPECT_EQ(previews.FindPreviewPicture(""), "");
    EXPECT_EQ(previews.FindPreviewPicture("   "), "");
    EXPECT_EQ(previews.FindPreviewPicture("../amiga/Game.adf"), "");
}

TEST_F(PreviewPicturesTest, OfSeveralPicturesTheOneOfTheSameName) {
    Files({"/roms/amiga/Turrican II.png", "/roms/amiga/Turrican.png"});
    EXPECT_EQ(ShowGame("Turrican.adf"), "/roms/amiga/Turrican.png");
    disk.Remove("/roms/amiga/Turrican.png");
    EXPECT_EQ(ShowGame("Turrican.adf"), "/roms/amiga/Turrican II.png");
    Files({"/roms/amiga/Tetris 2.png", "/roms/amiga/Tetris.png"});
    EXPECT_EQ(ShowGame("Tetris.gb"), "/roms/amiga/Tetris.png");
}

TEST_F(PreviewPicturesTest, HitsOfTheSamePlace) {
    const std::string pictures = "/opt/kivu/Config/Amiga 500/Pictures/";
    Files({pictures + "Turrican.png", pictures + "Turrican.jpg"});
    EXPECT_EQ(ShowGame("Turrican.adf"), pictures + "Turrican.jpg");
    disk.Remove(pictures + "Turrican.png");
    Files({pictures + "Turrican.nfo"});
    EXPECT_EQ(ShowGame("Turrican.adf"), pictures + "Turrican.jpg");
    disk.Remove(pictures + "Turrican.jpg");
    Files({"/roms/amiga/Turrican.jpg"});
    EXPECT_EQ(ShowGame("Turrican.adf"), "(empty)");
    disk.Remove(pictures + "Turrican.nfo");
    Files({pictures + "Turrican.png"});
    EXPECT_EQ(ShowGame("Turrican.adf"), pictures + "Turrican.png");
}

TEST_F(PreviewPicturesTest, WhatIsNoHit) {
    Files({"/roms/amiga/Turrican.png"});
    EXPECT_EQ(ShowGame("Turrican2.adf"), "(none)");
    Files({"/roms/amiga/Game.BMP", "/roms/amiga/Game.jpeg"});
    EXPECT_EQ(ShowGame("Game.adf"), "(none)");
    Files({"/opt/kivu/Config/Amiga 500/Pictures/Game.BMP"});
    EXPECT_EQ(ShowGame("Game.adf"), "/opt/kivu/Config/Amiga 500/Pictures/Game.BMP");
    Files({"/opt/kivu/Config/Amiga 500/Pictures/Amiga 500.png"});
    EXPECT_EQ(ShowGame("Other.adf"), "/opt/kivu/Config/Amiga 500/Pictures/Amiga 500.png");
}

TEST_F(PreviewPicturesTest, CharactersOfPatternsArePlainOnes) {
    Files({"/roms/amiga/axb.png", "/roms/amiga/Game a.png"});
    EXPECT_EQ(ShowGame("a*b.adf"), "(none)");
    EXPECT_EQ(ShowGame("Game [a].adf"), "(none)");
    Files({"/roms/amiga/a*b.png", "/roms/amiga/Game [a] 2.png"});
    EXPECT_EQ(ShowGame("a*b.adf"), "/roms/amiga/a*b.png");
    EXPECT_EQ(ShowGame("Game [a].adf"), "/roms/amiga/Game [a] 2.png");
}

TEST_F(PreviewPicturesTest, OddNames) {
    Files({"/roms/amiga/ünder.PNG", "/roms/amiga/'&;$.png", "/roms/amiga/Point..png",
           "/roms/amiga/\xff\xfe.png"});
    EXPECT_EQ(ShowGame("Ünder.adf"), "/roms/amiga/ünder.PNG");
    EXPECT_EQ(ShowGame("'&;$.adf"), "/roms/amiga/'&;$.png");
    EXPECT_EQ(ShowGame("Point..adf"), "/roms/amiga/Point..png");
    EXPECT_EQ(ShowGame("\xff\xfe.adf"), "/roms/amiga/\xff\xfe.png");
    const std::string longest(251, 'n');
    Files({"/roms/amiga/" + longest + ".png"});
    EXPECT_EQ(ShowGame(longest + ".adf"), "/roms/amiga/" + longest + ".png");
}

TEST_F(PreviewPicturesTest, QuotedEntryIsLookedForWithoutItsQuotes) {
    Files({"/roms/amiga/Game.png"});
    form.UAE_FULL.Clear();
    form.UAE_FULL.AddItem(" \"/roms/amiga/Game.adf\" ");
    previews.ShowGamePreview(0);
    EXPECT_EQ(Shown(), "/roms/amiga/Game.png");
}

TEST_F(PreviewPicturesTest, DirectoriesInAnotherCaseAreTakenWhereTheExactOnesAreMissing) {
    Files({"/opt/kivu/Config/Amiga 500/pictures/Game.png", "/roms/SNAP/Snap.png",
           "/emu/uae/titles/Title.png"});
    EXPECT_EQ(ShowGame("Game.adf"), "/opt/kivu/Config/Amiga 500/pictures/Game.png");
    EXPECT_FALSE(disk.IsDirectory("/opt/kivu/Config/Amiga 500/Pictures"));
    EXPECT_EQ(ShowGame("Snap.adf"), "/roms/SNAP/Snap.png");
    EXPECT_EQ(ShowGame("Title.adf"), "/emu/uae/titles/Title.png");
}

TEST_F(PreviewPicturesTest, MissingPathsAreNeverTheDirectoryThatTheProgramStandsIn) {
    Files({"/Game.png", "/Titles/Game.png", "/Pictures/Game.png", "/snap/Game.png"});
    form.TxtRomPath.SetText("");
    form.txtWinUAEExe.SetText("fs-uae");
    disk.AddDirectory("/fs-uae/Titles");
    Files({"/fs-uae/Titles/Game.png"});
    EXPECT_EQ(ShowGame("Game.adf"), "(none)");
    form.TxtRomPath.SetText("/no/such/");
    EXPECT_EQ(ShowGame("Game.adf"), "(none)");
    form.TxtRomPath.SetText("/");
    EXPECT_EQ(ShowGame("Game.adf"), "/Game.png");
}

TEST_F(PreviewPicturesTest, PicturesDirectoryIsMadeForAnEmulatorOnly) {
    previews.ShowGamePreview(0);
    EXPECT_TRUE(disk.IsDirectory("/opt/kivu/Config/Amiga 500/Pictures"));
    const std::size_t changes = disk.changes.size();
    previews.ShowGamePreview(0);
    EXPECT_EQ(disk.changes.size(), changes);
    form.StartPfad = form.ConfigPath;
    previews.ShowGamePreview(0);
    EXPECT_FALSE(disk.IsDirectory("/opt/kivu/Config/Pictures"));
    form.StartPfad.clear();
    previews.ShowGamePreview(0);
    EXPECT_EQ(disk.changes.size(), changes);
}

TEST_F(PreviewPicturesTest, RowOutOfRangeShowsNone) {
    Files({"/roms/amiga/Turrican.png"});
    previews.ShowGamePreview(0);
    EXPECT_EQ(Shown(), "/roms/amiga/Turrican.png");
    for (const int row : {-1, 1, 99}) {
        previews.ShowGamePreview(row);
        EXPECT_EQ(Shown(), "(none)") << row;
        EXPECT_FALSE(form.GamePictureVis.Visible());
        // It stays in its box until the next one is loaded.
        EXPECT_EQ(form.GamePicture.GetPicture().source, "/roms/amiga/Turrican.png");
    }
}

TEST_F(PreviewPicturesTest, EmulatorsOwnPictureThenItsLoadingScreen) {
    const std::string skin = "/opt/kivu/Config/Amiga 500/Skin/";
    previews.ShowEmulatorPreview(0);
    EXPECT_EQ(Shown(), "(none)");
    Files({skin + "Loading.jpg", skin + "Amiga 500 old.png"});
    previews.ShowEmulatorPreview(0);
    EXPECT_EQ(Shown(), skin + "Loading.jpg");
    Files({skin + "amiga 500.PNG"});
    previews.ShowEmulatorPreview(0);
    EXPECT_EQ(Shown(), skin + "amiga 500.PNG");
    for (const int row : {-1, 1}) {
        previews.ShowEmulatorPreview(row);
        EXPECT_EQ(Shown(), "(none)");
    }
    disk.Remove("/opt/kivu/Config/Amiga 500/Skin");
    Files({"/opt/kivu/Config/Amiga 500/skin/Loading.png"});
    previews.ShowEmulatorPreview(0);
    EXPECT_EQ(Shown(), "/opt/kivu/Config/Amiga 500/skin/Loading.png");
}

TEST_F(PreviewPicturesTest, FileThatIsNotThereLeavesAnEmptyFrame) {
    Files({"/roms/amiga/Turrican.png"});
    previews.ShowGamePreview(0);
    for (const char* path : {"", "/no/such.png", "/roms/amiga"}) {
        previews.LoadVorschauImageFromPAth("/roms/amiga/Turrican.png");
        EXPECT_EQ(Shown(), "/roms/amiga/Turrican.png");
        previews.LoadVorschauImageFromPAth(path);
        EXPECT_EQ(Shown(), "(empty)") << path;
        EXPECT_FALSE(form.GamePicture.Visible());
    }
}

TEST_F(PreviewPicturesTest, NewFileCountsAtTheNextSelection) {
    EXPECT_EQ(ShowGame("Game.adf"), "(none)");
    Files({"/roms/amiga/Game.png"});
    EXPECT_EQ(ShowGame("Game.adf"), "/roms/amiga/Game.png");
    disk.Remove("/roms/amiga/Game.png");
    EXPECT_EQ(ShowGame("Game.adf"), "(none)");
}

TEST_F(PreviewPicturesTest, ShowingAndHidingTheArea) {
    previews.SetVorschaubild(true);
    EXPECT_TRUE(form.VorschauBild.Visible());
    EXPECT_TRUE(form.GamePictureVis.Visible());
    EXPECT_EQ(form.SettingsFrame.Top(), form.VorschauBild.Bottom());
    previews.SetVorschaubild(false);
    EXPECT_FALSE(form.VorschauBild.Visible());
    EXPECT_FALSE(form.GamePictureVis.Visible());
}

}  // namespace
}  // namespace kivu::ui
