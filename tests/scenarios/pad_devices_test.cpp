#include "scenarios/pad.h"

namespace kivu::scenarios {
namespace {

// Which devices there are, and when the launcher looks at them.
class PadDevices : public PadScenario {
 protected:
    static constexpr const char* profile = "Config/Kivu.ini";

    void NoDevice() {
        prepare = [this](driver::Session&) { Do("device", "clear"); };
    }
    void Answers(std::vector<std::string> answers) {
        const auto before = prepare;
        prepare = [this, before, answers](driver::Session& given) {
            before(given);
            for (const std::string& answer : answers)
                Do("answer", answer);
        };
    }
    Json StartAndTakeBoxes() {
        Start();
        return Do("boxes")["value"];
    }
};

TEST_F(PadDevices, MouseAndKeyboardAreThereUntilSaidOtherwise) {
    prepare = nullptr;
    EXPECT_TRUE(StartAndTakeBoxes().empty());
    EXPECT_EQ(Call("JoystickCount"), 2);
    EXPECT_TRUE(Visible("JoystickIcon"));
    Poll(3);
    EXPECT_EQ(Host().controllers.reads, 0);
}

TEST_F(PadDevices, NobodyIsAskedTwiceAfterAYes) {
    NoDevice();
    Answers({"Yes"});
    const Json boxes = StartAndTakeBoxes();
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0]["title"], "Joysticks / Gamepads = 0)");
    EXPECT_EQ(boxes[0]["text"],
              "No Joysticks or Gampads found!\r\r"
              "Do you want to disable the Joystick-Navigation? ");
    EXPECT_EQ(boxes[0]["buttons"], "YesNo");
    EXPECT_EQ(boxes[0]["icon"], "Question");
    EXPECT_EQ(tree.Stored(profile, "UseJoystick"), "0");
    EXPECT_EQ(Get("JoystickTimer.Enabled"), false);
    EXPECT_FALSE(Visible("JoystickIcon"));
    EXPECT_TRUE(StartAndTakeBoxes().empty());
}

TEST_F(PadDevices, AskedTwiceAtEachStartAfterANo) {
    NoDevice();
    for (int start = 0; start < 2; ++start) {
        EXPECT_EQ(StartAndTakeBoxes().size(), 2U);
        EXPECT_EQ(tree.Stored(profile, "UseJoystick"), "1");
    }
    Answers({"No", "Yes"});
    EXPECT_EQ(StartAndTakeBoxes().size(), 2U);
    EXPECT_EQ(tree.Stored(profile, "UseJoystick"), "0");
    EXPECT_EQ(Get("JoystickTimer.Enabled"), false);
}

TEST_F(PadDevices, OnlyTheFirstGermanQuestionSpeaksOfDx8) {
    options.language = "German";
    NoDevice();
    const Json boxes = StartAndTakeBoxes();
    ASSERT_EQ(boxes.size(), 2U);
    EXPECT_EQ(boxes[0]["text"],
              "Es wurden keine Joysticks oder Gampads gefunden! (DX8 Fehler?)\r\r"
              "Soll die Joystick-Bedienung den Optionen ausgeschaltet werden?");
    EXPECT_EQ(boxes[1]["text"],
              "Es wurden keine Joysticks oder Gampads gefunden!\r\r"
              "Soll die Joystick-Bedienung den Optionen ausgeschaltet werden?");
}

TEST_F(PadDevices, AnotherNumberThanOneIsAskedOnce) {
    NoDevice();
    tree.WriteProgramProfile({{"LastEmulator", "Alpha"}, {"UseJoystick", "2"}});
    EXPECT_EQ(StartAndTakeBoxes().size(), 1U);
    tree.WriteProgramProfile({{"LastEmulator", "Alpha"}, {"UseJoystick", "0"}});
    EXPECT_TRUE(StartAndTakeBoxes().empty());
    EXPECT_EQ(Get("JoystickTimer.Enabled"), false);
}

TEST_F(PadDevices, FailingServiceIsToldOf) {
    prepare = [](driver::Session& given) { given.Host().controllers.noService = true; };
    const Json boxes = StartAndTakeBoxes();
    ASSERT_EQ(boxes.size(), 3U);
    EXPECT_EQ(boxes[0]["icon"], "Warning");
    EXPECT_EQ(boxes[0]["title"], "Kivu 1.4b");
    EXPECT_EQ(boxes[1]["title"], "Joysticks / Gamepads = 0)");
}

