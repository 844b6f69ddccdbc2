// The program ends in the middle of what it would have cleaned up behind itself.
#include "scenarios/mounting.h"

namespace kivu::scenarios {
namespace {

using ::testing::SizeIs;

class EndingLeftovers : public Mounting {
 protected:
    // A tool that hangs until the launcher has looked a thousand times.
    void StartWithHangingTool() {
        UseTool("/Tools/mnt");
        tree.Write("Tools/mnt", "x");
        Start();
        Host().starter.looksWhileWaiting = 1000;
    }
    // Once so many programs have been started, when events run next. A program that ends in it goes
    // on with nothing, as where the host ends the process.
    void Once(std::size_t started, std::function<void()> happens) {
        Host().events.onEvents = [this, started, happens = std::move(happens)] {
            if (happened || Host().starter.runs.size() < started) return;
            happened = true;
            happens();
            if (session->ended) throw driver::ProgramEnded{};
        };
    }
    bool RunnerIsThere() { return tree.Exists("Config/Alpha/Startscript.vbs.bat"); }

    bool happened = false;
};

TEST_F(EndingLeftovers, NoMountFileIsLeftByASignal) {
    StartWithHangingTool();
    Once(1, [this] {
        EXPECT_TRUE(MountFileIsThere());
        Do("signal");
        // Not only by what would come later: the process is gone by then.
        EXPECT_FALSE(MountFileIsThere());
    });
    LaunchBee();
    EXPECT_TRUE(happened);
    EXPECT_THAT(Ran(), SizeIs(1));
    EXPECT_FALSE(MountFileIsThere());
}

TEST_F(EndingLeftovers, NoMountFileIsLeftByThePanelsQuestion) {
    StartWithHangingTool();
    Once(1, [this] {
        Do("answer", "Cancel");
        Do("close", "Form1");
        EXPECT_TRUE(MountFileIsThere());
        Do("answer", "OK");
        EXPECT_EQ(Do("close", "Form1")["ended"], true);
    });
    LaunchBee();
    EXPECT_TRUE(happened);
    EXPECT_EQ(Do("boxes")["value"].size(), 2U);
    EXPECT_THAT(Ran(), SizeIs(1));
    EXPECT_FALSE(MountFileIsThere());
}

TEST_F(EndingLeftovers, NoMountFileIsLeftByTheExitButton) {
    StartWithHangingTool();
    Once(1, [this] { Call("ExitBtn_Click"); });
    LaunchBee();
    EXPECT_TRUE(happened);
    EXPECT_THAT(Ran(), SizeIs(1));
    EXPECT_FALSE(MountFileIsThere());
}

// Somebody may still call it off, and then the mount goes on.
TEST_F(EndingLeftovers, ASessionThatIsAboutToEndTakesNothingAwayYet) {
    StartWithHangingTool();
    Host().starter.looksWhileWaiting = 5;
    Once(1, [this] {
        Do("session");
        EXPECT_TRUE(MountFileIsThere());
    });
    LaunchBee();
    EXPECT_TRUE(happened);
    EXPECT_THAT(Ran(), SizeIs(2));
    EXPECT_FALSE(MountFileIsThere());
}

// Whatever an earlier process has left there is nobody's to run.
TEST_F(EndingLeftovers, AnOldMountFileIsReplacedAndGone) {
    UseTool("/Tools/mnt");
    tree.Write("Tools/mnt", "x");
    tree.Write("Config/Alpha/MountDeamon.bat", "the last game\n");
    Start();
    LaunchBee();
    EXPECT_THAT(Ran()[0], ::testing::Not(::testing::HasSubstr("the last game")));
    EXPECT_FALSE(MountFileIsThere());
}

TEST_F(EndingLeftovers, NoScriptRunnerIsLeft) {
    options.windowsStartFiles = true;
    Profile({{"RunVBS_Script", "1"}});
    tree.Write("Config/Alpha/Startscript.vbs", "x");
    for (const char* way : {"signal", "button"}) {
        happened = false;
        Start();
        Once(2, [&] {
            EXPECT_TRUE(RunnerIsThere());
            if (way == std::string("signal")) {
                Do("signal");
            } else {
                Call("ExitBtn_Click");
            }
        });
        LaunchBee();
        EXPECT_TRUE(happened) << way;
        EXPECT_FALSE(RunnerIsThere()) << way;
        EXPECT_TRUE(tree.Exists("Config/Alpha/Startscript.vbs")) << way;
    }
}

// The file of the user's has the same name as one that the launcher has taken away before.
TEST_F(EndingLeftovers, WhatIsNoLongerTheLaunchersStays) {
    UseTool("/Tools/mnt");
    tree.Write("Tools/mnt", "x");
    Start();
    LaunchBee();
    tree.Write("Config/Alpha/MountDeamon.bat", "the user's");
    EXPECT_EQ(Do("signal")["ended"], true);
    EXPECT_EQ(tree.Read("Config/Alpha/MountDeamon.bat"), "the user's");
}

TEST_F(EndingLeftovers, NoFileThatStoodForAnotherIsLeft) {
    tree.MakeDirectory("tmp");
    options.temporaryDirectory = tree.Path("tmp");
    Start();
    bool wasThere = false;
    Host().dialogs.onShow = [&] {
        wasThere = tree.Exists("Emu/a*b.txt");
        Do("signal");
        EXPECT_FALSE(tree.Exists("Emu/a*b.txt"));
        throw driver::ProgramEnded{};
    };
    EXPECT_EQ(Do("call", "FindAssociatedProgram", tree.Path("Emu/a*b.txt"))["ended"], true);
    // Windows holds no file of this name.
    EXPECT_EQ(wasThere, files.Separator() == '/');
    EXPECT_TRUE(std::filesystem::is_empty(testing::PathOf(tree.Path("tmp"))));
}

}  // namespace
}  // namespace kivu::scenarios
