// Windows of any size: what is computed, what fails alone, and what comes back.

#include <gtest/gtest.h>

#include "core/form1.h"
#include "ui/layout.h"

namespace kivu::ui {
namespace {

class LayoutSizes : public ::testing::Test {
 protected:
    LayoutSizes() {
        form.VorschauBild.onResize = [this] { layout.VorschauBild_Resize(); };
        form.SettingsSubPicture.onResize = [this] { layout.SettingsSubPicture_Resize(); };
        // The numbers of the design, at which the lists begin.
        form.EmuListbox.SetTop(1150 - form.EmuListbox.Height());
        Resize(14400, 10200);
    }
    void Resize(int width, int height) {
        form.Move(0, 0, width, height);
        layout.Form_Resize();
    }
    static Place PlaceOf(const forms::Control& control) {
        return {control.Left(), control.Top(), control.Width(), control.Height()};
    }
    void ExpectPicture(Place place) {
        EXPECT_EQ(PlaceOf(form.VorschauBild), place)
            << form.VorschauBild.Left() << "," << form.VorschauBild.Top() << ","
            << form.VorschauBild.Width() << "," << form.VorschauBild.Height();
    }
    // A picture of so many pixels is on view.
    void Show(int width, int height) {
        form.VorschauBild.SetVisible(true);
        form.GamePictureVis.SetVisible(true);
        form.GamePicture.Move(0, 0, width * 15, height * 15);
    }

