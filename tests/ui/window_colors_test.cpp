#include "ui/window_colors.h"

#include <gtest/gtest.h>

#include "core/form1.h"
#include "testing/memory_file_system.h"

namespace kivu::ui {
namespace {

constexpr forms::Color black = 0, white = 0xffffff, blue = 0xbc5200;

struct WindowColorsTest : ::testing::Test {
    WindowColorsTest() { form.ColorsIniName = "/k/Config/A/Skin/Skin.ini"; }
    void Skin(const std::string& lines) {
        files.AddFile(form.ColorsIniName, "[Settings]\r\n" + lines);
    }
    void SetColors() { colors.SetColors(form, -1, -1); }
    void ExpectColors(const forms::Control& control, forms::Color back, forms::Color fore) {
        EXPECT_EQ(control.BackColor(), back) << control.FullName();
        EXPECT_EQ(control.ForeColor(), fore) << control.FullName();
    }

    kivu::testing::MemoryFileSystem files;
    profile::Ini ini{files};
    core::Form1 form{forms::Toolkit{}};
    WindowColors colors{form, ini};
};

TEST_F(WindowColorsTest, WithoutAProfileTheyAreTheDefault) {
    const forms::Color exit = form.ExitBtn.BackColor();
    const forms::Color all = form.SearchAllBtn.BackColor();
    form.SetBackColor(1);
    form.Label1.SetBackColor(1);
    SetColors();
    ExpectColors(form, blue, white);
    ExpectColors(form.Label1, blue, white);
    ExpectColors(form.UAE_Short, blue, white);
    ExpectColors(form.VorschauBild, blue, white);
    ExpectColors(form.Check_Dfx[4], blue, white);
    // Fields to type into are the other way round.
    ExpectColors(form.SearchDblsTxt, white, blue);
    ExpectColors(form.TxtRomPath, white, blue);
    EXPECT_EQ(form.ExitBtn.BackColor(), exit);
    EXPECT_EQ(form.SearchAllBtn.BackColor(), all);
}

TEST_F(WindowColorsTest, TwoListsHaveOnesOfTheirOwn) {
    for (const char* skin : {"", "BackColor=#FFFFFF\r\nFontColor=#000000\r\n"}) {
        Skin(skin);
        SetColors();
        ExpectColors(form.FavoritenListe, 15859680, black);
        ExpectColors(form.EmulatorLongListbox, 13826038, black);
    }
}

TEST_F(WindowColorsTest, ComeFromTheSkinsProfile) {
    Skin("BackColor=#FFFFFF\r\nFontColor=#000000\r\n");
    SetColors();
    ExpectColors(form, white, black);
    ExpectColors(form.Label2, white, black);
    ExpectColors(form.SearchDblsTxt, black, white);
    EXPECT_EQ(form.FormBackColor, white);
    EXPECT_EQ(form.FormForeColor, black);
}

TEST_F(WindowColorsTest, OneMayBeGivenAndTheOtherRead) {
    Skin("BackColor=#010203\r\nFontColor=#040506\r\n");
    colors.SetColors(form, 33023, -1);
    ExpectColors(form.Label2, 33023, 0x060504);
    colors.SetColors(form, -1, 33023);
    ExpectColors(form.Label2, 0x030201, 33023);
    // Nothing is written.
    EXPECT_EQ(files.BytesOf(form.ColorsIniName),
              "[Settings]\r\nBackColor=#010203\r\nFontColor=#040506\r\n");
}

TEST_F(WindowColorsTest, OfAnotherWindowAreKeptByTheMainOne) {
    forms::Form other{"Other"};
    forms::Label label{&other, "Label"};
    colors.SetColors(other, 1, 2);
    ExpectColors(other, 1, 2);
    ExpectColors(label, 1, 2);
    EXPECT_EQ(form.FormBackColor, 1u);
    EXPECT_EQ(form.FormForeColor, 2u);
    ExpectColors(form.Label2, blue, white);
}

TEST_F(WindowColorsTest, LeaveOutWhatHasNoneAndWhatUserControlsAreMadeOf) {
    const forms::Color pin = form.AOT_Disabled.BackColor();
    const forms::Color results = form.FileScanRecursive1.ResultList.BackColor();
    colors.SetColors(form, 1, 2);
    EXPECT_EQ(form.AOT_Disabled.BackColor(), pin);
    EXPECT_EQ(form.FileScanRecursive1.ResultList.BackColor(), results);
    EXPECT_EQ(form.Uhrzeit.BackColor(), blue);
    EXPECT_EQ(form.SuchErg.BackColor(), blue);
    // The pin's place itself lets the window show through.
    ExpectColors(form.AlwaysOnTop1, 1, 2);
}

TEST_F(WindowColorsTest, AreWhatTheOpenChoiceGivesTheDropDownBack) {
    form.EmuListboxBackColor = blue;
    colors.SetColors(form, 1, 2);
    EXPECT_EQ(form.EmuListboxBackColor, 1u);
    EXPECT_EQ(form.EmuListboxForeColor, 2u);
}

TEST_F(WindowColorsTest, NoHexadecimalNumberIsBlackInParts) {
    Skin("BackColor=red\r\nFontColor=#FFF\r\n");
    SetColors();
    ExpectColors(form, black, 255);
}

TEST_F(WindowColorsTest, ProfileMayHaveUnixLinesOrAMark) {
    files.AddFile(form.ColorsIniName, "[Settings]\nBackColor=#010203\nFontColor=#040506\n");
    SetColors();
    ExpectColors(form, 0x030201, 0x060504);
    files.AddFile(form.ColorsIniName,
                  "\xef\xbb\xbf[Settings]\r\nBackColor=#112233\r\nFontColor=#445566\r\n");
    SetColors();
    ExpectColors(form, 0x332211, 0x665544);
}

TEST_F(WindowColorsTest, ProfileMayBeHugeOrADirectory) {
    Skin("BackColor=#010203\r\n" + std::string(10 << 20, ';') + "\r\nFontColor=#040506\r\n");
    SetColors();
    EXPECT_EQ(form.FormBackColor, 0x030201u);
    files.Remove(form.ColorsIniName);
    files.AddDirectory(form.ColorsIniName);
    SetColors();
    ExpectColors(form, blue, white);
    EXPECT_TRUE(files.IsDirectory(form.ColorsIniName));
}

}  // namespace
}  // namespace kivu::ui
