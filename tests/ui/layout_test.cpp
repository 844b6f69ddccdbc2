#include "ui/layout.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace kivu::ui {
namespace {

class LayoutTest : public ::testing::Test {
 protected:
    LayoutTest() {
        form.Current_ProgramNameFull.onChange = [this] { layout.Current_ProgramNameFull_Change(); };
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
        EXPECT_EQ(form.ExitBtn.Top(), form.SettingsFrame.Height() - 1340);
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

TEST_F(LayoutTest, NameOfManyLinesStaysAboveTheFavouritesButtons) {
    const int home = form.AddToFavorit.Top();
    for (int words = 1; words <= 14; ++words) {
        Name(words);
        const forms::Label& name = form.Current_ProgramNameFull;
        EXPECT_LE(NameBottom(), form.AddToFavorit.Top()) << words;
        EXPECT_GE(name.Height(), name.TextHeight()) << words;
        const bool broken = name.WidthOf(name.Caption()) <= name.Width();
        EXPECT_EQ(name.ToolTipText().empty(), broken) << words;
        EXPECT_GE(form.SettingsFrame.Top(), form.FavoritenListe.Top()) << words;
        // The buttons and the rows stand still.
        EXPECT_EQ(form.AddToFavorit.Top(), home) << words;
        ExpectRowsInside();
    }
    form.Current_ProgramNameFull.SetCaption("Short.adf");
    EXPECT_EQ(form.SettingsFrame.Top(), form.VorschauBild.Bottom());
}

TEST_F(LayoutTest, NameThatNeverFitsIsCutAtALineAndToldByTheToolTip) {
    Resize(12000, 7000);
    Name(30);
    const forms::Label& name = form.Current_ProgramNameFull;
    ASSERT_TRUE(name.Visible());
    EXPECT_LT(name.Height(), name.TextHeight());
    const std::string& caption = name.Caption();
    const auto lines = std::count(caption.begin(), caption.end(), '\r') + 1;
    EXPECT_EQ(name.Height() % (name.TextHeight() / static_cast<int>(lines)), 0);
    EXPECT_GT(name.Height(), 0);
    EXPECT_EQ(name.ToolTipText().find('\r'), std::string::npos);
    EXPECT_NE(name.ToolTipText().find("Amphibian (1992).adf"), std::string::npos);
    EXPECT_LE(NameBottom(), form.AddToFavorit.Top());
    ExpectRowsInside();
}

TEST_F(LayoutTest, NameWithAWordThatIsTooWideIsToldByTheToolTipAsItIs) {
    // No blank to break at: the breaks take letters away.
    const std::string word(200, 'M');
    form.Current_ProgramNameFull.SetCaption(word + " (1992).adf");
    const forms::Label& name = form.Current_ProgramNameFull;
    ASSERT_GT(name.WidthOf(name.Caption()), name.Width());
    EXPECT_EQ(name.ToolTipText(), word + " (1992).adf");
    EXPECT_GT(name.Height(), name.TextHeight());
    EXPECT_LE(NameBottom(), form.AddToFavorit.Top());
}

TEST_F(LayoutTest, NarrowWindowStacksTheFavouritesButtonsAndShortensTheSearchBox) {
    EXPECT_EQ(form.AddToFavorit_Global.Top(), form.AddToFavorit.Top());
    EXPECT_LE(form.AddToFavorit_Global.Right(), form.SettingsFrame.Right());
    EXPECT_EQ(form.SearchDblsTxt.Width(), 2250);
    Resize(12000, 9000);
    EXPECT_EQ(form.AddToFavorit_Global.Left(), form.AddToFavorit.Left());
    EXPECT_LT(form.AddToFavorit_Global.Bottom(), form.AddToFavorit.Top());
    EXPECT_LE(form.AddToFavorit_Global.Right(), form.Width());
    EXPECT_LT(form.SearchDblsTxt.Width(), 2250);
    EXPECT_GE(form.SearchAllBtn.Left(), 0);
    EXPECT_GE(form.LoadBtn.Left(), 0);
    EXPECT_LT(form.LoadBtn.Right(), form.SettingsBtn.Left());
    EXPECT_EQ(form.SearchDblsTxt.Left(), form.ExitBtn.Left() - form.SearchDblsTxt.Width() - 300);
    Name(4);
    EXPECT_LE(NameBottom(), form.AddToFavorit_Global.Top());
    Resize(14400, 10200);
    EXPECT_EQ(form.SearchDblsTxt.Width(), 2250);
    EXPECT_EQ(form.AddToFavorit_Global.Top(), form.AddToFavorit.Top());
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
