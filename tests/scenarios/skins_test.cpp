// The skin that each emulator brings.

#include "scenario.h"
#include "testing/picture_files.h"

namespace kivu::scenarios {
namespace {

struct SkinScenario : LoadedScenario {
    void GiveSkin(const std::string& emulator, const std::string& back, const std::string& fore) {
        tree.Write("Config/" + emulator + "/Skin/Skin.ini",
                   "[Settings]\r\nBackColor=" + back + "\r\nFontColor=" + fore + "\r\n");
    }
    // By the long list of the open choice.
    void Choose(int row) {
        Do("focus", "Form1.EmuListbox");
        Do("select", "Form1.EmulatorLongListbox", row);
        Do("dblclick", "Form1.EmulatorLongListbox", row);
    }
    void ExpectColors(const std::string& control, const std::string& back,
                      const std::string& fore) {
        EXPECT_EQ(Text(control + ".BackColor"), back) << control;
        EXPECT_EQ(Text(control + ".ForeColor"), fore) << control;
    }
    void ExpectWindow(const std::string& back, const std::string& fore) {
        EXPECT_EQ(Text("BackColor"), back);
        EXPECT_EQ(Text("ForeColor"), fore);
        for (const char* control : {"Label1", "Label2", "UAE_Short", "EmuListbox", "SettingsFrame"})
            ExpectColors(control, back, fore);
        ExpectColors("FavoritenListe", "#E0FFF1", "#000000");
        ExpectColors("EmulatorLongListbox", "#F6F7D2", "#000000");
    }
};

TEST_F(SkinScenario, WithoutOneTheWindowIsBlue) {
    Start();
    ExpectWindow("#0052BC", "#FFFFFF");
    EXPECT_FALSE(tree.Exists("Config/Alpha/Skin"));
}

TEST_F(SkinScenario, EmulatorBringsItsColoursAndTheNextOneItsOwn) {
    GiveSkin("Alpha", "#1c1206", "#ffb000");
    Start();
    ExpectWindow("#1C1206", "#FFB000");
    ExpectColors("SearchDblsTxt", "#FFB000", "#1C1206");
    Choose(1);
    ExpectWindow("#0052BC", "#FFFFFF");
    Choose(0);
    ExpectWindow("#1C1206", "#FFB000");
}

TEST_F(SkinScenario, ChangedProfileCountsAtTheNextSelection) {
    GiveSkin("Alpha", "#1c1206", "#ffb000");
    Start();
    GiveSkin("Alpha", "#f2ecdf", "#22303c");
    Choose(1);
    Choose(0);
    ExpectWindow("#F2ECDF", "#22303C");
}

TEST_F(SkinScenario, FirstSelectionFillsAnEmptyDirectory) {
    tree.MakeDirectory("Config/Alpha/Skin");
    Start();
    const std::string profile = "Config/Alpha/Skin/Skin.ini";
    EXPECT_EQ(tree.Stored(profile, "FontColor"), "#FFFFFF");
    EXPECT_EQ(tree.Stored(profile, "TitleString"), "Kivu 1.4b");
    // Its read made the file.
    EXPECT_EQ(tree.Stored(profile, "BackColor"), "(none)");
    Choose(1);
    Choose(0);
    EXPECT_EQ(tree.Stored(profile, "BackColor"), "#0052bc");
}

TEST_F(SkinScenario, SameColoursAreStillAWindow) {
    GiveSkin("Alpha", "#808080", "#808080");
    Start();
    ExpectWindow("#808080", "#808080");
}

TEST_F(SkinScenario, ProfileThatIsADirectoryGivesTheDefaults) {
    tree.MakeDirectory("Config/Alpha/Skin/Skin.ini");
    Start();
    ExpectWindow("#0052BC", "#FFFFFF");
    EXPECT_EQ(Text("MyCaptionLabel.Caption"), "Kivu 1.4b");
}

TEST_F(SkinScenario, TriedColoursLastUntilTheNextSelection) {
    Start();
    Call("SetColors", "Form1", 33023, 0);
    ExpectWindow("#FF8000", "#000000");
    Do("click", "Form1.Label3");
    Do("resize", "Form1", 15360, 11520);
    ExpectWindow("#FF8000", "#000000");
    Choose(1);
    ExpectWindow("#0052BC", "#FFFFFF");
}

TEST_F(SkinScenario, NegativeColoursAreReadAnew) {
    GiveSkin("Alpha", "#1c1206", "#ffb000");
    Start();
    Call("SetColors", "Form1", 33023, 0);
    Call("SetColors", "Form1", -1, -1);
    ExpectWindow("#1C1206", "#FFB000");
    Call("SetColors", "Form1", 33023, -2147483643);
    ExpectWindow("#FF8000", "#FFB000");
}

TEST_F(SkinScenario, DropDownTakesNewColoursWhenItsChoiceCloses) {
    Start();
    Do("focus", "Form1.EmuListbox");
    ExpectColors("EmuListbox", "#000000", "#FFFFFF");
    Call("SetColors", "Form1", 33023, 0);
    Do("key", "Form1.EmulatorLongListbox", "Escape");
    ExpectWindow("#FF8000", "#000000");
}

TEST_F(SkinScenario, SearchFindsTheNewColours) {
    Start();
    Do("type", "Form1.SearchDblsTxt", "bee");
    Call("SetColors", "Form1", 33023, 0);
    ExpectColors("SearchDblsTxt", "#000000", "#FF8000");
    ExpectColors("SuchErgList", "#FF8000", "#000000");
    Do("click", "Form1.Label2");
    ExpectColors("Label4", "#FF8000", "#000000");
}

TEST_F(SkinScenario, ColoursComeWhileAGameRuns) {
    Start();
    LaunchBee();
    EmulatorComesUp();
    Do("tick", "Form1.EmuActiveTimer");
    Call("SetColors", "Form1", 33023, 0);
    ExpectColors("LoadingBtn", "#FF8000", "#000000");
    EmulatorGoes();
    Do("tick", "Form1.EmuActiveTimer", 5);
    ExpectWindow("#FF8000", "#000000");
}

TEST_F(SkinScenario, NumbersOfTheSystemHaveColours) {
    Start();
    EXPECT_EQ(Call("LongToHex", -2147483633), "#C0C0C0");
    EXPECT_EQ(Call("LongToHex", 12341760), "#0052BC");
    EXPECT_EQ(Call("HexToLong", "#FF8000FF"), 33023);
    EXPECT_EQ(Call("HexToLong", "red"), 0);
}

TEST_F(SkinScenario, NoPicturesAreTheDesignsOwn) {
    Start();
    Call("LoadSkinPictures");
    EXPECT_EQ(Text("Picture"), ":/background");
    EXPECT_EQ(Text("TopRightPic.Picture"), ":/top-right");
    EXPECT_EQ(Text("OrgBackGround.Picture"), ":/background");
    EXPECT_EQ(Text("OrgTopLeft.Picture"), ":/top-right");
}

TEST_F(SkinScenario, FontSizesSetListsAndDropDown) {
    Start();
    EXPECT_EQ(Get("FontSizeCombo.ListCount"), 73);
    EXPECT_EQ(Get("FontSizeCombo.ListIndex"), 16);
    const auto choose = [&](int row) {
        Do("set", "Form1.FontSizeCombo.ListIndex", row);
        return std::pair(Get("UAE_Short.FontSize").get<double>(),
                         Get("EmuListbox.FontSize").get<double>());
    };
    using Sizes = std::pair<double, double>;
    EXPECT_EQ(Sizes(Get("UAE_Short.FontSize"), Get("EmuListbox.FontSize")), Sizes(11, 16));
    EXPECT_EQ(choose(5), Sizes(11, 5));
    EXPECT_EQ(choose(0), Sizes(11, 5));
    EXPECT_EQ(choose(60), Sizes(55, 52));
    EXPECT_EQ(choose(72), Sizes(67, 52));
    EXPECT_EQ(Get("SuchErgList.FontSize"), 67);
}

struct SkinPictures : SkinScenario {
    void Add(const std::string& emulator, const std::string& name,
             const std::string& bytes = testing::PngFile(4, 3, 0xff204060)) {
        tree.Write("Config/" + emulator + "/Skin/" + name, bytes);
    }
    std::string Of(const std::string& emulator, const std::string& name) {
        return tree.Path("Config/" + emulator + "/Skin/" + name);
    }
    void ExpectPictures(const std::string& window, const std::string& corner) {
        EXPECT_EQ(Text("Picture"), window);
        EXPECT_EQ(Text("TopRightPic.Picture"), corner);
    }
};

TEST_F(SkinPictures, EmulatorBringsItsPicturesAndTheNextOneItsOwn) {
    Add("Alpha", "Background.png");
    Add("Alpha", "BackgroundTopRight.png");
    Add("Alpha", "Drivebox.png");
    Start();
    ExpectPictures(Of("Alpha", "Background.png"), Of("Alpha", "BackgroundTopRight.png"));
    EXPECT_EQ(Text("SettingsSubPicture.Picture"), Of("Alpha", "Drivebox.png"));
    Choose(1);
    ExpectPictures(":/background", ":/top-right");
    // The drives keep theirs.
    EXPECT_EQ(Text("SettingsSubPicture.Picture"), Of("Alpha", "Drivebox.png"));
    Choose(0);
    ExpectPictures(Of("Alpha", "Background.png"), Of("Alpha", "BackgroundTopRight.png"));
}

TEST_F(SkinPictures, EachIsSwitchedByItself) {
    Add("Alpha", "Background.png");
    Add("Beta", "BackgroundTopRight.png");
    Start();
    ExpectPictures(Of("Alpha", "Background.png"), ":/top-right");
    Choose(1);
    ExpectPictures(":/background", Of("Beta", "BackgroundTopRight.png"));
    Choose(0);
    ExpectPictures(Of("Alpha", "Background.png"), ":/top-right");
}

TEST_F(SkinPictures, DamagedOneLeavesTheOneBefore) {
    Add("Alpha", "Background.png");
    Add("Beta", "Background.png", "no picture at all");
    Start();
    Choose(1);
    EXPECT_EQ(Text("Picture"), Of("Alpha", "Background.png"));
    EXPECT_EQ(Do("boxes")["value"], Json::array());
}

TEST_F(SkinPictures, HugeOneLeavesTheOneBefore) {
    Add("Alpha", "Background.png", testing::PngHead(65500, 65500));
    Start();
    EXPECT_EQ(Text("Picture"), ":/background");
}

TEST_F(SkinPictures, CutAtAnyByteNothingElseIsLost) {
    const std::string whole = testing::PngFile(2, 2, 0xff204060);
    Start();
    for (std::size_t size = 0; size < whole.size(); size += 7) {
        Add("Alpha", "Background.png", whole.substr(0, size));
        Call("LoadSkinPictures");
        EXPECT_EQ(Text("TopRightPic.Picture"), ":/top-right") << size;
    }
    Add("Alpha", "Background.png", whole);
    Call("LoadSkinPictures");
    EXPECT_EQ(Text("Picture"), Of("Alpha", "Background.png"));
}

TEST_F(SkinPictures, WhatIsNoFileIsNoPicture) {
    tree.MakeDirectory("Config/Alpha/Skin/Background.png");
    Start();
    ExpectPictures(":/background", ":/top-right");
}

TEST_F(SkinPictures, NewOneCountsAtTheNextSelection) {
    Start();
    Add("Alpha", "Background.png");
    EXPECT_EQ(Text("Picture"), ":/background");
    Choose(1);
    Choose(0);
    EXPECT_EQ(Text("Picture"), Of("Alpha", "Background.png"));
}

TEST_F(SkinPictures, OneThatComesLateIsNotShownOverALaterOne) {
    Add("Alpha", "Background.png", testing::PngFile(400, 300, 0xff204060));
    Start();
    Choose(1);
    Host().background.inlined = false;
    Choose(0);
    EXPECT_EQ(Text("Picture"), ":/background");
    Choose(1);
    while (!Host().background.waiting.empty())
        Host().background.Serve(0);
    EXPECT_EQ(Text("Picture"), ":/background");
}

}  // namespace
}  // namespace kivu::scenarios
