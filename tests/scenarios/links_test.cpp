#include "scenarios/scenario.h"

namespace kivu::scenarios {
namespace {

using ::testing::HasSubstr;

// What leads out of the launcher.
class Links : public LoadedScenario {
 protected:
    // The skin's file of an emulator names its download page.
    void WriteAddress(const std::string& emulator, const std::string& address) {
        tree.Write("Config/" + emulator + "/Skin/Skin.ini",
                   ProgramDirectory::Profile({{"DownloadURL", address}}));
    }
    Json Runs() { return Do("runs")["value"]; }
    Json Boxes() { return Do("boxes")["value"]; }
    // The one page that has been handed to the browser.
    std::string Opened() {
        const Json runs = Runs();
        if (runs.size() != 1 || runs[0]["opened"] != true) return runs.dump();
        return runs[0]["command"];
    }
};

TEST_F(Links, TheTitleInTheCornerOpensTheHomePage) {
    options.build.homePage = "https://kivu.example/";
    Start();
    Do("click", "Form1.TitleStr");
    EXPECT_EQ(Opened(), "https://kivu.example/");
    EXPECT_EQ(Boxes(), Json::array());
}

TEST_F(Links, WithoutAHomePageTheTitleSaysSo) {
    Start();
    Do("click", "Form1.TitleStr");
    const Json boxes = Boxes();
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0]["title"], "Homepage");
    EXPECT_EQ(boxes[0]["text"], "No home page is set in this version.");
    EXPECT_EQ(boxes[0]["icon"], "Information");
    EXPECT_EQ(boxes[0]["buttons"], "OK");
    EXPECT_EQ(Runs(), Json::array());
}

TEST_F(Links, TheTitleDoesSoInEveryState) {
    options.build.homePage = "https://kivu.example/";
    Start();
    Do("click", "Form1.EmuListbox");
    Do("click", "Form1.TitleStr");
    EXPECT_EQ(Opened(), "https://kivu.example/");
    Do("key", "Form1", "Escape");
    Do("type", "Form1.SearchDblsTxt", "bee");
    Do("click", "Form1.TitleStr");
    EXPECT_EQ(Opened(), "https://kivu.example/");
    LaunchBee();
    Runs();
    EmulatorComesUp();
    Do("tick", "Form1.EmuActiveTimer", 5);
    Do("click", "Form1.TitleStr");
    EXPECT_EQ(Opened(), "https://kivu.example/");
    EXPECT_EQ(Get("GameIsRunning"), true);
}

TEST_F(Links, TheBoxOfTheTitleHoldsAHandedFileBack) {
    Start();
    Do("meanwhile", "box", 1,
       Json::array({"summon", tree.Path("Roms/Alpha/Bee (1991)(Maker).adf")}));
    Do("click", "Form1.TitleStr");
    EXPECT_EQ(Runs(), Json::array());
    EXPECT_EQ(Do("beeps")["value"], 1);
}

TEST_F(Links, DonationsAreHiddenWithoutAnAddress) {
    Start();
    EXPECT_FALSE(Visible("DonateBtn"));
    Do("click", "Form1.EmuListbox");
    EXPECT_FALSE(Visible("DonateBtn"));
    EXPECT_TRUE(Refused("click", "Form1.DonateBtn"));
}

TEST_F(Links, DonationsOpenTheirPage) {
    options.build.donateUrl = "https://pay.example/cgi-bin/webscr?cmd=_xclick&business=a";
    Start();
    EXPECT_EQ(Text("DonateBtn.Caption"), "Donate");
    EXPECT_EQ(Text("DonateBtn.ToolTipText"), "PayPal");
    Do("click", "Form1.DonateBtn");
    EXPECT_EQ(Opened(), options.build.donateUrl);
    EXPECT_EQ(Get("DonateBtn.Enabled"), true);
    EXPECT_EQ(Text("Focus"), "Form1.DonateBtn");
    Call("DonateBtn_Click");
    EXPECT_EQ(Opened(), options.build.donateUrl);
}

