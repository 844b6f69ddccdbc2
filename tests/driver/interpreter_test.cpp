#include "driver/interpreter.h"

#include <filesystem>
#include <gmock/gmock.h>

#include "host_files.h"
#include "testing/temporary_directory.h"

namespace kivu::driver {
namespace {

using kivu::testing::TemporaryDirectory;
using ::testing::HasSubstr;

class InterpreterTest : public ::testing::Test {
 protected:
    Json Do(const char* line) { return interpreter.ExecuteLine(line); }
    void Refused(const char* line, const char* reason = "") {
        const Json answer = Do(line);
        EXPECT_EQ(answer.value("ok", true), false) << line;
        EXPECT_THAT(answer.value("error", ""), HasSubstr(reason)) << line;
    }
    Json Get(const std::string& name) {
        return interpreter.Execute(Json{"get", name}).value("value", Json());
    }

    TemporaryDirectory directory;
    testing::HostFileSystem files;
    Session session{files, Options{directory.Root()}};
    Interpreter interpreter{session};
    std::filesystem::path before = std::filesystem::current_path();
    void TearDown() override { std::filesystem::current_path(before); }
};

TEST_F(InterpreterTest, LinesThatAreNoCommandAreRefused) {
    for (const char* line : {"", " ", "{", "null", "{}", "[]", "[1]", "[[]]", "\"start\"",
                             "[\"start\"", "[\"start\"] []", "\xff", "[\"\xff\"]", "start"}) {
        Refused(line);
    }
    Refused("[\"fly\"]", "no command fly");
}

TEST_F(InterpreterTest, DeepNestingIsRefusedWithoutHarm) {
    Refused(std::string(200000, '[').c_str());
    const std::string closed = std::string(200000, '[') + std::string(200000, ']');
    Refused(closed.c_str(), "begins with its name");
}

TEST_F(InterpreterTest, WrongNumbersOfArgumentsAreRefused) {
    Refused("[\"start\",1]", "fewer");
    Refused("[\"get\"]", "more");
    Refused("[\"get\",\"Form1.ListMode\",2]", "fewer");
    Refused("[\"answer\"]", "more");
    Refused("[\"call\"]");
    Refused("[\"call\",\"CutShortName\",\"a\"]", "takes 3");
    Refused("[\"call\",\"getCharDiff\",\"a\"]", "2 to 3");
    Refused("[\"process\",\"add\",\"x\"]");
    Refused("[\"device\",\"clear\",1]");
    Refused("[\"quit\",1]", "fewer");
    EXPECT_FALSE(interpreter.Quit());
}

TEST_F(InterpreterTest, WrongTypesAreRefused) {
    Refused("[\"get\",1]", "text");
    Refused("[\"set\",\"Form1.Label1.Caption\",1]", "text");
    Refused("[\"set\",\"Form1.Label1.Visible\",1]", "true or false");
    Refused("[\"set\",\"Form1.Label1.Left\",1.5]", "whole");
    Refused("[\"set\",\"Form1.Label1.Left\",4294967296]", "whole");
    Refused("[\"set\",\"Form1.Label1.Left\",18446744073709551615]", "whole");
    Refused("[\"set\",\"Form1.Label1.BackColor\",\"#12345\"]", "colour");
    Refused("[\"set\",\"Form1.DiskSlots\",[\"a\"]]", "6");
    Refused("[\"set\",\"Form1.UAE_Short.List\",[1]]", "text");
    Refused("[\"select\",\"Form1.UAE_Short\",\"1\"]");
    Refused("[\"call\",\"CutShortName\",1,\")\",true]", "argument 1");
    Refused("[\"call\",\"WAIT\",100000]", "16 bits");
    Refused("[\"time\",\"25:00:00\"]");
    Refused("[\"time\",\"1:00\"]");
    Refused("[\"answer\",\"Maybe\"]");
    Refused("[\"tick\",\"Form1.Uhrzeit\",0]");
    Refused("[\"resize\",\"Form1\",-1,100]");
    Refused("[\"state\",\"Form1\",3]");
}

TEST_F(InterpreterTest, UnknownNamesAreRefused) {
    Refused("[\"get\",\"Form1\"]");
    Refused("[\"get\",\"Form9.ListMode\"]", "no window");
    Refused("[\"get\",\"Form1.Nothing.List\"]", "no control");
    Refused("[\"get\",\"Form1.UAE_Short\"]", "no property");
    Refused("[\"get\",\"Form1.UAE_Short.Caption\"]", "no property");
    Refused("[\"get\",\"Form1.Check_Dfx(9).Value\"]", "no control");
    Refused("[\"get\",\"Form1.Check_Dfx(-1).Value\"]", "no control");
    Refused("[\"get\",\"Form1.Check_Dfx(99999999999).Value\"]", "no control");
    Refused("[\"get\",\"..\"]");
    Refused("[\"set\",\"Form1.UAE_Short.ListCount\",3]", "cannot be set");
    Refused("[\"call\",\"Nonesuch\"]", "no routine");
    Refused("[\"tick\",\"Form1.Label1\"]", "timer");
    Refused("[\"key\",\"Form1\",\"Hyper+Q\"]", "no key");
    Refused("[\"click\",\"Form1.Nothing\"]");
    Refused("[\"device\",\"set\",0,{}]", "no device");
    Refused("[\"process\",\"remove\",5]", "no process");
}

TEST_F(InterpreterTest, NamesCountWithoutRegardToCase) {
    Do("[\"set\",\"form1.uae_short.list\",[\"a\",\"b\"]]");
    EXPECT_EQ(Get("FORM1.UAE_SHORT.LISTCOUNT"), 2);
    EXPECT_EQ(Get("Form1.check_dfx(4).caption"), "Df4:");
    EXPECT_EQ(Get("form1.listmode"), "2");
    EXPECT_EQ(Do("[\"call\",\"cutshortname\",\"Ab.adf\",\")\",true]")["value"], "Ab");
}

TEST_F(InterpreterTest, RowsOutOfRangeAreNothingToClickAndNoSelection) {
    Do("[\"start\"]");
    Do("[\"set\",\"Form1.UAE_Short.Visible\",true]");
    Do("[\"set\",\"Form1.UAE_Short.List\",[\"a\",\"b\"]]");
    Refused("[\"select\",\"Form1.UAE_Short\",2]", "no row 2");
    Refused("[\"click\",\"Form1.UAE_Short\",-1]", "no row");
    EXPECT_TRUE(Do("[\"set\",\"Form1.UAE_Short.ListIndex\",99]")["ok"]);
    EXPECT_EQ(Get("Form1.UAE_Short.ListIndex"), -1);
    EXPECT_EQ(Get("Form1.UAE_Short.Selected"), Json::array());
    Do("[\"set\",\"Form1.UAE_Short.ListIndex\",1]");
    EXPECT_EQ(Get("Form1.UAE_Short.Selected"), Json::array({1}));
}

TEST_F(InterpreterTest, HiddenControlsCannotBeReached) {
    Do("[\"start\"]");
    Refused("[\"click\",\"Form1.DonateBtn\"]", "cannot be reached");
    Refused("[\"type\",\"Form1.txtWinUAEExe\",\"x\"]", "cannot be reached");
    Refused("[\"focus\",\"Form1.Label1\"]");
}

TEST_F(InterpreterTest, AssigningAFieldOrPropertyShowsInTheNextGet) {
    EXPECT_TRUE(Do("[\"set\",\"Form1.DiskSlots\",[\"a\",\"\",\"\",\"\",\"\",\"f\"]]")["ok"]);
    EXPECT_EQ(Get("Form1.DiskSlots")[5], "f");
    EXPECT_TRUE(Do("[\"set\",\"Form1.EmulatorListColor\",\"#102030\"]")["ok"]);
    EXPECT_EQ(Get("Form1.EmulatorListColor"), "#102030");
    EXPECT_TRUE(Do("[\"set\",\"Form1.Label1.ForeColor\",\"#a0b0c0\"]")["ok"]);
    EXPECT_EQ(Get("Form1.Label1.ForeColor"), "#A0B0C0");
    EXPECT_TRUE(Do("[\"set\",\"Form1.SearchDblsTxt.Text\",\"two\"]")["ok"]);
    EXPECT_EQ(Get("Form1.SearchDblsTxt.Text"), "two");
}

TEST_F(InterpreterTest, PixelsAreThoseOfTheControlsPicture) {
    auto bitmap = std::make_shared<forms::Bitmap>();
    bitmap->width = 2;
    bitmap->height = 1;
    bitmap->pixels = {0xff0052bc, 0x00ffffff};
    session.MainWindow().GamePicture.SetPicture({"/a/Game.png", bitmap});
    EXPECT_EQ(Do("[\"pixel\",\"form1.gamepicture\",0,0]")["value"], "#0052BC");
    EXPECT_EQ(Do("[\"pixel\",\"Form1.GamePicture\",1,0]")["value"], "");
    EXPECT_EQ(Do("[\"pixel\",\"Form1.GamePicture\",0,1]")["value"], "");
    EXPECT_EQ(Do("[\"pixel\",\"Form1.GamePicture\",-1,0]")["value"], "");
    EXPECT_EQ(Do("[\"pixel\",\"Form1.GamePictureVis\",0,0]")["value"], "");
    EXPECT_EQ(Get("Form1.GamePicture.Picture"), "/a/Game.png");
    Refused("[\"pixel\",\"Form1.Nothing\",0,0]");
    Refused("[\"pixel\",\"Form1.GamePicture\",\"a\",0]");
}

TEST_F(InterpreterTest, FocusIsTheControlsName) {
    Do("[\"start\"]");
    EXPECT_TRUE(Do("[\"focus\",\"Form1.ExitBtn\"]")["ok"]);
    EXPECT_EQ(Get("Form1.Focus"), "Form1.ExitBtn");
}

TEST_F(InterpreterTest, BoxesTakeTheirAnswersInOrderAndCancelWithout) {
    Do("[\"start\"]");
    Do("[\"answer\",\"yes\",\"Cancel\"]");
    Do("[\"key\",\"Form1\",\"Escape\"]");
    Do("[\"key\",\"Form1\",\"Escape\"]");
    const Json boxes = Do("[\"boxes\"]")["value"];
    ASSERT_EQ(boxes.size(), 2U);
    EXPECT_EQ(boxes[0]["answer"], "Cancel");  // there is no Yes
    EXPECT_EQ(boxes[1]["answer"], "Cancel");
    EXPECT_EQ(boxes[0]["buttons"], "OKCancel");
    EXPECT_EQ(boxes[0]["icon"], "Question");
    EXPECT_TRUE(Do("[\"boxes\"]")["value"].empty());
}

TEST_F(InterpreterTest, InputBoxesTakeTheirTexts) {
    Do("[\"start\"]");
    Do("[\"input\",\"My games\"]");
    Do("[\"dblclick\",\"Form1.MyCaptionLabel\"]");
    const Json boxes = Do("[\"boxes\"]")["value"];
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0]["answer"], "My games");
    EXPECT_EQ(boxes[0]["initial"], "Kivu 1.4b");
    EXPECT_EQ(Get("Form1.Caption"), "My games");
}

