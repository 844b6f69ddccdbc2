// What leads out of the settings window: pages, the program's renewal, the start script.

#include <vector>

#include "scenarios/settings.h"

namespace kivu::scenarios {
namespace {

class SettingsLinks : public SettingsScenario {
 protected:
    std::vector<std::string> Opened() {
        std::vector<std::string> addresses;
        // It must outlive the loop, which keeps nothing of it but the array.
        const Json runs = Do("runs")["value"];
        for (const Json& run : runs) {
            if (run["opened"] == true) addresses.push_back(run["command"]);
        }
        return addresses;
    }
    void WriteDownload(const char* address) {
        tree.Write("Config/Alpha/Skin/Skin.ini",
                   std::string("[Settings]\r\nDownloadURL=") + address + "\r\n");
    }
};

TEST_F(SettingsLinks, OpenTheirPagesByMouseAndKey) {
    options.build.homePage = "https://kivu.invalid/";
    options.build.donateUrl = "https://give.invalid/";
    WriteDownload("a.invalid/alpha");
    Start();
    Do("runs");
    Open([&] {
        EXPECT_TRUE(Shown("DonateBtn"));
        EXPECT_EQ(Of("EmuDownload.Caption"), "Download: Alpha");
        EXPECT_TRUE(Shown("EmuDownload"));
        for (const char* link : {"Label7", "EmuDownload", "DonateBtn"}) {
            Click(link);
            Do("focus", std::string("SettingsForm.") + link);
            Key("Enter");
            EXPECT_TRUE(On(link));
            EXPECT_EQ(Of("Focus"), std::string("SettingsForm.") + link);
        }
        EXPECT_EQ(Opened(),
                  (std::vector<std::string>{"https://kivu.invalid/", "https://kivu.invalid/",
                                            "http://a.invalid/alpha", "http://a.invalid/alpha",
                                            "https://give.invalid/", "https://give.invalid/"}));
        EXPECT_FALSE(Unsaved());
        Key("Escape");
    });
    EXPECT_TRUE(Boxes().empty());
}

TEST_F(SettingsLinks, WithoutAddressesTheUserIsTold) {
    Start();
    Open([&] {
        EXPECT_FALSE(Shown("DonateBtn"));
        EXPECT_FALSE(Shown("EmuDownload"));
        Click("Label7");
        Click("Label5");
        const Json boxes = Boxes();
        ASSERT_EQ(boxes.size(), 2u);
        EXPECT_EQ(boxes[0]["title"], "Homepage");
        EXPECT_EQ(boxes[1]["title"], "Online-Update");
        EXPECT_EQ(boxes[1]["text"], "This version does not update itself.");
        EXPECT_TRUE(On("Label5"));
        Key("Escape");
    });
}

// While the program is renewed Escape calls that off, and nothing else closes the window.
TEST_F(SettingsLinks, EscapeCallsAnUpdateOff) {
    options.build.updateBase = "https://kivu.invalid/";
    options.build.replacesItself = true;
    Start();
    Open([&] {
        const Json caption = Of("Label5.Caption");
        Set("UAELaunchParaneter.Text", "-x");
        int looks = 0;
        Host().events.onEvents = [&] {
            ++looks;
            EXPECT_FALSE(On("Label5"));
            EXPECT_EQ(Do("close", "SettingsForm")["value"], false);
            Key("Ctrl+S");
            Key("a");
            EXPECT_TRUE(Unsaved());
            Click("ExitBtn");
            Key("Escape");
            EXPECT_TRUE(open());
        };
        Click("Label5");
        Host().events.onEvents = {};
        EXPECT_GE(looks, 1);
        EXPECT_TRUE(open());
        EXPECT_TRUE(On("Label5"));
        EXPECT_EQ(Of("Label5.Caption"), caption);
        EXPECT_EQ(TextOf("UAELaunchParaneter"), "-x");
        Boxes();
        Do("answer", "OK");
        Key("Escape");
        EXPECT_FALSE(open());
    });
}

TEST_F(SettingsLinks, TheStartScriptOpensInTheEditor) {
    Start();
    Open([&] {
        Set("DeMulAutostart.Value", 1);
        Do("runs");
        Click("OpenVBS");
        const Json runs = Do("runs")["value"];
        ASSERT_EQ(runs.size(), 1u);
        EXPECT_EQ(runs[0]["command"], Get("VBSFilename"));
        Do("answer", "OK");
        Key("Escape");
    });
}

}  // namespace
}  // namespace kivu::scenarios
