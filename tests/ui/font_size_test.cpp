#include "ui/font_size.h"

#include <gtest/gtest.h>

#include "core/form1.h"
#include "testing/quiet_ports.h"

namespace kivu::ui {
namespace {

struct Resizing : kivu::testing::QuietLayout {
    void Form_Resize() override { ++resizes; }
    int resizes = 0;
};

struct FontSizeTest : ::testing::Test {
    FontSizeTest() {
        for (int size = 8; size <= 80; ++size)
            form.FontSizeCombo.AddItem(std::to_string(size));
        form.FontSizeCombo.onClick = [this] { fontSize.FontSizeCombo_Click(); };
    }
    void Choose(int row) { form.FontSizeCombo.SetListIndex(row); }
    void ExpectSizes(double lists, double box) {
        for (const forms::ListBox* list :
             {&form.UAE_Short, &form.FavoritenListe, &form.WIthoutDoubles, &form.SuchErgList})
            EXPECT_EQ(list->FontSize(), lists) << list->Name();
        EXPECT_EQ(form.EmuListbox.FontSize(), box);
    }

    core::Form1 form{forms::Toolkit{}};
    Resizing layout;
    FontSize fontSize{form, layout};
};

TEST_F(FontSizeTest, ListsAreFivePointsBelowTheRow) {
    ASSERT_EQ(form.FontSizeCombo.ListCount(), 73);
    Choose(16);
    ExpectSizes(11, 16);
    Choose(40);
    ExpectSizes(35, 40);
}

TEST_F(FontSizeTest, SizeThatThereIsNotLeavesTheListsAlone) {
    Choose(16);
    Choose(5);
    ExpectSizes(11, 5);
    Choose(0);
    // Neither is there a size 0 of the box.
    ExpectSizes(11, 5);
    Choose(3);
    ExpectSizes(11, 3);
}

TEST_F(FontSizeTest, BoxIsNoLargerThan52Points) {
    Choose(60);
    ExpectSizes(55, 52);
    Choose(72);
    ExpectSizes(67, 52);
}

TEST_F(FontSizeTest, ListsKeepTheirHeight) {
    const int height = form.FavoritenListe.Height();
    Choose(60);
    for (const forms::ListBox* list :
         {&form.UAE_Short, &form.FavoritenListe, &form.WIthoutDoubles, &form.SuchErgList})
        EXPECT_EQ(list->Height(), height) << list->Name();
}

TEST_F(FontSizeTest, NameOnShowIsAPointBelowTheLongList) {
    form.EmulatorLongListbox.SetFontSize(20);
    Choose(16);
    EXPECT_EQ(form.Current_ProgramNameFull.FontSize(), 19);
}

TEST_F(FontSizeTest, EachChoiceLaysTheWindowOutOnce) {
    Choose(20);
    EXPECT_EQ(layout.resizes, 1);
    Choose(-1);
    EXPECT_EQ(layout.resizes, 1);
}

}  // namespace
}  // namespace kivu::ui
