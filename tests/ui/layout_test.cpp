#include "ui/layout.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <vector>

#include "core/form1.h"

namespace kivu::ui {
namespace {

class LayoutTest : public ::testing::Test {
 protected:
    LayoutTest() {
        form.Current_ProgramNameFull.onChange = [this] { layout.Current_ProgramNameFull_Change(); };
        form.Current_ProgramNameFull.onFontChange = [this] {
            layout.Current_ProgramNameFull_FontChange();
        };
        form.SettingsSubPicture.onResize = [this] { layout.SettingsSubPicture_Resize(); };
        form.VorschauBild.onResize = [this] { layout.VorschauBild_Resize(); };
        form.Current_ProgramNameFull.SetFontSize(18);
        Resize(14400, 10200);
    }
    void Resize(int width, int height) {
        form.Move(0, 0, width, height);
        layout.Form_Resize();
    }
    void Name(int words) {
        std::string name;
        for (int i = 0; i < words; ++i)
            name += "Amphibian ";
        form.Current_ProgramNameFull.SetCaption(name + "(1992).adf");
    }
    int NameBottom() { return form.SettingsFrame.Top() + form.Current_ProgramNameFull.Bottom(); }
    void ExpectRowsInside() {
        EXPECT_EQ(form.SettingsFrame.Bottom(), form.Height());
        EXPECT_GE(form.ExitBtn.Top(), 0);
        EXPECT_LE(form.ExitBtn.Bottom(), form.SettingsFrame.Height());
    }