TEST_F(InterpreterTest, EndOfTheProgramShowsInEveryAnswerAndStopsTheHands) {
    Do("[\"start\"]");
    EXPECT_EQ(Do("[\"click\",\"Form1.ExitBtn\"]"), Json({{"ok", true}, {"ended", true}}));
    EXPECT_EQ(Do("[\"get\",\"Form1.ListMode\"]")["ended"], true);
    Refused("[\"click\",\"Form1.ExitBtn\"]", "has ended");
    EXPECT_EQ(Do("[\"nonsense\"]")["ended"], true);
    EXPECT_EQ(Do("{")["ended"], true);
    EXPECT_TRUE(Do("[\"quit\"]")["ok"]);
    EXPECT_TRUE(interpreter.Quit());
}

TEST_F(InterpreterTest, SecondStartIsRefused) {
    EXPECT_TRUE(Do("[\"start\"]")["ok"]);
    Refused("[\"start\"]", "already");
}

TEST_F(InterpreterTest, TicksFireOnlyATimerThatIsOn) {
    Do("[\"start\"]");
    Do("[\"time\",\"23:59:58\"]");
    EXPECT_EQ(Do("[\"tick\",\"Form1.Uhrzeit\",3]")["value"], 3);
    EXPECT_EQ(Get("Form1.TimeString.Caption"), "23:59");
    Refused("[\"tick\",\"Form1.EmuActiveTimer\"]", "is off");
}

