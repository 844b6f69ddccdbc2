#include "scenarios/pad.h"
#include "wiring/routines.h"

namespace kivu::scenarios {
namespace {

// The pad in a game: the button that ends it, and nothing else.
class PadExitButton : public PadScenario {
 protected:
    std::size_t Runs() { return Do("runs")["value"].size(); }
    void WatchLooks(int ticks = 1) { Do("tick", "Form1.EmuActiveTimer", ticks); }
    void OptionToEndByButton() {
        tree.WriteProgramProfile(
            {{"LastEmulator", "Alpha"}, {"UseJoystick", "1"}, {"UseJoystickExitbutton", "12"}});
    }
    void LookForExit(int ticks) { Do("tick", "Form1.ExitButtonTimer", ticks); }
};

TEST_F(PadExitButton, LeftOnByTheFirstActionThePollStaysSilentToo) {
    tree.WriteProgramProfile(
        {{"LastEmulator", "Alpha"}, {"UseJoystick", "1"}, {"UseJoystickExitbutton", "1"}});
    Start();
    LaunchBee();
    EmulatorComesUp();
    Hold({{"x", 65535}, {"buttons", Json::array({1, 4, 11})}});
    const int reads = Host().controllers.reads;
    Poll(5);
    EXPECT_EQ(Host().controllers.reads, reads);
    EXPECT_FALSE(session->ended);
    EXPECT_EQ(Runs(), 1U);
    EXPECT_TRUE(Do("kills")["value"].empty());
}

TEST_F(PadExitButton, StartHeldOverItsEndStartsNoSecondOneWhereThePadStaysOn) {
    OptionToEndByButton();
    Start();
    Press({1});
    Poll();
    EmulatorComesUp();
    WatchLooks();
    LookForExit(12);
    EmulatorGoes();
    WatchLooks(4);
    EXPECT_EQ(Get("GameIsRunning"), false);
    EXPECT_EQ(Runs(), 1U);
    Poll(3);
    EXPECT_EQ(Runs(), 0U);
    Release();
    Poll();
    Press({1});
    Poll();
    EXPECT_EQ(Runs(), 1U);
}

TEST_F(PadExitButton, APadThatIsPutInDuringItEndsIt) {
    OptionToEndByButton();
    Start();
    EXPECT_EQ(Get("ExitButtonTimer.Interval"), 250);
    Do("set", "Form1.ExitButtonAction", 3);
    Press({1});
    Poll();
    EmulatorComesUp();
    LookForExit(1);
    const std::string title = Text("MyCaptionLabel.Caption");
    Do("device", "clear");
    Do("device", "add", "Other", 18);
    Press({2});
    Host().controllers.changed = true;
    // It came with the button down.
    LookForExit(12);
    EXPECT_TRUE(Do("kills")["value"].empty());
    Release();
    LookForExit(1);
    Press({2});
    LookForExit(8);
    EXPECT_EQ(Do("kills")["value"], Json::array({4711}));
    EXPECT_EQ(Text("MyCaptionLabel.Caption"), title);
    EXPECT_TRUE(Do("boxes")["value"].empty());
}

TEST_F(PadExitButton, LeftOnInAGameThePollStaysSilent) {
    OptionToEndByButton();
    Start();
    Press({1});
    Poll();
    Do("set", "Form1.ExitButtonAction", 3);
    EmulatorComesUp();
    Hold({{"x", 65535}, {"buttons", Json::array({4, 11})}});
    const int reads = Host().controllers.reads;
    Poll(5);
    EXPECT_EQ(Host().controllers.reads, reads);
    EXPECT_FALSE(session->ended);
    EXPECT_EQ(Call("JoystickCount"), 1);
}

TEST_F(PadExitButton, ExitButtonHeldForTwoSecondsEndsIt) {
    OptionToEndByButton();
    Start();
    Do("set", "Form1.ExitButtonAction", 3);
    Press({1});
    Poll();
    EmulatorComesUp();
    Release();
    LookForExit(2);
    Press({2});
    LookForExit(7);
    EXPECT_TRUE(Do("kills")["value"].empty());
    Release();
    LookForExit(1);
    Press({2});
    LookForExit(7);
    EXPECT_TRUE(Do("kills")["value"].empty());
    LookForExit(1);
    EXPECT_EQ(Do("kills")["value"], Json::array({4711}));
    // Held on it ends no second one.
    EmulatorComesUp();
    LookForExit(20);
    EXPECT_TRUE(Do("kills")["value"].empty());
    EmulatorGoes();
    WatchLooks(4);
    EXPECT_TRUE(Refused("tick", "Form1.ExitButtonTimer"));
    Poll();
    EXPECT_FALSE(Visible("EmulatorLongListbox"));
}

// Four presses a second are down at each look.
TEST_F(PadExitButton, HammeredTheExitButtonIsTheGames) {
    OptionToEndByButton();
    Start();
    Do("set", "Form1.ExitButtonAction", 3);
    Press({1});
    Poll();
    EmulatorComesUp();
    Release();
    LookForExit(1);
    for (int press = 0; press < 40; ++press) {
        Release();
        Press({2});
        LookForExit(1);
    }
    EXPECT_TRUE(Do("kills")["value"].empty());
    // Held from the last press on.
    LookForExit(7);
    EXPECT_EQ(Do("kills")["value"], Json::array({4711}));
}

TEST_F(PadExitButton, NobodyLooksForTheExitButtonBehindABox) {
    OptionToEndByButton();
    Start();
    Do("set", "Form1.ExitButtonAction", 3);
    Press({1});
    Poll();
    EmulatorComesUp();
    Release();
    LookForExit(1);
    int shown = 0;
    Host().dialogs.onShow = [&] {
        ++shown;
        Press({2});
        const int reads = Host().controllers.reads;
        LookForExit(12);
        EXPECT_EQ(Host().controllers.reads, reads);
        Release();
    };
    session->Routines().dialogs.MessageBox("", "", platform::Buttons::Ok, platform::Icon::None);
    Host().dialogs.onShow = nullptr;
    EXPECT_EQ(shown, 1);
    EXPECT_TRUE(Do("kills")["value"].empty());
}

TEST_F(PadExitButton, OtherButtonsAreTheGames) {
    OptionToEndByButton();
    Start();
    Do("set", "Form1.ExitButtonAction", 3);
    Press({1});
    Poll();
    EmulatorComesUp();
    for (const int button : {0, 1, 3, 5, 11, 17}) {
        Press({button});
        LookForExit(12);
    }
    EXPECT_TRUE(Do("kills")["value"].empty());
    EXPECT_FALSE(session->ended);
}

TEST_F(PadExitButton, AnyButtonTakesTheLoadingScreenAwayFirst) {
    OptionToEndByButton();
    Start();
    Do("set", "Form1.ExitButtonAction", 3);
    Press({1});
    Poll();
    EmulatorComesUp();
    Do("set", "Form1.SplashSeconds", 6);
    Do("call", "ShowLoadingInfo");
    const auto shown = [this] { return session->Screen().Find("LoadingInfo") != nullptr; };
    // The one that has started the game is still down.
    LookForExit(10);
    EXPECT_TRUE(shown());
    Press({2});
    LookForExit(1);
    EXPECT_FALSE(shown());
    // That press was for the screen.
    LookForExit(12);
    EXPECT_TRUE(Do("kills")["value"].empty());
    Release();
    LookForExit(1);
    Press({2});
    LookForExit(8);
    EXPECT_EQ(Do("kills")["value"], Json::array({4711}));
}

TEST_F(PadExitButton, WithoutTheOptionNobodyLooksInAGame) {
    Start();
    Press({1});
    Poll();
    EXPECT_TRUE(Refused("tick", "Form1.ExitButtonTimer"));
}

}  // namespace
}  // namespace kivu::scenarios
