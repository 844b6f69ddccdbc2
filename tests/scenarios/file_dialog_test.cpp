// The dialog for files over the main window in each of its states.

#include "scenarios/scenario.h"

namespace kivu::scenarios {
namespace {

class FileDialogOverTheMainWindow : public LoadedScenario {
 protected:
    // What the dialog gives, with hands in it.
    std::string Ask(const std::function<void()>& hands) {
        session->Screen().onModal = [&](forms::Form& form, const std::function<bool()>&) {
            EXPECT_EQ(form.Name(), "Files");
            hands();
        };
        return Call("FileOpenDialog", tree.Root(), "", "*.adf").get<std::string>();
    }
    // It comes up, keeps the hands off the window below, and leaves that as it was.
    void AskAndCancel(const char* state) {
        SCOPED_TRACE(state);
        const Json before = Do("dump", "Form1");
        const std::string chosen = Ask([&] {
            EXPECT_EQ(Do("dump", "Form1"), before);
            for (const char* control : {"ExitBtn", "Label1", "UAE_Short", "EmuListbox"})
                EXPECT_TRUE(Refused("click", std::string("Form1.") + control));
            for (const char* key : {"Escape", "Enter", "Alt+F4", "a"})
                EXPECT_TRUE(Refused("key", "Form1", key));
            EXPECT_TRUE(Refused("type", "Form1.SearchDblsTxt", "x"));
            EXPECT_TRUE(Refused("close", "Form1"));
            Do("key", "Files", "Escape");
        });
        EXPECT_EQ(chosen, "");
        EXPECT_EQ(Do("dump", "Form1"), before);
        EXPECT_TRUE(Do("boxes")["value"].empty());
        EXPECT_TRUE(Do("runs")["value"].empty());
    }
};

TEST_F(FileDialogOverTheMainWindow, LeavesItAsItWas) {
    Start();
    Do("boxes");
    Do("runs");
    AskAndCancel("the list after the start");
    Do("click", "Form1.Label3");
    Do("select", "Form1.UAE_Short", 2);
    AskAndCancel("a game chosen");
    Do("type", "Form1.SearchDblsTxt", "bee");
    AskAndCancel("a search");
    Do("key", "Form1", "Escape");
    Do("boxes");  // whether to quit
    AskAndCancel("the list again");
    Do("click", "Form1.EmuListbox");
    AskAndCancel("the choice of emulators");
    Do("key", "Form1", "Escape");
    LaunchBee();
    Do("boxes");
    Do("runs");
    AskAndCancel("a game that comes up");
    EmulatorComesUp();
    Do("tick", "Form1.EmuActiveTimer");
    AskAndCancel("a game that runs");
    EmulatorGoes();
    Do("tick", "Form1.EmuActiveTimer");
    AskAndCancel("its last ticks");
}

TEST_F(FileDialogOverTheMainWindow, ComesUpWithNothingLoaded) {
    tree.WriteProgramProfile({});
    Start();
    Do("boxes");
    AskAndCancel("nothing loaded");
}

TEST_F(FileDialogOverTheMainWindow, GameThatGoesMeanwhileIsNoticedAfterwards) {
    Start();
    LaunchBee();
    EmulatorComesUp();
    Do("tick", "Form1.EmuActiveTimer");
    Ask([&] {
        EmulatorGoes();
        for (int i = 0; i < 6; ++i)
            interpreter->Execute(Json::array({"tick", "Form1.EmuActiveTimer"}));
        EXPECT_TRUE(Form().GameIsRunning);
        Do("click", "Files.Abbruch");
    });
    Do("tick", "Form1.EmuActiveTimer", 6);
    EXPECT_FALSE(Form().GameIsRunning);
}

TEST_F(FileDialogOverTheMainWindow, ChosenFileComesBack) {
    Start();
    const std::string roms = testing::HostPath(tree.Root() + "/Roms/Alpha");
    const std::string chosen = Ask([&] {
        Do("focus", "Files.KomplettPfadText");
        Do("set", "Files.KomplettPfadText.Text", roms);
        Do("focus", "Files.File1");
        EXPECT_EQ(Do("get", "Files.File1.ListCount")["value"], 3);
        Do("dblclick", "Files.File1", 2);
    });
    EXPECT_EQ(chosen, testing::HostPath(roms + "/Bee (1991)(Maker).adf"));
}

}  // namespace
}  // namespace kivu::scenarios