TEST_F(InterpreterTest, TicksStopWhenTheTimerGoesOff) {
    Do("[\"start\"]");
    Do("[\"set\",\"Form1.EmuActiveTimer.Enabled\",true]");
    Do("[\"set\",\"Form1.StartGraceTicks\",3]");
    EXPECT_EQ(Do("[\"tick\",\"Form1.EmuActiveTimer\",10]")["value"], 3);
}

TEST_F(InterpreterTest, ProcessesComeGoAndAreKilled) {
    EXPECT_TRUE(Do("[\"process\",\"add\",\"winuae.exe\",40]")["ok"]);
    Refused("[\"process\",\"add\",\"other\",40]", "already");
    Refused("[\"process\",\"add\",\"other\",0]");
    EXPECT_EQ(Do("[\"call\",\"FindProcessId\",\"WinUAE.exe\"]")["value"], 40);
    Do("[\"call\",\"KillProcess\",40]");
    EXPECT_EQ(Do("[\"kills\"]")["value"], Json::array({40}));
    EXPECT_TRUE(Do("[\"kills\"]")["value"].empty());
    EXPECT_EQ(Do("[\"call\",\"IsProcessRunning\",\"winuae.exe\"]")["value"], false);
}

TEST_F(InterpreterTest, LogGivesTheLinesSinceLastAsked) {
    Do("[\"log\"]");
    Do("[\"summon\",\"not absolute\\n\"]");
    const Json answer = Do("[\"log\"]");
    EXPECT_EQ(answer["value"], Json::array({"refused, handed over: not absolute<0A>"}));
    EXPECT_EQ(answer["log"], answer["value"]);
    EXPECT_EQ(Do("[\"log\"]")["value"], Json::array());
    Refused("[\"log\",1]");
}

