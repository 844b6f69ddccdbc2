#include <optional>

#include "joystick/button_setup_form.h"
#include "scenarios/pad.h"

namespace kivu::scenarios {
namespace {

// The window that asks for the buttons.
class PadSetup : public PadScenario {
 protected:
    static constexpr const char* profile = "Config/Kivu.ini";

    // Opens it from the icon, and the user does that in it.
    void Open(std::function<void()> user) {
        int opened = 0;
        session->Screen().onModal = [&](forms::Form& form, const std::function<bool()>& isOpen) {
            EXPECT_EQ(form.Name(), "SetJoystickButtons");
            open = isOpen;
            ++opened;
            user();
        };
        Do("dblclick", "Form1.JoystickIcon");
        session->Screen().onModal = nullptr;
        EXPECT_EQ(opened, 1);
        EXPECT_EQ(Get("JoystickButtonSetupModus"), false);
        EXPECT_TRUE(Refused("get", "SetJoystickButtons.Caption"));
        EXPECT_TRUE(Refused("tick", "SetJoystickButtons.PollingTimer"));
    }
    Json Of(const std::string& name) {
        return Do("get", "SetJoystickButtons." + name).value("value", Json());
    }
    void P(int ticks = 1) { Do("tick", "SetJoystickButtons.PollingTimer", ticks); }
    void S() { Do("tick", "SetJoystickButtons.ShowTimer"); }
    void Key(const char* key) { Do("key", "SetJoystickButtons", key); }
    void Skip(int times) {
        for (int i = 0; i < times && open(); ++i)
            Key("Space");
    }
    std::string Info() {
        S();
        return Of("InfoLabel.Caption").get<std::string>();
    }
    std::vector<std::string> Stored() {
        std::vector<std::string> values;
        for (int action = 1; action <= 12; ++action)
            values.push_back(tree.Stored(profile, "Button" + std::to_string(action)));
        return values;
    }

