// The program is renewed from the settings window.

#include "scenarios/settings.h"
#include "support/sha256.h"

namespace kivu::scenarios {
namespace {

class SettingsUpdate : public SettingsScenario {
 protected:
    SettingsUpdate() {
        options.build.updateBase = "https://h";
        options.build.replacesItself = true;
        options.build.updaterHash = support::Sha256::Of(updater);
    }
    void Serve() { Do("download", "serve", "https://h/Update.exe", updater); }
    Json Runs() { return Do("runs")["value"]; }
    void ExpectBox(const std::string& title, const std::string& text) {
        const Json boxes = Boxes();
        ASSERT_EQ(boxes.size(), 1U);
        EXPECT_EQ(boxes[0]["title"], title);
        EXPECT_EQ(boxes[0]["text"], text);
    }

    const std::string updater = "MZ" + std::string(0x3A, '\0') + std::string("\x40\0\0\0PE\0\0", 8);
};

TEST_F(SettingsUpdate, AnUpdateIsFetchedAndHandedOver) {
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

TEST_F(SettingsUpdate, EscapeCancelsAnUpdateAndNothingElseIsTaken) {
    Start();
    Serve();
    Open([&] {
        int looks = 0;
        Host().events.onEvents = [&] {
            if (++looks != 2) return;
            for (const char* command : {"IniBtn", "Label7", "LoadBtn", "ExitBtn"})
                Click(command);
            Set("ResetScreenRes.Value", 1);
            Click("SaveBtn");
            EXPECT_TRUE(Unsaved());
            Set("ResetScreenRes.Value", 0);
            EXPECT_EQ(Runs(), Json::array());
            EXPECT_TRUE(Boxes().empty());
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
        Click("IniBtn");
        EXPECT_FALSE(Runs().empty()) << "what is pressed is taken again";
        Save();
        Key("Escape");
        EXPECT_FALSE(open());
    });
}

TEST_F(SettingsUpdate, AFileHandedOverMeanwhileWaitsForNobody) {
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

TEST_F(SettingsUpdate, AReadOnlyDirectoryIsToldBeforeAnythingIsFetched) {
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