TEST_F(InterpreterTest, FilesComeAndGoBelowTheProgram) {
    EXPECT_EQ(Do("[\"file\",\"write\",\"Config/Alpha/a b.txt\",\"x\"]")["ok"], true);
    const auto place = std::filesystem::path(directory.Root()) / "Config" / "Alpha" / "a b.txt";
    EXPECT_TRUE(std::filesystem::exists(place));
    EXPECT_EQ(Do("[\"file\",\"remove\",\"Config/Alpha/a b.txt\"]")["ok"], true);
    EXPECT_FALSE(std::filesystem::exists(place));
    Refused("[\"file\",\"remove\",\"Config/Alpha/a b.txt\"]");
    Refused("[\"file\",\"write\",\"Config\",\"x\"]");
    Refused("[\"file\",\"write\",\"a\"]", "file takes");
    Refused("[\"file\",\"remove\",\"\"]", "empty");
}

TEST_F(InterpreterTest, DiskThatIsFullTakesNothingOfTheLauncherUntilItIsFine) {
    Do("[\"start\"]");
    EXPECT_TRUE(Do("[\"disk\",\"full\",\"Mine\"]")["ok"]);
    EXPECT_TRUE(session.Host().files.WriteFile(directory.Path("Mine.txt"), "x"));
    EXPECT_FALSE(session.Host().files.WriteFile(directory.Path("Other.txt"), "x"));
    // Others still can.
    EXPECT_TRUE(Do("[\"file\",\"write\",\"Mine.txt\",\"theirs\"]")["ok"]);
    EXPECT_TRUE(Do("[\"disk\",\"read-only\"]")["ok"]);
    EXPECT_TRUE(session.Host().files.DeleteFile(directory.Path("Mine.txt")));
    EXPECT_TRUE(Do("[\"disk\",\"fine\"]")["ok"]);
    EXPECT_FALSE(session.Host().files.DeleteFile(directory.Path("Mine.txt")));
    Refused("[\"disk\",\"broken\"]", "read-only");
    Refused("[\"disk\",\"fine\",\"Mine\"]", "read-only");
}

TEST_F(InterpreterTest, CommandsHappenWhileABoxIsShown) {
    Do("[\"start\"]");
    EXPECT_TRUE(
        Do("[\"meanwhile\",\"box\",1,[\"process\",\"add\",\"x\",7],"
           "[\"get\",\"Form1.Nothing\"]]")["ok"]);
    const Json answer = Do("[\"key\",\"Form1\",\"Escape\"]");
    ASSERT_EQ(answer["meanwhile"].size(), 2U);
    EXPECT_EQ(answer["meanwhile"][0]["ok"], true);
    EXPECT_EQ(answer["meanwhile"][1]["ok"], false);
    EXPECT_EQ(session.Host().processes.entries.size(), 1U);
    // Only during the one command.
    EXPECT_FALSE(Do("[\"key\",\"Form1\",\"Escape\"]").contains("meanwhile"));
}

TEST_F(InterpreterTest, CommandsHappenWhenEventsRunForTheNthTime) {
    EXPECT_TRUE(Do("[\"meanwhile\",\"events\",2,[\"set\",\"Form1.ListMode\",\"3\"]]")["ok"]);
    EXPECT_EQ(Do("[\"start\"]")["meanwhile"].size(), 1U);
    EXPECT_TRUE(Do("[\"meanwhile\",\"events\",9999,[\"set\",\"Form1.ListMode\",\"4\"]]")["ok"]);
    EXPECT_TRUE(Do("[\"click\",\"Form1.Label2\"]")["meanwhile"].empty());
    EXPECT_EQ(session.Host().clock.perLook.count(), 0);
    Refused("[\"meanwhile\",\"box\",1]", "commands");
    Refused("[\"meanwhile\",\"never\",1,[\"get\",\"Form1.ListMode\"]]", "box");
    Refused("[\"meanwhile\",\"box\",0,[\"get\",\"Form1.ListMode\"]]", "1 or more");
    Refused("[\"meanwhile\",\"box\",1,[\"quit\"]]", "quit");
    Refused("[\"meanwhile\",\"box\",1,[]]", "begins with its name");
}