    std::function<bool()> open;
};

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

TEST_F(PadSetup, OpensTheDevicesItselfWhereTheOptionIsOff) {
    tree.WriteProgramProfile({{"LastEmulator", "Alpha"}, {"UseJoystick", "0"}});
    Start();
    EXPECT_EQ(Call("JoystickCount"), 0);
    session->Screen().onModal = [&](forms::Form&, const std::function<bool()>&) {
        EXPECT_EQ(Call("JoystickCount"), 1);
        Press({7});
        P();
        EXPECT_EQ(Of("Position"), 1);
        Key("Escape");
    };
    Do("call", "JoystickIcon_DblClick");
    EXPECT_EQ(Call("JoystickCount"), 0);
    EXPECT_EQ(Get("JoystickTimer.Enabled"), false);
}

TEST_F(PadSetup, PadPulledOutAndPutInMeanwhile) {
    Start();
    Open([&] {
        Press({3});
        Do("device", "clear");
        P(2);
        EXPECT_EQ(Of("Position"), 0);
        Do("device", "add", "Pad", 18);
        Press({3});
        P();
        EXPECT_EQ(Of("Position"), 0);
        // A host that tells of it.
        Host().controllers.changed = true;
        // The window's own timer leaves it to this one.
        Poll();
        P();
        // It came with the button down.
        EXPECT_EQ(Of("Position"), 0);
        EXPECT_EQ(Get("JoystickButtonSetupModus"), true);
        Release();
        P();
        Press({3});
        P();
        EXPECT_EQ(Of("Position"), 1);
        Key("Escape");
    });
    EXPECT_EQ(Get("JoystickTimer.Enabled"), true);
}

TEST_F(PadSetup, BehindAnotherProgramsWindowThePadIsNotOurs) {
    using Activity = forms::WindowHost::Activity;
    Start();
    Open([&] {
        session->Screen().activity = Activity::others;
        Press({3});
        P(3);
        EXPECT_EQ(Of("Position"), 0);
        session->Screen().activity = Activity::ours;
        // Still held, it is not meant.
        P(2);
        EXPECT_EQ(Of("Position"), 0);
        Release();
        P();
        Press({3});
        P();
        EXPECT_EQ(Of("Position"), 1);
        Key("Escape");
    });
}

// Its own timer goes on as long as the window stands.
TEST_F(PadSetup, PollsNothingOnceTheModeIsOff) {
    Start();
    Open([&] {
        Do("call", "SetJoystickButtonSetupModus", false);
        Press({1});
        const int reads = Host().controllers.reads;
        P(3);
        EXPECT_EQ(Host().controllers.reads, reads);
        EXPECT_EQ(Of("Position"), 0);
        Release();
        Key("Escape");
    });
    EXPECT_TRUE(Do("runs")["value"].empty());
}

TEST_F(PadSetup, SaysThatItIsDoneAndStops) {
    for (const bool german : {false, true}) {
        options.language = german ? "German" : "English";
        Start();
        const joystick::ButtonSetupForm* window = nullptr;
        std::optional<forms::HeldForm> held;
        Open([&] {
            forms::Form* found = session->Screen().Find("SetJoystickButtons");
            window = dynamic_cast<joystick::ButtonSetupForm*>(found);
            ASSERT_NE(window, nullptr);
            held.emplace(*found);
            EXPECT_TRUE(window->ShowTimer.Enabled());
            Skip(12);
        });
        ASSERT_NE(window, nullptr);
        EXPECT_EQ(window->InfoLabel.Caption(), german ? "\r\r\rFertig!" : "\r\r\rDone!");
        EXPECT_FALSE(window->ShowTimer.Enabled());
        EXPECT_FALSE(window->PollingTimer.Enabled());
    }
}

TEST_F(PadSetup, TheIconsDoubleClickLowersTheMainWindowMeanwhile) {
    Start();
    ASSERT_TRUE(Form().IsTopmost());
    Open([&] {
        EXPECT_FALSE(Form().IsTopmost());
        Key("Escape");
    });
    EXPECT_TRUE(Form().IsTopmost());
}

TEST_F(PadSetup, IsNotOpenedTwiceNorWhileBusy) {
    Start();
    Open([&] {
        const auto windows = Do("windows")["value"].size();
        Do("call", "JoystickIcon_DblClick");
        EXPECT_EQ(Do("windows")["value"].size(), windows);
        Key("Escape");
    });
    Form().Busy = true;
    Do("call", "JoystickIcon_DblClick");
    EXPECT_TRUE(Refused("get", "SetJoystickButtons.Caption"));
}

TEST_F(PadSetup, ModeWithoutAWindowTakesTheButton) {
    Start();
    Do("call", "SetJoystickButtonSetupModus", true);
    Press({11});
    Poll(2);
    EXPECT_FALSE(session->ended);
    Do("call", "SetNextButton", 3);
    EXPECT_TRUE(Refused("get", "SetJoystickButtons.Caption"));
    // The icon ends it.
    Do("click", "Form1.JoystickIcon");
    EXPECT_EQ(Get("JoystickButtonSetupModus"), false);
}

TEST_F(PadSetup, InAGameItIsTheOnlyOneThatPolls) {
    Start();
    Form().GameIsRunning = true;
    Open([&] {
        Press({6});
        Poll();
        EXPECT_EQ(Of("Position"), 0);
        P();
        EXPECT_EQ(Of("Position"), 1);
        Key("Escape");
    });
}

TEST_F(PadSetup, DiskThatTakesNothingEndsItAllTheSame) {
    Start();
    Do("disk", "full");
    Open([&] {
        Skip(12);
        EXPECT_FALSE(open());
    });
    EXPECT_EQ(Get("JoystickButtons")[0], 0);
}

TEST_F(PadSetup, TakesTheWindowsLookAndFitsTheScreen) {
    options.language = "German";
    Start();
    Do("set", "Form1.FontSizeCombo.ListIndex", 32);
    Open([&] {
        const forms::Form* window = session->Screen().Find("SetJoystickButtons");
        ASSERT_NE(window, nullptr);
        const forms::Size room = session->Screen().Room(&Form());
        EXPECT_LE(window->Width(), room.width);
        EXPECT_LE(window->Height(), room.height);
        EXPECT_GT(window->Height(), 9000);
        for (const forms::Control* control : window->Controls()) {
            if (control->Parent() != window || control->GetKind() == forms::Kind::timer) continue;
            EXPECT_LE(control->Right(), window->Width()) << control->Name();
            EXPECT_LE(control->Bottom(), window->Height()) << control->Name();
        }
        Key("Escape");
    });
}

}  // namespace
}  // namespace kivu::scenarios