TEST_F(PadDevices, CountStandsInTheTitleLine) {
    Start();
    Do("device", "add", "Second", 4);
    Do("click", "Form1.JoystickIcon");
    EXPECT_EQ(Text("MyCaptionLabel.Caption"), "Joysticks: 2");
    EXPECT_EQ(Do("beeps")["value"], 1);
    EXPECT_TRUE(Visible("JoystickIcon"));
}

TEST_F(PadDevices, OnAlreadyNothingIsReadAnew) {
    Start();
    const int opened = Host().controllers.opened;
    Do("device", "add", "Second", 4);
    Do("call", "JoystickEnable", true);
    EXPECT_EQ(Host().controllers.opened, opened);
    EXPECT_EQ(Call("JoystickCount"), 1);
    Do("call", "JoystickEnable", false);
    EXPECT_FALSE(Visible("JoystickIcon"));
    EXPECT_TRUE(IsSilent());
    EXPECT_EQ(Call("JoystickCount"), 0);
    Do("call", "JoystickEnable", true);
    EXPECT_EQ(Call("JoystickCount"), 2);
    Poll();
}

TEST_F(PadDevices, SwitchedOffWhileTheyAreOpenedTheyAreOff) {
    Start();
    Do("call", "JoystickEnable", false);
    Do("meanwhile", "events", 1, Json::array({"call", "JoystickEnable", false}));
    Do("call", "JoystickEnable", true);
    EXPECT_TRUE(IsSilent());
    EXPECT_EQ(Call("JoystickCount"), 0);
    Do("meanwhile", "events", 1, Json::array({"call", "JoystickEnable", false}),
       Json::array({"call", "JoystickEnable", true}));
    Do("call", "JoystickEnable", true);
    Poll();
}

TEST_F(PadDevices, IconClickedWhileTheyAreOpenedAndInsideAPoll) {
    Start();
    for (int turn = 1; turn <= 3; ++turn) {
        Do("meanwhile", "events", turn, Json::array({"call", "JoystickIcon_Click"}));
        Do("click", "Form1.JoystickIcon");
        EXPECT_TRUE(Visible("JoystickIcon"));
        EXPECT_EQ(Call("JoystickCount"), 1);
        Poll();
    }
    // A start lets events run.
    Press({1});
    Do("meanwhile", "events", 1, Json::array({"call", "JoystickIcon_Click"}));
    Poll();
    EXPECT_EQ(Do("runs")["value"].size(), 1U);
}

TEST_F(PadDevices, PadEventsWhileTheyAreOpened) {
    Start();
    Do("click", "Form1.Label2");
    Push("x", 65535);
    Do("meanwhile", "events", 2, Json::array({"call", "PollJoysticks"}),
       Json::array({"call", "ShutdownJoystick"}), Json::array({"call", "PollJoysticks"}));
    Do("click", "Form1.JoystickIcon");
    EXPECT_EQ(Focus(), 2);
    EXPECT_EQ(Call("JoystickCount"), 1);
}

TEST_F(PadDevices, PadEventsInTheYieldsOfARescan) {
    Start();
    Do("click", "Form1.Label2");
    Hold({{"y", 65535}, {"buttons", Json::array({1, 2, 11})}});
    for (int turn = 1; turn <= 4; ++turn) {
        Do("meanwhile", "events", turn, Json::array({"tick", "Form1.JoystickTimer"}));
        Do("click", "Form1.LoadBtn");
        EXPECT_FALSE(session->ended);
        EXPECT_TRUE(Do("runs")["value"].empty()) << turn;
        EXPECT_FALSE(Visible("EmulatorLongListbox")) << turn;
    }
}

TEST_F(PadDevices, PadEventsInTheYieldsOfASearchOfAllEmulators) {
    for (int turn = 1; turn <= 6; ++turn) {
        Start();
        Do("type", "Form1.SearchDblsTxt", "an");
        Hold({{"x", 65535}, {"buttons", Json::array({1, 2, 11})}});
        Do("meanwhile", "events", turn, Json::array({"tick", "Form1.JoystickTimer"}));
        Do("click", "Form1.SearchAllBtn");
        EXPECT_FALSE(session->ended) << turn;
        EXPECT_TRUE(Do("runs")["value"].empty()) << turn;
        EXPECT_FALSE(Visible("EmulatorLongListbox")) << turn;
        EXPECT_TRUE(Visible("GlobalSearchList")) << turn;
    }
}

