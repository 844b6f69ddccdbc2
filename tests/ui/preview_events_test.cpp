// Pictures that come late, clicks on them, and the lists that bring them back.

#include <gmock/gmock.h>

#include "ui/preview_room.h"

namespace kivu::ui {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// What comes later than the selection.
struct LatePictures : PreviewRoom {
    LatePictures() {
        Files({"/roms/amiga/One.png", "/roms/amiga/Two.png"});
        EXPECT_EQ(ShowGame("One.adf"), "/roms/amiga/One.png");
        loader.late = true;
    }
};

TEST_F(LatePictures, OldPictureStaysUntilTheNewOneComes) {
    EXPECT_EQ(ShowGame("Two.adf"), "/roms/amiga/One.png");
    EXPECT_TRUE(form.PreviewTimer.Enabled());
    loader.Let();
    EXPECT_EQ(Shown(), "/roms/amiga/Two.png");
    EXPECT_FALSE(form.PreviewTimer.Enabled());
}

TEST_F(LatePictures, WhatIsOnViewIsAboutAGameOnceItsPictureIsThere) {
    EXPECT_TRUE(previews.IsAbout("/roms/amiga/One.adf"));
    EXPECT_FALSE(previews.IsAbout("/roms/amiga/Two.adf"));
    ShowGame("Two.adf");
    EXPECT_FALSE(previews.IsAbout("/roms/amiga/One.adf"));
    EXPECT_FALSE(previews.IsAbout("/roms/amiga/Two.adf"));
    loader.Let();
    EXPECT_TRUE(previews.IsAbout("/roms/amiga/Two.adf"));
    // One without a picture, too.
    ShowGame("Other.adf");
    EXPECT_TRUE(previews.IsAbout("/roms/amiga/Other.adf"));
    previews.ShowEmulatorPreview(0);
    EXPECT_FALSE(previews.IsAbout("/roms/amiga/Two.adf"));
}

TEST_F(LatePictures, AGameOfNoRowHasItsPicturesToo) {
    MakeAllDirectories();
    Files({"/roms/snap/Elk.png"});
    EXPECT_EQ(previews.FindForGame("/else/where/Elk (1999)(Maker).adf"), "/roms/snap/Elk.png");
    EXPECT_EQ(previews.FindForGame("/else/where/Two.adf"), "/roms/amiga/Two.png");
    EXPECT_EQ(previews.FindForGame("/else/where/Yak.adf"), "");
    Files({"/opt/kivu/Config/Amiga 500/Pictures/Amiga 500.png"});
    EXPECT_EQ(previews.FindForGame("/else/where/Yak.adf"),
              "/opt/kivu/Config/Amiga 500/Pictures/Amiga 500.png");
}

TEST_F(LatePictures, OldPictureDoesNotStayForLong) {
    ShowGame("Two.adf");
    previews.PreviewTimer_Timer();
    EXPECT_EQ(Shown(), "(none)");
    EXPECT_FALSE(form.PreviewTimer.Enabled());
    loader.Let();
    EXPECT_EQ(Shown(), "/roms/amiga/Two.png");
}

TEST_F(LatePictures, NothingComesForAGameWithoutAPicture) {
    ShowGame("Two.adf");
    EXPECT_EQ(ShowGame("Other.adf"), "(none)");
    EXPECT_FALSE(form.PreviewTimer.Enabled());
    loader.Let();
    EXPECT_EQ(Shown(), "(none)");
}

TEST_F(LatePictures, NothingComesForAnEmulatorThatWasLeft) {
    ShowGame("Two.adf");
    previews.Drop();
    loader.Let();
    EXPECT_EQ(form.GamePictureVis.GetPicture(), forms::Picture{});
}

TEST_F(LatePictures, NothingComesToAnEndedProgram) {
    ShowGame("Two.adf");
    form.Ended = true;
    loader.Let();
    EXPECT_NE(Shown(), "/roms/amiga/Two.png");
}

TEST_F(LatePictures, WithNoneOnViewNoneIsShownMeanwhile) {
    ShowGame("Other.adf");
    EXPECT_EQ(ShowGame("Two.adf"), "(none)");
    EXPECT_FALSE(form.PreviewTimer.Enabled());
    loader.Let();
    EXPECT_EQ(Shown(), "/roms/amiga/Two.png");
}

struct Clicks : PreviewRoom {
    Clicks() {
        Files({"/roms/amiga/One.png", "/roms/amiga/Two.png"});
        ShowGame("One.adf");
    }
    std::vector<forms::ListBox*> GameLists() {
        return {&form.FavoritenListe, &form.WIthoutDoubles, &form.UAE_Short, &form.SuchErgList};
    }
    // As in the busy state.
    void HideLists() {
        form.ListsVisible = false;
        for (forms::ListBox* list : GameLists())
            list->SetVisible(false);
    }
    void Click() {
        previews.GamePictureVis_MouseDown();
        previews.GamePictureVis_Click();
    }
};

TEST_F(Clicks, PictureIsZoomedAndComesBack) {
    Click();
    EXPECT_TRUE(form.GamePicture.Visible());
    EXPECT_EQ(form.VorschauBild.Left(), 9300);
    previews.GamePicture_Click();
    EXPECT_FALSE(form.GamePicture.Visible());
    EXPECT_EQ(form.VorschauBild.Left(), 9433);
    EXPECT_THAT(started, IsEmpty());
}

TEST_F(Clicks, KeyZoomsAndPutsBack) {
    previews.ToggleZoom();
    EXPECT_TRUE(form.GamePicture.Visible());
    previews.ToggleZoom();
    EXPECT_FALSE(form.GamePicture.Visible());
    EXPECT_EQ(form.VorschauBild.Left(), 9433);
    EXPECT_EQ(Shown(), "/roms/amiga/One.png");
}

TEST_F(Clicks, KeyZoomsNothingOverWhatIsUnderWayOrInTheChoice) {
    const auto expectNoZoom = [&](const char* when) {
        previews.ToggleZoom();
        EXPECT_FALSE(form.GamePicture.Visible()) << when;
    };
    form.Busy = true;
    expectNoZoom("busy");
    form.Busy = false;
    form.AppRunningPicture.SetVisible(true);
    expectNoZoom("running");
    form.AppRunningPicture.SetVisible(false);
    form.EmulatorLongListbox.AddItem("Amiga 500");
    form.EmulatorLongListbox.SetListIndex(0);
    form.EmulatorLongListbox.SetVisible(true);
    expectNoZoom("choice");
    EXPECT_THAT(started, IsEmpty());
    form.EmulatorLongListbox.SetVisible(false);
    // What was zoomed before comes back all the same.
    previews.ToggleZoom();
    form.Busy = true;
    expectNoZoom("busy, zoomed");
    form.Busy = false;
    ShowGame("Other.adf");
    expectNoZoom("no picture");
    previews.LoadVorschauImageFromPAth("");
    expectNoZoom("empty frame");
}

TEST_F(Clicks, PressOnThePictureStartsNoEmulatorThatIsCovered) {
    form.EmulatorLongListbox.AddItem("Amiga 500");
    form.EmulatorLongListbox.SetListIndex(0);
    form.EmulatorLongListbox.SetVisible(true);
    for (forms::ListBox* over : {&form.FavoritenListeGlobal, &form.GlobalSearchList}) {
        over->SetVisible(true);
        Click();
        EXPECT_THAT(started, IsEmpty()) << over->Name();
        EXPECT_FALSE(form.GamePicture.Visible()) << over->Name();
        over->SetVisible(false);
    }
    Click();
    EXPECT_THAT(started, ElementsAre("Amiga 500?"));
}

TEST_F(Clicks, ListInFrontShowsItsGameWhileTheWindowIsStillBusy) {
    Files({"/opt/kivu/Config/Amiga 500/Skin/Loading.png"});
    HideLists();
    for (forms::ListBox* list : GameLists()) {
        previews.ShowEmulatorPreview(0);
        previews.Refresh(0);
        EXPECT_EQ(Shown(), "/opt/kivu/Config/Amiga 500/Skin/Loading.png");
        list->SetVisible(true);
        previews.Refresh(0);
        EXPECT_EQ(Shown(), "/roms/amiga/One.png") << list->Name();
        list->SetVisible(false);
    }
}

TEST_F(Clicks, NextGameEndsTheZoom) {
    for (const char* next : {"Two.adf", "Other.adf"}) {
        ShowGame("One.adf");
        Click();
        ASSERT_TRUE(form.GamePicture.Visible());
        ShowGame(next);
        EXPECT_FALSE(form.GamePicture.Visible()) << next;
        EXPECT_EQ(form.VorschauBild.Left(), 9433) << next;
    }
    EXPECT_EQ(Shown(), "(none)");
}

TEST_F(Clicks, EmptyFrameIsNotZoomed) {
    previews.LoadVorschauImageFromPAth("");
    Click();
    EXPECT_FALSE(form.GamePicture.Visible());
}

TEST_F(Clicks, PictureOfAnEmulatorStartsItAndIsNotZoomed) {
    form.EmulatorLongListbox.AddItem("Amiga 500");
    form.EmulatorLongListbox.SetVisible(true);
    Click();
    EXPECT_THAT(started, IsEmpty()) << "no row is selected";
    form.EmulatorLongListbox.SetListIndex(0);
    Click();
    EXPECT_THAT(started, ElementsAre("Amiga 500?"));
    EXPECT_FALSE(form.GamePicture.Visible());
    // The start has closed the choice before the button comes up.
    previews.GamePictureVis_MouseDown();
    form.EmulatorLongListbox.SetVisible(false);
    previews.GamePictureVis_Click();
    EXPECT_FALSE(form.GamePicture.Visible());
    Click();
    EXPECT_TRUE(form.GamePicture.Visible());
}

TEST_F(Clicks, ListThatComesForwardShowsItsGamesPictureAgain) {
    Files({"/opt/kivu/Config/Amiga 500/Skin/Loading.png"});
    previews.ShowEmulatorPreview(0);
    form.EmulatorLongListbox.SetVisible(true);
    previews.Refresh(0);
    EXPECT_EQ(Shown(), "/opt/kivu/Config/Amiga 500/Skin/Loading.png");
    form.EmulatorLongListbox.SetVisible(false);
    HideLists();
    previews.Refresh(0);
    EXPECT_EQ(Shown(), "/opt/kivu/Config/Amiga 500/Skin/Loading.png");
    form.ListsVisible = true;
    previews.Refresh(0);
    EXPECT_EQ(Shown(), "/roms/amiga/One.png");
    disk.looks.clear();
    previews.Refresh(0);
    EXPECT_THAT(disk.looks, IsEmpty());
    previews.Refresh(-1);
    EXPECT_EQ(Shown(), "(none)");
}

// A disk that threads may use.
struct SharedDisk : WatchedDisk {
    bool ServesThreads() const override { return true; }
    std::optional<std::string> FindDirectory(const std::string& parent,
                                             std::string_view name) const override {
        ++questions;
        return WatchedDisk::FindDirectory(parent, name);
    }
    bool IsDirectory(const std::string& path) const override {
        ++questions;
        return WatchedDisk::IsDirectory(path);
    }
    mutable int questions = 0;
};

TEST(PreviewPreparation, LooksIntoEachDirectoryBesideTheWindow) {
    SharedDisk disk;
    kivu::testing::ScriptedHost host{disk};
    host.background.inlined = false;
    core::Form1 form{forms::Toolkit{}};
    Layout layout{form};
    ScriptedLoader loader;
    form.StartPfad = "/k/Config/A/";
    form.TxtRomPath.SetText("/roms/");
    disk.AddDirectory("/roms");
    disk.AddDirectory("/k/Config/A/Pictures");
    {
        PreviewPictures previews{form, {disk, host.background}, layout, loader};
        disk.questions = 0;
        previews.Prepare();
        EXPECT_THAT(disk.looks, IsEmpty());
        EXPECT_EQ(disk.questions, 0) << "a slow disk stops the window";
        // The next emulator's look-ups are its own.
        form.TxtRomPath.SetText("/later/");
        host.background.Serve(0);
        EXPECT_THAT(disk.looks, ::testing::Contains("/roms/?*.*"));
        EXPECT_THAT(disk.looks, ::testing::Contains("/k/Config/A/Pictures/?*.*"));
        disk.looks.clear();
        previews.Prepare();
    }
    disk.questions = 0;
    host.background.Serve(0);
    EXPECT_THAT(disk.looks, IsEmpty()) << "the launcher has gone";
    EXPECT_EQ(disk.questions, 0);
}

}  // namespace
}  // namespace kivu::ui