    core::Form1 form{forms::Toolkit{}};
    Layout layout{form};
};

TEST_F(LayoutSizes, ThePictureIsSquareAndEndsAboveTheWindowsEdge) {
    ASSERT_EQ(form.FavoritenListe.Top(), 1300);
    ExpectPicture({9433, 1300, 4800, 4800});
    Resize(15360, 11520);
    ExpectPicture({10073, 1300, 5120, 5120});
    Resize(28800, 16200);
    ExpectPicture({19033, 1300, 9600, 9600});
    Resize(24000, 9000);
    ExpectPicture({15833, 1300, 8000, 7000});
    Resize(14400, 3000);
    ExpectPicture({9433, 1300, 4800, 1000});
}

TEST_F(LayoutSizes, ANegativeMeasureFailsAlone) {
    Resize(12000, 1900);
    ExpectPicture({7833, 1300, 4000, 4800});
    EXPECT_EQ(form.FavoritenListe.Width(), form.ListWidth);
    Resize(12000, 1400);
    EXPECT_LT(form.ListHeight, 0);
    for (const forms::ListBox* list : {&form.FavoritenListe, &form.EmulatorLongListbox})
        EXPECT_EQ(list->Width(), form.ListWidth) << list->Name();
    Resize(500, 1400);
    EXPECT_LT(form.ListWidth, 0);
    EXPECT_EQ(form.VorschauBild.Left(), form.Col2Left);
    Resize(14400, 10200);
    ExpectPicture({9433, 1300, 4800, 4800});
    EXPECT_EQ(PlaceOf(form.SettingsFrame), (Place{9433, 6100, 4867, 4100}));
}

TEST_F(LayoutSizes, ToldOffsetsOfTheFrame) {
    EXPECT_EQ(PlaceOf(form.SettingsFrame), (Place{9433, 6100, 4867, 4100}));
    EXPECT_EQ(form.AlwaysOnTop1.Left(), 4297);
    EXPECT_EQ(form.JoystickIcon.Left(), 3677);
    EXPECT_EQ(form.SettingsBtn.Left(), 3367);
    EXPECT_EQ(form.SettingsShortBtn.Left(), 3367);
    // Both end where they are told to, and are as wide as the column lets them.
    EXPECT_EQ(form.ExitBtn.Width(), 1200);
    EXPECT_EQ(form.ExitBtn.Left(), 4867 - form.ExitBtn.Width() - 300);
    EXPECT_EQ(form.SearchDblsTxt.Width(), 2207);
    EXPECT_EQ(form.SearchDblsTxt.Left(), form.ExitBtn.Left() - 300 - form.SearchDblsTxt.Width());
    EXPECT_EQ(form.SearchAllBtn.Left(), 100);
    EXPECT_EQ(form.TopRightPic.Left(), 10900);
    EXPECT_EQ(form.EmuListbox.Width(), 3520);
    EXPECT_EQ(form.Label1.Left(), 4020);
}

TEST_F(LayoutSizes, TheTitlesLineEndsAtTheCornersPicture) {
    for (const int width : {9600, 6000}) {
        Resize(width, 10200);
        EXPECT_EQ(form.MyCaptionLabel.Right(), form.TopRightPic.Left()) << width;
    }
    // What lies between is the window's surface.
    for (const int width : {14400, 30000}) {
        Resize(width, 10200);
        EXPECT_EQ(form.MyCaptionLabel.Width(), 9000) << width;
    }
    Resize(3000, 3000);
    EXPECT_EQ(form.MyCaptionLabel.Width(), 0);
}

TEST_F(LayoutSizes, TheShownPictureFillsItsFrameBeforeTheWindowIsReady) {
    EXPECT_FALSE(form.WindowReady);
    EXPECT_EQ(PlaceOf(form.GamePictureVis), (Place{0, 0, 4800, 4800}));
    Resize(15360, 11520);
    EXPECT_EQ(PlaceOf(form.GamePictureVis), (Place{0, 0, 5120, 5120}));
}

TEST_F(LayoutSizes, ZoomShowsTheNaturalSizeAndAnotherClickTheOld) {
    Show(320, 256);
    layout.ZoomPicture();
    EXPECT_EQ(PlaceOf(form.GamePicture), (Place{0, 0, 4800, 3840}));
    ExpectPicture({9300, 1300, 4800, 3840});
    EXPECT_TRUE(form.GamePicture.Visible());
    EXPECT_FALSE(form.GamePictureVis.Visible());
    EXPECT_EQ(form.Children().back(), &form.VorschauBild);
    layout.SetVorschau();
    ExpectPicture({9433, 1300, 4800, 4800});
    EXPECT_FALSE(form.GamePicture.Visible());
    EXPECT_TRUE(form.GamePictureVis.Visible());
    EXPECT_NE(form.Children().back(), &form.VorschauBild);
    EXPECT_EQ(PlaceOf(form.GamePictureVis), (Place{0, 0, 4800, 4800}));
}

TEST_F(LayoutSizes, ZoomIsNoLargerThanTheWindowAndTheLists) {
    Show(640, 480);
    layout.ZoomPicture();
    ExpectPicture({4500, 1300, 9600, 7200});
    EXPECT_EQ(form.GamePicture.Width(), 9600);
    layout.SetVorschau();
    // Zoomed once more in a larger window, it is larger.
    Show(2000, 100);
    layout.ZoomPicture();
    EXPECT_EQ(form.GamePicture.Width(), 13800);
    Resize(40000, 16200);
    EXPECT_EQ(form.GamePicture.Width(), 30000);
    layout.ZoomPicture();
    EXPECT_EQ(form.GamePicture.Width(), 30000);
    Resize(14400, 10200);
    Show(1600, 200);
    layout.ZoomPicture();
    ExpectPicture({300, 1300, 13800, 1725});
    layout.SetVorschau();
    Show(100, 2000);
    layout.ZoomPicture();
    ExpectPicture({14400 - 430 - 300, 1300, 430, 8600});
    layout.SetVorschau();
    Show(1, 32767);
    layout.ZoomPicture();
    EXPECT_EQ(form.GamePicture.Height(), 8600);
    EXPECT_GE(form.GamePicture.Width(), 1);
}

TEST_F(LayoutSizes, ZoomMovesNothingUnderThePicture) {
    Show(640, 480);
    const int top = form.SettingsFrame.Top(), exit = form.ExitBtn.Top();
    layout.ZoomPicture();
    layout.ResizeSettingsWindow();
    EXPECT_EQ(form.SettingsFrame.Top(), top);
    EXPECT_EQ(form.ExitBtn.Top(), exit);
    Resize(15360, 11520);
    EXPECT_FALSE(form.GamePicture.Visible());
    EXPECT_EQ(form.SettingsFrame.Top(), form.VorschauBild.Bottom());
}

TEST_F(LayoutSizes, PictureRightOfNoListIsOnlyPlaced) {
    Show(320, 256);
    form.WIthoutDoubles.SetLeft(form.VorschauBild.Left());
    form.GamePicture.Move(70, 80, 4800, 3840);
    layout.ZoomPicture();
    EXPECT_EQ(PlaceOf(form.GamePicture), (Place{0, 0, 4800, 3840}));
    EXPECT_FALSE(form.GamePicture.Visible());
    ExpectPicture({9433, 1300, 4800, 4800});
}

TEST_F(LayoutSizes, EndedZoomWithoutAPictureOnViewShowsNone) {
    Show(320, 256);
    layout.ZoomPicture();
    form.VorschauBild.SetVisible(false);
    layout.SetVorschau();
    EXPECT_FALSE(form.GamePicture.Visible());
    EXPECT_FALSE(form.GamePictureVis.Visible());
}

struct Dragged : LayoutSizes {
    Dragged() { Put(500, 2000); }
    void Put(int left, int top) {
        form.SettingsSubPicture.Move(left, top, 4560, 480);
        layout.ResizeSettingsWindow();
    }
    int Left() const { return form.SettingsSubPicture.Left(); }
    int Top() const { return form.SettingsSubPicture.Top(); }
};

TEST_F(Dragged, PanelBeyondTheEdgesComesBack) {
    form.SettingsSubPicture.SetHeight(480);
    Put(14100, 9700);
    EXPECT_EQ(Left(), 14100);
    EXPECT_EQ(Top(), 9700);
    Put(14101, 9701);
    EXPECT_EQ(Left(), 14400 - form.SettingsSubPicture.Width() - 200);
    EXPECT_EQ(Top(), 9520);
}

TEST_F(Dragged, PanelComesBackToItsPlaceWithTheWindowsSize) {
    Resize(28800, 16200);
    Put(20000, 14000);
    // The next start has the old size until the maximised one comes.
    Resize(14400, 10200);
    EXPECT_LT(Left(), 14400);
    EXPECT_LT(Top(), 10200);
    Resize(28800, 16200);
    EXPECT_EQ(Left(), 20000);
    EXPECT_EQ(Top(), 14000);
    Resize(3000, 2000);
    Resize(28800, 16200);
    EXPECT_EQ(Left(), 20000);
    EXPECT_EQ(Top(), 14000);
}

TEST_F(Dragged, PanelMovedInASmallWindowStaysThere) {
    Resize(28800, 16200);
    Put(20000, 14000);
    Resize(14400, 10200);
    Put(1000, 3000);
    Resize(28800, 16200);
    EXPECT_EQ(Left(), 1000);
    EXPECT_EQ(Top(), 3000);
}

TEST_F(LayoutSizes, DockedPanelIsHomeAtEverySize) {
    for (const auto& [width, height] : {std::pair{14400, 10200},
                                        {28800, 16200},
                                        {3000, 1500},
                                        {15360, 11520},
                                        {19200, 10800},
                                        {9600, 20000},
                                        {24000, 9000},
                                        {14400, 10200}}) {
        Resize(width, height);
        EXPECT_TRUE(layout.DrivesAreHome()) << width;
    }
}

TEST_F(LayoutSizes, TheExitIsInReachHoweverLowTheWindow) {
    for (const int width : {9600, 14400, 20490, 24000, 28800}) {
        for (int height = 3000; height <= 16200; height += 150) {
            Resize(width, height);
            const forms::Frame& frame = form.SettingsFrame;
            EXPECT_LE(frame.Top() + form.ExitBtn.Bottom(), form.Height()) << width << "x" << height;
            EXPECT_GE(form.ExitBtn.Top(), 0) << width << "x" << height;
            const bool options = form.SettingsBtn.Top() < frame.Height();
            EXPECT_TRUE(!options || form.SettingsBtn.Bottom() <= form.ExitBtn.Top());
            const bool sizes = form.FontSizeCombo.Top() < frame.Height();
            EXPECT_TRUE(!sizes || form.FontSizeCombo.Top() >= form.ExitBtn.Bottom());
            EXPECT_TRUE(options || !sizes);
            if (HasFailure()) return;
        }
    }
}

TEST_F(LayoutSizes, ThePictureIsShownAboveTheButtonsOfALowWindow) {
    EXPECT_EQ(form.GamePictureVis.MostShownHeight(), -1);
    Resize(19200, 10800);
    EXPECT_EQ(form.GamePictureVis.MostShownHeight(), -1) << "1280 x 720 has room for all";
    Resize(9600, 7200);
    const int shown = form.GamePictureVis.MostShownHeight();
    ASSERT_GT(shown, 0);
    EXPECT_LT(form.VorschauBild.Top() + shown, form.AddToFavorit_Global.Top());
    EXPECT_LE(form.SettingsSubPicture.Bottom(), form.SettingsFrame.Top());
    Resize(14400, 10200);
    EXPECT_EQ(form.GamePictureVis.MostShownHeight(), -1);
}

TEST_F(LayoutSizes, FavouritesAndTheOpenChoiceHaveColoursOfTheirOwn) {
    form.FavouritesColor = forms::Rgb(0xe0, 0xff, 0xf1);
    form.EmulatorListColor = forms::Rgb(0xf6, 0xf7, 0xd2);
    layout.ArrangeLists();
    EXPECT_EQ(form.FavoritenListe.BackColor(), 15859680U);
    EXPECT_EQ(form.EmulatorLongListbox.BackColor(), 13826038U);
    EXPECT_EQ(form.FavoritenListe.ForeColor(), 0U);
    EXPECT_EQ(form.EmulatorLongListbox.ForeColor(), 0U);
}

}  // namespace
}  // namespace kivu::ui
