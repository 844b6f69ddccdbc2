// WinUAE's panel in the settings window: its configuration, taken over and tried out.

#include "scenarios/settings.h"

namespace kivu::scenarios {
namespace {

using Template = WinuaeSettings;

TEST_F(Template, AConfigurationIsTakenOverAndSaved) {
    tree.Write("Emu/mine.uae", "a=1\r\nfloppy1=x\r\n;kickstart_rom_file=\r\nfloppy3=y\r\n");
    Start();
    Open([&] {
        Click("WinUAEBtn");
        EXPECT_TRUE(Shown("UAEFrame"));
        another = [&](forms::Form&) { Do("click", "Files.Abbruch"); };
        Click("Command1");
        EXPECT_EQ(Boxes()[0]["text"], "Abbruch!");
        EXPECT_FALSE(Unsaved());
        another = [&](forms::Form&) {
            Do("type", "Files.FileName", tree.Path("Emu/mine.uae"));
            Do("click", "Files.Ok");
        };
        Click("Command1");
        EXPECT_EQ(TextOf("TxtMasterConfig"), "a=1\r\nfloppy3=y\r\n");
        Save();
        EXPECT_EQ(tree.Read("Config/Kivu_Master.uaecfg"), "a=1\r\nfloppy3=y\r\n\r\n");
        Click("RemovePicEnabled");
        Key("Escape");
        EXPECT_FALSE(open());
    });
}

TEST_F(Template, IsTriedOutAsItIsOnTheDisk) {
    Start();
    Do("runs");
    Open([&] {
        Click("WinUAEBtn");
        Click("Command3");
        const Json runs = Do("runs")["value"];
        ASSERT_EQ(runs.size(), 1u);
        EXPECT_EQ(runs[0]["words"][0], tree.Path("Emu/winuae.exe"));
        EXPECT_EQ(runs[0]["words"][1], "-f");
        EXPECT_EQ(Get("CurrentRunninApplication"), "winuae.exe");
        EXPECT_TRUE(Unsaved());
        // Its loading screen lies over the window.
        EXPECT_EQ(Do("windows")["value"].back()["over"], "SettingsForm");
        Do("close", "LoadingInfo");
        Do("answer", "OK");
        Click("RemovePicEnabled");
        Key("Escape");
    });
}

// That of the last game stands below the window, where no click reaches it.
TEST_F(Template, ATrialsLoadingScreenIsReachedWhereOneStandsAlready) {
    Start();
    Do("call", "ShowLoadingInfo");
    Open([&] {
        Click("WinUAEBtn");
        EXPECT_TRUE(Refused("click", "LoadingInfo.Command1"));
        Click("Command3");
        EXPECT_EQ(Do("windows")["value"].back()["over"], "SettingsForm");
        EXPECT_EQ(Do("get", "LoadingInfo.AboveAll")["value"], true);
        Do("click", "LoadingInfo.Command1");
        EXPECT_TRUE(open());
        Do("answer", "OK");
        Click("RemovePicEnabled");
        Key("Escape");
    });
}

TEST_F(Template, ATrialEndedInTheLoadingScreenLeavesTheMainWindowAsItWas) {
    Start();
    const auto look = [&] {
        Json seen;
        for (const char* name :
             {"WIthoutDoubles", "UAE_Short", "FavoritenListe", "EmulatorLongListbox", "EmuListbox",
              "LoadingBtn", "Current_LoadingSmallBtn", "SettingsBtn", "SettingsShortBtn",
              "SearchDblsTxt", "Label1", "Label2", "Label3", "Label4", "MyCaptionLabel",
              "AppRunningPicture"})
            seen[name] = Get(std::string(name) + ".Visible");
        return seen;
    };
    const Json before = look();
    const Json caption = Get("Caption");
    for (const bool cameUp : {false, true}) {
        SCOPED_TRACE(cameUp);
        Open([&] {
            Click("WinUAEBtn");
            Click("Command3");
            if (cameUp) Do("process", "add", "winuae.exe", 4712);
            Do("click", "LoadingInfo.Command1");
            EXPECT_TRUE(open());
            Do("answer", "OK");
            Click("RemovePicEnabled");
            Key("Escape");
        });
        EXPECT_EQ(Do("kills")["value"], cameUp ? Json({4712}) : Json::array());
        EXPECT_EQ(look(), before);
        EXPECT_EQ(Get("Caption"), caption);
    }
}

}  // namespace
}  // namespace kivu::scenarios