TEST_F(Links, DonationsStandBesideTheOptionsWhereThereIsRoom) {
    options.build.donateUrl = "https://pay.example/";
    Start();
    const auto edge = [this](const char* name) { return Get(name).get<int>(); };
    Do("resize", "Form1", 18000, 12000);
    EXPECT_EQ(edge("DonateBtn.Top"), edge("SettingsBtn.Top"));
    EXPECT_LE(edge("DonateBtn.Left") + edge("DonateBtn.Width"), edge("SettingsBtn.Left"));
    EXPECT_LE(edge("LoadBtn.Left") + edge("LoadBtn.Width"), edge("DonateBtn.Left"));
    EXPECT_GE(edge("LoadBtn.Width"), 1950) << "room for its words";
    Do("resize", "Form1", 9000, 9000);
    EXPECT_GE(edge("DonateBtn.Top"), edge("SettingsFrame.Height"));
}

TEST_F(Links, TheDownloadPageIsThatOfTheLoadedEmulator) {
    WriteAddress("Alpha", "http://a.b/c");
    Start();
    EXPECT_EQ(Call("getEmuDownloadPath"), "Alpha Download: a.b/c");
    Call("SelectEmulator", true);
    EXPECT_EQ(Call("getEmuDownloadPath"), "Alpha Download: a.b/c");
    Do("set", "Form1.EmuListbox.ListIndex", 1);
    Call("SelectEmulator", false);
    EXPECT_EQ(Call("getEmuDownloadPath"), "");
}

TEST_F(Links, AnOpenChoiceChangesNoDownloadPage) {
    WriteAddress("Alpha", "https://a.b");
    Start();
    Do("click", "Form1.EmuListbox");
    Do("select", "Form1.EmulatorLongListbox", 1);
    EXPECT_EQ(Call("getEmuDownloadPath"), "Alpha Download: https://a.b");
}

TEST_F(Links, WithNothingLoadedThereIsNoDownloadPage) {
    tree.WriteProgramProfile({{"LastEmulator", "Gone"}});
    tree.Write("Config/Skin.ini", ProgramDirectory::Profile({{"DownloadURL", "http://a.b"}}));
    Start();
    EXPECT_EQ(Call("getEmuDownloadPath"), "");
}

TEST_F(Links, TheBrowserGetsAddressesOfPagesAlone) {
    Start();
    EXPECT_EQ(Call("ShowHtmlWithBrowser", "https://a.b/c?d#e"), true);
    EXPECT_EQ(Opened(), "https://a.b/c?d#e");
    EXPECT_EQ(Call("ShowHtmlWithBrowser", "http://a.b", 1), true);
    EXPECT_EQ(Opened(), "http://a.b");
    for (const char* address :
         {"", "C:\\evil.exe", "\\\\server\\evil.exe", "/bin/sh", "file:///bin/sh", "a.b", "http://",
          "http:///x", "https://a.b/ --option", "https://a.b/\"", "https://a.b/\n",
          "javascript:alert(1)", "ms-settings:", "mailto:a@b"}) {
        EXPECT_EQ(Call("ShowHtmlWithBrowser", address), false) << address;
        EXPECT_EQ(Runs(), Json::array()) << address;
        EXPECT_EQ(Boxes(), Json::array()) << address;
    }
    // Nothing is written beside what is asked for.
    EXPECT_FALSE(std::filesystem::exists("/TibX00001.html"));
}

TEST_F(Links, WhatIsNotOpenedStandsInTheLog) {
    Start();
    Do("log");
    Call("ShowHtmlWithBrowser", "C:\\evil.exe");
    EXPECT_THAT(Do("log")["value"].dump(), HasSubstr("no address of a page"));
}

}  // namespace
}  // namespace kivu::scenarios