TEST_F(PadDevices, ComeAndGoneIsSeenWhereTheHostTells) {
    prepare = nullptr;
    Start();
    Do("click", "Form1.Label2");
    Do("device", "clear");
    Do("device", "add", "Mouse", 0);
    Do("device", "add", "Pad", 18);
    Do("device", "set", 1, Json{{"x", 65535}});
    Poll();
    EXPECT_EQ(Call("JoystickCount"), 2);
    EXPECT_EQ(Focus(), 2);
    Host().controllers.changed = true;
    Do("beeps");
    Poll();
    // The stick as it is held is its middle now.
    EXPECT_EQ(Focus(), 2);
    EXPECT_EQ(Do("beeps")["value"], 0);
    Do("device", "set", 1, Json{{"y", 65535}, {"x", 65535}});
    Poll();
    EXPECT_EQ(Get("WIthoutDoubles.ListIndex"), 1);
}

TEST_F(PadDevices, OneThatComesWithAButtonDownDoesNotAct) {
    Start();
    Do("device", "clear");
    Do("device", "add", "Other", 18);
    Press({11});
    Host().controllers.changed = true;
    Poll(3);
    EXPECT_FALSE(session->ended);
    Release();
    Poll();
    Press({11});
    EXPECT_EQ(Do("tick", "Form1.JoystickTimer").value("ended", false), true);
}

TEST_F(PadDevices, NothingIsLaunchedWhileTheIconOpensThem) {
    for (int turn = 1; turn <= 2; ++turn) {
        Start();
        Do("click", "Form1.Label2");
        Do("meanwhile", "events", turn, Json::array({"dblclick", "Form1.WIthoutDoubles", 0}));
        Do("click", "Form1.JoystickIcon");
        EXPECT_TRUE(Do("runs")["value"].empty()) << turn;
        EXPECT_FALSE(Form().GameIsRunning) << turn;
        EXPECT_FALSE(Form().Busy) << turn;
        Poll();
        Do("dblclick", "Form1.WIthoutDoubles", 0);
        EXPECT_EQ(Do("runs")["value"].size(), 1U) << turn;
        EXPECT_TRUE(IsSilent()) << turn;
    }
}

TEST_F(PadDevices, TitleLineTellsOfOneThatComesAfterTheStart) {
    Start();
    const std::string title = Text("MyCaptionLabel.Caption");
    // A host may look for them only once the window stands.
    Do("device", "add", "Second", 4);
    Host().controllers.changed = true;
    Poll();
    EXPECT_EQ(Call("JoystickCount"), 2);
    EXPECT_EQ(Text("MyCaptionLabel.Caption"), title);
    Host().controllers.changed = true;
    Poll();
    EXPECT_EQ(Text("MyCaptionLabel.Caption"), title);
    Do("device", "add", "Third", 4);
    Host().controllers.changed = true;
    Poll();
    EXPECT_EQ(Text("MyCaptionLabel.Caption"), "Joysticks: 3");
}

TEST_F(PadDevices, NobodyLooksForNewOnesInAGameOrWhileBusy) {
    Start();
    const int opened = Host().controllers.opened;
    Host().controllers.changed = true;
    Form().GameIsRunning = true;
    Poll();
    Form().GameIsRunning = false;
    Form().Busy = true;
    Poll();
    EXPECT_EQ(Host().controllers.opened, opened);
    Form().Busy = false;
    Poll();
    EXPECT_EQ(Host().controllers.opened, opened + 1);
}

TEST_F(PadDevices, BehindAnotherProgramsWindowItIsNotOurs) {
    using Activity = forms::WindowHost::Activity;
    Start();
    Do("click", "Form1.Label2");
    session->Screen().activity = Activity::others;
    Hold({{"x", 65535}, {"buttons", Json::array({1})}});
    const int reads = Host().controllers.reads;
    Poll(4);
    EXPECT_EQ(Host().controllers.reads, reads);
    EXPECT_EQ(Focus(), 2);
    // Back at ours, what is still held is not meant.
    session->Screen().activity = Activity::ours;
    Press({1});
    Poll(2);
    EXPECT_TRUE(Do("runs")["value"].empty());
    Push("x", 65535);
    Poll();
    EXPECT_EQ(Focus(), 3);
    session->Screen().activity = Activity::unknown;
    Poll();
    EXPECT_EQ(Focus(), 4);
}

TEST_F(PadDevices, ClampedListsOfThirtyThousandRowsStepAtOnce) {
    Start();
    Do("click", "Form1.Label2");
    Fill(Form().UAE_Short, 31999, 0);
    Fill(Form().UAE_FULL, 31999, 0);
    Fill(Form().WIthoutDoubles, 31999, 0);
    Push("y", 65535);
    Poll(200);
    EXPECT_EQ(Get("WIthoutDoubles.ListIndex"), 200);
}

}  // namespace
}  // namespace kivu::scenarios
