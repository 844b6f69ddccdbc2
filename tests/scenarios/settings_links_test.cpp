// What leads out of the launcher from the settings window.

#include "scenarios/settings.h"
#include "support/sha256.h"

namespace kivu::scenarios {
namespace {

class SettingsLinks : public SettingsScenario {
 protected:
    void NameUpdates() {
        options.build.updateBase = "https://h";
        options.build.replacesItself = true;
        options.build.updaterHash = support::Sha256::Of(updater);
    }
    void Serve() { Do("download", "serve", "https://h/Update.exe", updater); }
    Json Runs() { return Do("runs")["value"]; }
    std::string Opened() {
        const Json runs = Runs();
        if (runs.size() != 1 || runs[0]["opened"] != true) return runs.dump();
        return runs[0]["command"];
    }
    void ExpectBox(const std::string& title, const std::string& text) {
        const Json boxes = Boxes();
        ASSERT_EQ(boxes.size(), 1U);
        EXPECT_EQ(boxes[0]["title"], title);
        EXPECT_EQ(boxes[0]["text"], text);
    }

    const std::string updater = "MZ" + std::string(0x3A, '\0') + std::string("\x40\0\0\0PE\0\0", 8);
};

TEST_F(SettingsLinks, HomePageAndDonationsOpenInTheBrowser) {
    options.build.homePage = "https://kivu.example/";
    options.build.donateUrl = "https://pay.example/";
    Start();
    for (const char* button : {"SettingsBtn", "SettingsShortBtn"}) {
        if (button == std::string("SettingsShortBtn")) Do("click", "Form1.EmuListbox");
        Open(
            [&] {
                Click("Label7");
                EXPECT_EQ(Opened(), "https://kivu.example/");
                EXPECT_TRUE(On("Label7"));
                EXPECT_TRUE(Shown("DonateBtn"));
                Click("DonateBtn");
                EXPECT_EQ(Opened(), "https://pay.example/");
                EXPECT_TRUE(On("DonateBtn"));
                EXPECT_FALSE(Unsaved());
                Key("Escape");
            },
            button);
    }
}

TEST_F(SettingsLinks, WithoutAddressesTheWindowSaysSo) {
    Start();
    Open([&] {
        EXPECT_FALSE(Shown("DonateBtn"));
        Click("Label7");
        ExpectBox("Homepage", "No home page is set in this version.");
        Click("Label5");
        ExpectBox("Online-Update", "No update address is set in this version.");
        EXPECT_EQ(Runs(), Json::array());
        EXPECT_EQ(Do("downloads")["value"], Json::array());
        EXPECT_TRUE(On("Label5"));
        EXPECT_TRUE(open());
        Key("Escape");
    });
}

TEST_F(SettingsLinks, TheDownloadPageIsOffered) {
    tree.Write("Config/Alpha/Skin/Skin.ini", ProgramDirectory::Profile({{"DownloadURL", "a.b/c"}}));
    Start();
    Open([&] {
        EXPECT_TRUE(Shown("EmuDownload"));
        EXPECT_EQ(Of("EmuDownload.Caption"), "Download: Alpha");
        Click("EmuDownload");
        EXPECT_EQ(Opened(), "http://a.b/c");
        EXPECT_TRUE(On("EmuDownload"));
        Key("Escape");
    });
}

TEST_F(SettingsLinks, AnUpdateIsFetchedAndHandedOver) {
    NameUpdates();
    Start();
    Serve();
    const std::string caption = "Online-Update";
    Open([&] {
        std::vector<std::string> shown;
        Host().events.onEvents = [&] {
            EXPECT_FALSE(On("Label5"));
            EXPECT_TRUE(Refused("click", "SettingsForm.Label5"));
            shown.push_back(Of("Label5.Caption"));
        };
        Click("Label5");
        Host().events.onEvents = {};
        EXPECT_EQ(shown, (std::vector<std::string>{caption, "0 %", "100 %"}));
        EXPECT_EQ(Of("Label5.Caption"), caption);
        EXPECT_TRUE(On("Label5"));
        const Json runs = Runs();
        ASSERT_EQ(runs.size(), 1U);
        EXPECT_EQ(runs[0]["command"], tree.Path("Updater.exe") + " " + tree.Path("Kivu.exe") +
                                          " [PATH] https://h/Kivu/Kivu.exe [URL]");
        EXPECT_TRUE(Boxes().empty());
        EXPECT_TRUE(open()) << "the launcher stays open";
        EXPECT_FALSE(Unsaved());
        // There is one now.
        Do("downloads");
        Click("Label5");
        EXPECT_EQ(Do("downloads")["value"], Json::array());
        EXPECT_EQ(Runs().size(), 1U);
        Key("Escape");
    });
}

TEST_F(SettingsLinks, EscapeCancelsAnUpdateAndNothingElseIsTaken) {
    NameUpdates();
    Start();
    Serve();
    Open([&] {
        int looks = 0;
        Host().events.onEvents = [&] {
            if (++looks != 2) return;
            Key("Enter");
            Key("Ctrl+S");
            Do("close", "SettingsForm");
            EXPECT_TRUE(open());
            Key("Escape");
        };
        Click("Label5");
        Host().events.onEvents = {};
        ExpectBox("Kivu 1.4b", "Download Failed! \r\rhttps://h/Update.exe");
        EXPECT_EQ(Do("downloads")["value"][0]["result"], "cancelled");
        EXPECT_FALSE(tree.Exists("Updater.exe"));
        EXPECT_EQ(Runs(), Json::array());
        EXPECT_TRUE(On("Label5"));
        EXPECT_EQ(Of("Label5.Caption"), "Online-Update");
        EXPECT_TRUE(open()) << "it has cancelled the update and not closed the window";
        Key("Escape");
        EXPECT_FALSE(open());
    });
}

TEST_F(SettingsLinks, AFileHandedOverMeanwhileWaitsForNobody) {
    NameUpdates();
    Start();
    Serve();
    Open([&] {
        int looks = 0;
        Host().events.onEvents = [&] {
            if (++looks == 2) Do("summon", tree.Path("Roms/Alpha/Bee (1991)(Maker).adf"));
        };
        Click("Label5");
        Host().events.onEvents = {};
        EXPECT_EQ(Do("beeps")["value"], 1);
        EXPECT_EQ(Runs().size(), 1U) << "the updater alone";
        Key("Escape");
    });
}

TEST_F(SettingsLinks, AReadOnlyDirectoryIsToldBeforeAnythingIsFetched) {
    NameUpdates();
    Start();
    Serve();
    Open([&] {
        Do("disk", "read-only");
        Click("Label5");
        ExpectBox("Online-Update", "The program's directory cannot be written to.");
        EXPECT_EQ(Do("downloads")["value"], Json::array());
        Do("disk", "fine");
        Key("Escape");
    });
}

}  // namespace
}  // namespace kivu::scenarios