    core::Form1 form{forms::Toolkit{}};
    Layout layout{form};
};

TEST_F(LayoutTest, FrameBeginsUnderThePicture) {
    EXPECT_EQ(form.SettingsFrame.Top(), form.VorschauBild.Bottom());
    Name(1);
    EXPECT_EQ(form.SettingsFrame.Top(), form.VorschauBild.Bottom());
    EXPECT_EQ(form.Current_ProgramNameFull.Left(), 100);
    EXPECT_EQ(form.Current_ProgramNameFull.Top(), 200);
    EXPECT_EQ(form.Current_ProgramNameFull.Width(), form.SettingsFrame.Width() - 100);
    ExpectRowsInside();
}

TEST_F(LayoutTest, NameTakesTheLinesThatThereAreAndThePictureStays) {
    const int home = form.AddToFavorit.Top(), frame = form.SettingsFrame.Top();
    bool cut = false;
    for (int words = 1; words <= 12; ++words) {
        Name(words);
        const forms::Label& name = form.Current_ProgramNameFull;
        EXPECT_LE(NameBottom(), form.AddToFavorit.Top()) << words;
        EXPECT_EQ(form.SettingsFrame.Top(), frame) << words;
        EXPECT_LE(name.ShownLines(name.Width()) * name.ShownLineHeight(), name.Height()) << words;
        cut = name.ShownText().ends_with("…");
        EXPECT_EQ(cut, name.ToolTipText() != "") << words;
        // The buttons and the rows stand still.
        EXPECT_EQ(form.AddToFavorit.Top(), home) << words;
        ExpectRowsInside();
    }
    EXPECT_TRUE(cut);
    form.Current_ProgramNameFull.SetCaption("Short.adf");
    EXPECT_EQ(form.Current_ProgramNameFull.ToolTipText(), "");
    EXPECT_EQ(form.Current_ProgramNameFull.ShownText(), "");
}

TEST_F(LayoutTest, NameKeepsItsLettersOnTheScreen) {
    Resize(14400, 13000);
    const forms::Label& name = form.Current_ProgramNameFull;
    const std::string whole = "Brick Bay (1992)(Kivu)(Disk 1 of 3).com";
    form.Current_ProgramNameFull.SetCaption(whole);
    ASSERT_NE(name.Caption(), whole);
    EXPECT_EQ(name.ShownText(), whole);
    // What is put behind it as it is broken stands behind it as it is whole.
    form.Current_ProgramNameFull.SetCaption(name.Caption() + "\r (Roms: 12)");
    EXPECT_EQ(name.ShownText(), whole + "\r (Roms: 12)");
    form.Current_ProgramNameFull.SetCaption("Short.adf");
    EXPECT_EQ(name.ShownText(), "");
    EXPECT_EQ(name.Caption(), "Short.adf");
}

TEST_F(LayoutTest, FrameIsLaidOutAgainWhenTheNamesFontChanges) {
    Resize(14400, 13000);
    Name(3);
    forms::Label& name = form.Current_ProgramNameFull;
    const int before = name.Height();
    name.SetFontSize(13);
    // The screen shows one size, whatever routines say.
    EXPECT_EQ(name.Height(), before);
    name.SetShownFontSize(0);
    name.SetFontSize(20);
    EXPECT_GT(name.Height(), before);
    EXPECT_EQ(name.Height(), name.ShownLines(name.Width()) * name.ShownLineHeight());
}

// As a screen rounds them.
int Pixels(int twips) {
    return static_cast<int>(std::lround(twips / 15.0));
}

TEST_F(LayoutTest, RowsStayOnTheirPixelWhateverTheNameTakes) {
    for (const int height : {10200, 10207, 9999}) {
        Resize(14400, height);
        const auto row = [&](const forms::Control& control) {
            return Pixels(form.SettingsFrame.Top()) + Pixels(control.Top());
        };
        form.Current_ProgramNameFull.SetCaption("");
        const int exit = row(form.ExitBtn), load = row(form.LoadBtn);
        for (int words = 1; words <= 14; ++words) {
            Name(words);
            EXPECT_EQ(row(form.ExitBtn), exit) << words << " at " << height;
            EXPECT_EQ(row(form.LoadBtn), load) << words << " at " << height;
        }
    }
}

TEST_F(LayoutTest, NameThatNeverFitsIsCutAtALineAndToldByTheToolTip) {
    Resize(12000, 9000);
    Name(30);
    const forms::Label& name = form.Current_ProgramNameFull;
    ASSERT_TRUE(name.Visible());
    EXPECT_EQ(name.Height() % name.ShownLineHeight(), 0);
    EXPECT_GT(name.Height(), 0);
    EXPECT_TRUE(name.ShownText().starts_with("Amphibian"));
    EXPECT_TRUE(name.ShownText().ends_with("…"));
    EXPECT_EQ(name.ToolTipText().find('\r'), std::string::npos);
    EXPECT_NE(name.ToolTipText().find("Amphibian (1992).adf"), std::string::npos);
    ExpectRowsInside();
    // More room takes more of it.
    const std::size_t shown = name.ShownText().size();
    Resize(12000, 13000);
    EXPECT_GT(name.ShownText().size(), shown);
}

struct Standing {
    std::string name;
    int left, top, right, bottom;
};

// What stands in the right column, in the window's twips.
std::vector<Standing> ColumnOf(const core::Form1& form) {
    std::vector<Standing> places;
    const auto add = [&](const forms::Control& control, int x, int y) {
        places.push_back({control.Name(), x + control.Left(), y + control.Top(),
                          x + control.Right(), y + control.Bottom()});
    };
    for (const forms::Control* control :
         {static_cast<const forms::Control*>(&form.AddToFavorit),
          static_cast<const forms::Control*>(&form.AddToFavorit_Global),
          static_cast<const forms::Control*>(&form.SettingsSubPicture)})
        add(*control, 0, 0);
    for (const forms::Control* control : {static_cast<const forms::Control*>(&form.LoadBtn),
                                          static_cast<const forms::Control*>(&form.SettingsBtn),
                                          static_cast<const forms::Control*>(&form.SearchAllBtn),
                                          static_cast<const forms::Control*>(&form.SearchDblsTxt),
                                          static_cast<const forms::Control*>(&form.SuchErg),
                                          static_cast<const forms::Control*>(&form.ExitBtn),
                                          static_cast<const forms::Control*>(&form.FontSizeCombo),
                                          static_cast<const forms::Control*>(&form.JoystickIcon),
                                          static_cast<const forms::Control*>(&form.AlwaysOnTop1)})
        add(*control, form.SettingsFrame.Left(), form.SettingsFrame.Top());
    // What is not there, and what the window has no room for.
    std::erase_if(places, [&](const Standing& place) { return place.top >= form.Height(); });
    return places;
}

TEST_F(LayoutTest, RightColumnHoldsDownToSmallScreens) {
    for (int width = 9600; width <= 28800; width += 150) {
        Resize(width, std::max(7200, width * 9 / 16));
        const std::vector<Standing> places = ColumnOf(form);
        for (std::size_t i = 0; i < places.size(); ++i) {
            const Standing& a = places[i];
            EXPECT_GE(a.left, form.SettingsFrame.Left() + 100) << a.name << " at " << width;
            EXPECT_LE(a.right, form.Width() - 100 - 150) << a.name << " at " << width;
            EXPECT_LE(a.bottom, form.Height()) << a.name << " at " << width;
            EXPECT_GT(a.top, form.FavoritenListe.Top()) << a.name << " at " << width;
            for (std::size_t j = i + 1; j < places.size(); ++j) {
                const Standing& b = places[j];
                const bool apart = a.right <= b.left || b.right <= a.left || a.bottom <= b.top ||
                                   b.bottom <= a.top;
                EXPECT_TRUE(apart) << a.name << " and " << b.name << " at " << width;
            }
        }
        if (HasFailure()) return;
    }
}

TEST_F(LayoutTest, BoxesOfTheDrivesLieInTheirPanelAndNotOnItsHandle) {
    for (const int width : {9600, 12000, 14400, 28800}) {
        Resize(width, 10200);
        const forms::PictureBox& panel = form.SettingsSubPicture;
        EXPECT_EQ(form.DrivesResizeLabel.Right(), panel.Width()) << width;
        EXPECT_EQ(form.DrivesResizeLabel.Bottom(), panel.Height()) << width;
        EXPECT_LE(form.Frame2.Right(), form.DrivesResizeLabel.Left()) << width;
        EXPECT_LE(form.Frame2.Bottom(), panel.Height()) << width;
        for (const forms::CheckBox& box : form.Check_Dfx) {
            EXPECT_LE(box.Right(), form.Frame2.Width()) << width;
            EXPECT_LE(box.Bottom(), form.Frame2.Height()) << width;
        }
    }
}

TEST_F(LayoutTest, RightColumnHasOneGrid) {
    for (const int width : {12000, 14400, 19200, 28800}) {
        Resize(width, width * 9 / 16);
        const int left = form.SettingsFrame.Left();
        EXPECT_EQ(form.LoadBtn.Left(), form.FontSizeCombo.Left()) << width;
        EXPECT_EQ(form.LoadBtn.Left(), form.SearchAllBtn.Left()) << width;
        EXPECT_EQ(left + form.LoadBtn.Left(), form.AddToFavorit.Left()) << width;
        EXPECT_EQ(left + form.LoadBtn.Left(), form.SettingsSubPicture.Left()) << width;
        EXPECT_EQ(form.LoadBtn.Left(), form.Current_ProgramNameFull.Left()) << width;
        EXPECT_EQ(form.LoadBtn.Right(), form.SearchDblsTxt.Right()) << width;
        EXPECT_EQ(form.LoadBtn.Right(), form.FontSizeCombo.Right()) << width;
        EXPECT_EQ(form.SettingsBtn.Left(), form.ExitBtn.Left()) << width;
        EXPECT_EQ(form.SettingsBtn.Right(), form.ExitBtn.Right()) << width;
        EXPECT_EQ(form.AddToFavorit_Global.Right(), left + form.ExitBtn.Right()) << width;
        for (const forms::Control* control :
             {static_cast<const forms::Control*>(&form.LoadBtn),
              static_cast<const forms::Control*>(&form.SettingsBtn),
              static_cast<const forms::Control*>(&form.SearchDblsTxt),
              static_cast<const forms::Control*>(&form.SearchAllBtn),
              static_cast<const forms::Control*>(&form.FontSizeCombo),
              static_cast<const forms::Control*>(&form.AddToFavorit),
              static_cast<const forms::Control*>(&form.AddToFavorit_Global)})
            EXPECT_EQ(control->Height(), form.ExitBtn.Height()) << control->Name();
        // As they have always been.
        EXPECT_EQ(form.ExitBtn.Left(), form.SettingsFrame.Width() - form.ExitBtn.Width() - 300);
        EXPECT_EQ(form.SearchDblsTxt.Left(),
                  form.ExitBtn.Left() - form.SearchDblsTxt.Width() - 300);
    }
}

TEST_F(LayoutTest, NarrowWindowStacksTheFavouritesButtonsAndShortensTheSearchBox) {
    const int search = form.SearchDblsTxt.Width();
    EXPECT_EQ(form.AddToFavorit_Global.Top(), form.AddToFavorit.Top());
    Resize(12000, 9000);
    EXPECT_EQ(form.AddToFavorit_Global.Left(), form.AddToFavorit.Left());
    EXPECT_LT(form.AddToFavorit_Global.Bottom(), form.AddToFavorit.Top());
    EXPECT_LT(form.SearchDblsTxt.Width(), search);
    Name(4);
    EXPECT_LE(NameBottom(), form.SettingsFrame.Top() + form.LoadBtn.Top());
    Resize(14400, 10200);
    EXPECT_EQ(form.SearchDblsTxt.Width(), search);
    EXPECT_EQ(form.AddToFavorit_Global.Top(), form.AddToFavorit.Top());
}

TEST_F(LayoutTest, DrivesPanelGoesHomeAtEachSizeUntilItIsDraggedAway) {
    forms::PictureBox& panel = form.SettingsSubPicture;
    EXPECT_TRUE(layout.DrivesAreHome());
    EXPECT_FALSE(layout.DrivesCoverOthers());
    Resize(28800, 16200);
    EXPECT_TRUE(layout.DrivesAreHome());
    const int left = panel.Left(), top = panel.Top();
    Resize(14400, 10200);
    EXPECT_TRUE(layout.DrivesAreHome());
    EXPECT_NE(panel.Left(), left);
    // The home of another size lies on something else here.
    panel.Move(panel.Left() - 4000, top - 8000, panel.Width(), panel.Height());
    EXPECT_FALSE(layout.DrivesAreHome());
    EXPECT_TRUE(layout.DrivesCoverOthers());
    Resize(12000, 9000);
    EXPECT_FALSE(layout.DrivesAreHome());
    layout.DockDrives();
    EXPECT_TRUE(layout.DrivesAreHome());
}

TEST_F(LayoutTest, DrivesPanelDroppedNearItsHomeGoesThere) {
    forms::PictureBox& panel = form.SettingsSubPicture;
    panel.Move(panel.Left() - 290, panel.Top() + 290, panel.Width(), panel.Height());
    layout.DockDrivesNearHome();
    EXPECT_TRUE(layout.DrivesAreHome());
    panel.SetTop(panel.Top() - 310);
    layout.DockDrivesNearHome();
    EXPECT_FALSE(layout.DrivesAreHome());
}

TEST_F(LayoutTest, HandleShowsThatItFolds) {
    EXPECT_EQ(form.DrivesResizeLabel.ShownText(), "<");
    layout.DrivesResizeLabel_Click();
    EXPECT_EQ(form.DrivesResizeLabel.ShownText(), "");
    EXPECT_EQ(form.DrivesResizeLabel.Caption(), ">");
    // Folded, it takes the narrow window's form where it unfolds there.
    Resize(9600, 7200);
    EXPECT_EQ(form.SettingsSubPicture.Width(), 480);
    layout.DrivesResizeLabel_Click();
    EXPECT_EQ(form.DrivesResizeLabel.ShownText(), "<");
    EXPECT_EQ(form.DrivesResizeLabel.Caption(), std::string(10, ' '));
    EXPECT_LE(form.SettingsSubPicture.Right(), form.Width());
}

TEST_F(LayoutTest, LargeFontTakesTheCountsFromTheTabs) {
    form.Label1.SetCaption(" Favorites (12) ");
    form.Label2.SetCaption(" Simple (31999) ");
    form.Label3.SetCaption(" Complete List (31999) ");
    form.ListMode = "2";
    form.EmuListbox.SetFontSize(16);
    layout.Form_Resize();
    EXPECT_EQ(form.Label1.ShownText(), "");
    form.EmuListbox.SetFontSize(36);
    layout.Form_Resize();
    EXPECT_EQ(form.Label1.ShownText(), "Favorites");
    EXPECT_EQ(form.Label1.ToolTipText(), "Favorites (12)");
    EXPECT_EQ(form.Label2.ShownText(), "");
    EXPECT_GE(form.Label2.Width(), form.Label2.TextWidth());
    form.EmuListbox.SetFontSize(48);
    layout.Form_Resize();
    EXPECT_EQ(form.Label2.ShownText(), "Simple");
    EXPECT_GE(form.Label2.Width(), form.Label2.WidthOf("Simple"));
    form.EmuListbox.SetFontSize(16);
    layout.Form_Resize();
    EXPECT_EQ(form.Label3.ShownText(), "");
    EXPECT_EQ(form.Label3.ToolTipText(), "");
}

TEST_F(LayoutTest, DrivesPanelStaysWhereItIsWhileNamesChange) {
    form.SettingsSubPicture.Move(500, 2000, form.SettingsSubPicture.Width(),
                                 form.SettingsSubPicture.Height());
    Name(12);
    EXPECT_EQ(form.SettingsSubPicture.Left(), 500);
    EXPECT_EQ(form.SettingsSubPicture.Top(), 2000);
}

}  // namespace
}  // namespace kivu::ui