TEST_F(InterpreterTest, ProgramThatEndsMeanwhileDoesNotGoOn) {
    Do("[\"start\"]");
    Do("[\"meanwhile\",\"box\",1,[\"click\",\"Form1.ExitBtn\"],[\"boxes\"]]");
    EXPECT_TRUE(Do("[\"key\",\"Form1\",\"Escape\"]")["ended"]);
    EXPECT_TRUE(interpreter.ProgramHasEnded());
}

TEST_F(InterpreterTest, DevicesKeepTheirState) {
    EXPECT_EQ(Do("[\"device\",\"add\",\"Pad\",4]")["value"].size(), 1U);
    Refused("[\"device\",\"set\",0,{\"x\":65536}]");
    Refused("[\"device\",\"set\",0,{\"x\":1,\"buttons\":[32]}]");
    Refused("[\"device\",\"set\",0,{\"w\":1}]");
    const Json pad = Do("[\"device\",\"set\",0,{\"x\":65535,\"buttons\":[1]}]")["value"][0];
    EXPECT_EQ(pad["x"], 65535);
    EXPECT_EQ(pad["y"], 32768);
    EXPECT_EQ(pad["buttons"], Json::array({1}));
    // Beyond those that it counts, and with the axes that are not named at their centres.
    const Json other = Do("[\"device\",\"set\",0,{\"buttons\":[31]}]")["value"][0];
    EXPECT_EQ(other["x"], 32768);
    EXPECT_EQ(other["buttons"], Json::array({31}));
    EXPECT_TRUE(Do("[\"device\",\"clear\"]")["value"].empty());
}

TEST_F(InterpreterTest, DisplayTellsItsMode) {
    const Json display = Do("[\"display\"]")["value"];
    EXPECT_EQ(display["width"], 1920);
    EXPECT_TRUE(display["changes"].empty());
}

TEST_F(InterpreterTest, DumpHoldsEveryControl) {
    const Json dump = Do("[\"dump\",\"Form1\"]")["value"];
    EXPECT_EQ(dump.size(), session.MainWindow().Controls().size() + 1);
    EXPECT_EQ(dump["Form1"]["Kind"], "Form");
    EXPECT_EQ(dump["Check_Dfx(0)"]["Caption"], "Df0:");
    EXPECT_EQ(dump["UAE_FULL"]["ListCount"], 0);
    EXPECT_EQ(dump["Uhrzeit"]["Interval"], 1000);
}

TEST_F(InterpreterTest, DragGivesTheControlTheMouseInItsOwnPlaces) {
    Do("[\"start\"]");
    std::vector<forms::Mouse> seen;
    auto& form = session.MainWindow();
    const auto record = [&](const forms::Mouse& mouse) { seen.push_back(mouse); };
    form.TimeString.onMouseDown = form.TimeString.onMouseMove = form.TimeString.onMouseUp = record;
    EXPECT_TRUE(Do("[\"drag\",\"Form1.TimeString\",\"Form1.MyCaptionLabel\",30,40,5,6]")["ok"]);
    ASSERT_EQ(seen.size(), 3U);
    EXPECT_EQ(seen[0].x, 5);
    EXPECT_EQ(seen[0].y, 6);
    const int corner = form.TopRightPic.Left() + form.TimeString.Left();
    EXPECT_EQ(seen[2].x, form.MyCaptionLabel.Left() + 30 - corner);
    EXPECT_EQ(seen[1].y, seen[2].y);
}

TEST_F(InterpreterTest, CalledRoutineTellsWhatItMakesOfItsArguments) {
    const Json answer = Do("[\"call\",\"FindListItem\",\"b\",[\"a\",\"B\"],false,-5]");
    EXPECT_EQ(answer["value"], 1);
    EXPECT_EQ(answer["changed"]["StartRow"], 0);
}

TEST_F(InterpreterTest, WaitingTakesNoRealTime) {
    EXPECT_TRUE(Do("[\"call\",\"WAIT\",30000]")["ok"]);
}

TEST_F(InterpreterTest, AnswerIsOneLineOfUtf8WhateverTheBytes) {
    EXPECT_EQ(LineOf(Json{{"value", "a\n\xff"}}), "{\"value\":\"a\\n\xef\xbf\xbd\"}");
}

}  // namespace
}  // namespace kivu::driver
