#include "scenarios/pad_setup.h"

namespace kivu::scenarios {
namespace {

TEST_F(PadSetup, AsksForOneButtonBehindTheOther) {
    Start();
    Do("beeps");
    Open([&] {
        EXPECT_EQ(Do("beeps")["value"], 1);
        EXPECT_EQ(Get("JoystickButtonSetupModus"), true);
        EXPECT_EQ(Of("Caption"), "Joystick / Gamepad");
        EXPECT_EQ(Of("Label1.Caption"), "Press keyboard to skip button");
        EXPECT_EQ(Of("CalibrateBtn.Visible"), false);
        EXPECT_EQ(Of("CalibrateBtn.Caption"), "Set Buttons");
        EXPECT_EQ(Of("InfoLabel.Caption"), "Gamepad / Joystick ");
        EXPECT_EQ(Of("JoystickIcon.ToolTipText"), "Joysticksteuerung aktiv");
        EXPECT_EQ(Of("ShowTimer.Interval"), 800);
        EXPECT_EQ(Of("PollingTimer.Interval"), 100);
        EXPECT_EQ(Info(), "Press Button 1\r\r Quit Kivu\r\r1 / 12");
        Press({5});
        P(2);
        EXPECT_EQ(Info(), "Press Button 2\r\r Select\r\r2 / 12");
        Release();
        P();
        Press({5});
        P();
        EXPECT_EQ(Of("Position"), 1);
        EXPECT_EQ(Info(), "Press Button 2\r\r Select\r\r2 / 12");
        Key("Space");
        EXPECT_EQ(Info(), "Press Button 3\r\r Start\r\r3 / 12");
        Press({8, 9});
        P();
        EXPECT_EQ(Of("Position"), 4);
        Skip(3);
        EXPECT_EQ(Info(), "Press Button 8\r\r  scroll down (+100)\"\r\r8 / 12");
        Key("Escape");
        EXPECT_FALSE(open());
    });
    EXPECT_EQ(Stored()[0], "0");
    EXPECT_EQ(Focus(), 2);
}

TEST_F(PadSetup, SpeaksGerman) {
    options.language = "German";
    Start();
    Open([&] {
        EXPECT_EQ(Of("Label1.Caption"), "Tastatur drücken zum Überspringen");
        EXPECT_EQ(Of("CalibrateBtn.Caption"), "Buttons anpassen");
        EXPECT_EQ(Info(), "Drücke Button Nr.1\r\r Kivu beenden\r\r1 / 12");
        Skip(9);
        EXPECT_EQ(Info(), "Drücke Button Nr.10\r\rZum Anfang springen\r\r10 / 12");
        Key("Escape");
    });
}

TEST_F(PadSetup, StoresTheTwelveWithTheLastOne) {
    Start();
    Open([&] {
        Press({5});
        P();
        Skip(10);
        EXPECT_EQ(Stored()[0], "0");
        EXPECT_TRUE(open());
        Skip(1);
        EXPECT_FALSE(open());
    });
    std::vector<std::string> wanted(12, "-2");
    wanted[0] = "6";
    EXPECT_EQ(Stored(), wanted);
    // They count at once.
    EXPECT_EQ(Get("JoystickButtons")[0], 6);
    EXPECT_EQ(Get("JoystickButtons")[3], -2);
}

TEST_F(PadSetup, AllSkippedEveryButtonQuits) {
    Start();
    Open([&] { Skip(12); });
    EXPECT_EQ(Stored(), std::vector<std::string>(12, "-2"));
    Press({3});
    EXPECT_EQ(Do("tick", "Form1.JoystickTimer").value("ended", false), true);
}

TEST_F(PadSetup, EscapeLosesWhatWasGivenAndTheTwelfthIsSaved) {
    Start();
    const std::string before = tree.Read(profile);
    Open([&] {
        Press({5});
        P();
        Skip(1);
        Key("Escape");
        EXPECT_FALSE(open());
    });
    EXPECT_EQ(tree.Read(profile), before);
    Open([&] {
        Skip(11);
        Key("Escape");
        EXPECT_FALSE(open());
    });
    EXPECT_EQ(Stored(), std::vector<std::string>(12, "-2"));
}

TEST_F(PadSetup, AKeyThatIsHeldDownSkipsOnce) {
    Start();
    Open([&] {
        Key("Space");
        for (int i = 0; i < 20; ++i)
            Do("key", "SetJoystickButtons", "Space", "repeat");
        EXPECT_EQ(Of("Position"), 1);
        Do("key", "SetJoystickButtons", "Escape", "repeat");
        EXPECT_TRUE(open());
        for (const char* key : {"Enter", "Backspace", "a", "7"})
            Key(key);
        EXPECT_EQ(Of("Position"), 5);
        // No character, nothing skipped.
        for (const char* key : {"Left", "F3", "Tab", "Delete"})
            Key(key);
        EXPECT_EQ(Of("Position"), 5);
        Key("Escape");
    });
}

TEST_F(PadSetup, TheLastButtonStillHeldDoesNotQuit) {
    Start();
    Open([&] {
        for (int button = 11; button >= 0; --button) {
            Press({button});
            P();
            if (button > 0) {
                Release();
                P();
            }
        }
        EXPECT_FALSE(open());
    });
    // Held is what is to add favourites now, and would have been the second of the old table.
    Poll(3);
    EXPECT_EQ(Stored()[0], "12");
    EXPECT_FALSE(session->ended);
    Release();
    Poll();
    Press({11});
    EXPECT_EQ(Do("tick", "Form1.JoystickTimer").value("ended", false), true);
}

TEST_F(PadSetup, TwoAtOnceWhereOneIsLeft) {
    Start();
    Open([&] {
        Skip(11);
        Press({2, 11, 12});
        P();
        EXPECT_FALSE(open());
    });
    EXPECT_EQ(Stored()[11], "3");
    EXPECT_FALSE(session->ended);
    Poll(3);
    EXPECT_FALSE(session->ended);
}

TEST_F(PadSetup, NothingElseOfThePadActsBehindIt) {
    Start();
    Do("click", "Form1.Label2");
    Open([&] {
        Hold({{"x", 65535}, {"y", 0}, {"rz", 0}});
        P(3);
        Press({1});
        Poll(3);
        EXPECT_EQ(Of("Position"), 0);
        Key("Escape");
    });
    EXPECT_EQ(Focus(), 2);
    EXPECT_TRUE(Do("runs")["value"].empty());
}

TEST_F(PadSetup, ClosedByItsIconOrByTheWindowManager) {
    Start();
    const std::string before = tree.Read(profile);
    Open([&] { Do("click", "SetJoystickButtons.JoystickIcon"); });
    Open([&] { EXPECT_EQ(Do("close", "SetJoystickButtons")["value"], true); });
    // Nobody closes it: the host gives up.
    Open([] {});
    EXPECT_EQ(tree.Read(profile), before);
}

TEST_F(PadSetup, GivesTheSettingsTheirButtonBack) {
    struct Settings : forms::Form {
        using forms::Form::Form;
        forms::CommandButton LoadBtn{this, "LoadBtn"};
    };
    Start();
    Settings settings("SettingsForm",
                      forms::Toolkit{nullptr, nullptr, nullptr, &session->Screen()});
    session->Screen().Show(settings, &Form());
    settings.LoadBtn.SetEnabled(false);
    Open([&] {
        EXPECT_TRUE(settings.LoadBtn.Enabled());
        settings.LoadBtn.SetEnabled(false);
        Key("Escape");
        EXPECT_TRUE(settings.LoadBtn.Enabled());
    });
}

}  // namespace
}  // namespace kivu::scenarios
