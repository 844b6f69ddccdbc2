// Colours tried out in a window over the main one.

#include "scenario.h"
#include "testing/color_window.h"

namespace kivu::scenarios {
namespace {

struct ColorScenario : LoadedScenario {
    void TearDown() override {
        colors.reset();
        LoadedScenario::TearDown();
    }
    void Open() {
        Start();
        colors = std::make_unique<testing::ColorWindow>(session->Routines());
        session->Screen().Show(*colors, &Form());
    }
    Json Of(const std::string& name) { return Do("get", "Colors." + name).value("value", Json()); }

    std::unique_ptr<testing::ColorWindow> colors;
};

TEST_F(ColorScenario, SliderColoursTheMainWindow) {
    Open();
    colors->picker.SetBackColor(33023);
    EXPECT_EQ(Of("ColSlider1(0).Value"), 255);
    EXPECT_EQ(Of("ColSlider1(1).Value"), 128);
    Do("set", "Colors.ColSlider1(2).Value", 64);
    EXPECT_EQ(Of("BackGroundPix.BackColor"), "#FF8040");
    EXPECT_EQ(Text("BackColor"), "#FF8040");
    EXPECT_EQ(Text("Label2.BackColor"), "#FF8040");
    EXPECT_EQ(Text("SearchDblsTxt.ForeColor"), "#FF8040");
    EXPECT_EQ(colors->changes, 1);
}

TEST_F(ColorScenario, KeysMoveASlider) {
    Open();
    colors->picker.SetBackColor(33023);
    Do("key", "Colors.ColSlider1(2)", "Right");
    EXPECT_EQ(Text("BackColor"), "#FF8001");
    EXPECT_EQ(colors->changes, 1);
}

TEST_F(ColorScenario, DoubleClickAsks) {
    Open();
    colors->picker.SetBackColor(4227327);
    Do("input", "#22303c");
    Do("dblclick", "Colors.Option2");
    const Json boxes = Do("boxes").at("value");
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0]["text"], "#FFFFFF - Format: #FFFFFFFF");
    EXPECT_EQ(Text("ForeColor"), "#22303C");
    EXPECT_EQ(Text("BackColor"), "#FF8040");
    EXPECT_EQ(Of("Option2.Value"), 1);
    EXPECT_EQ(Of("ColSlider1(0).Value"), 0x22);
    EXPECT_EQ(colors->changes, 1);
}

TEST_F(ColorScenario, KeyAsks) {
    Open();
    Do("input", "#22303c");
    Do("key", "Colors.Option2", "F2");
    EXPECT_EQ(Do("boxes").at("value").size(), 1U);
    EXPECT_EQ(Text("ForeColor"), "#22303C");
    EXPECT_EQ(Of("Option2.Value"), 1);
}

TEST_F(ColorScenario, NothingIsWritten) {
    tree.Write("Config/Alpha/Skin/Skin.ini",
               "[Settings]\r\nBackColor=#010203\r\nFontColor=#040506\r\nTitleString=Mine\r\n");
    Open();
    const std::string before = tree.Read("Config/Alpha/Skin/Skin.ini");
    Do("set", "Colors.ColSlider1(0).Value", 200);
    EXPECT_EQ(Text("BackColor"), "#C80203");
    EXPECT_EQ(Of("SkinLines.Text"), "BackColor=#C80203\r\nFontColor=#040506");
    EXPECT_EQ(tree.Read("Config/Alpha/Skin/Skin.ini"), before);
}

TEST_F(ColorScenario, SpeaksTheUsersLanguage) {
    options.language = "German";
    Open();
    EXPECT_EQ(Of("Option2.Caption"), "Schrift");
    EXPECT_EQ(Of("SliderName(1).Caption"), "Grün");
    options.language = "English";
    colors.reset();
    Open();
    EXPECT_EQ(Of("Option2.Caption"), "Writing");
}

}  // namespace
}  // namespace kivu::scenarios
