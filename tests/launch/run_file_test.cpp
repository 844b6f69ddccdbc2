#include "launch/run_file.h"

#include <gmock/gmock.h>

#include "testing/memory_file_system.h"
#include "testing/scripted_host.h"

namespace kivu::launch {
namespace {

using ::testing::ElementsAre;

struct RunFileTest : ::testing::Test {
    testing::MemoryFileSystem files;
    core::PassingFiles passing{files};
    testing::ScriptedHost host{files};
    core::EventPacer pacer{host.events, host.clock};
    RunFile runFile{{files, passing, host.starter, host.dialogs, "/tmp"}, pacer};
};

TEST_F(RunFileTest, ACommandIsWaitedForWhileEventsRun) {
    host.starter.looksWhileWaiting = 3;
    runFile.ShellAndWait("\"/a b/tool\" -x \"y z\"", platform::WindowStyle::Hidden);
    ASSERT_EQ(host.starter.runs.size(), 1U);
    const platform::StartRequest& run = host.starter.runs[0].request;
    EXPECT_EQ(run.command, "\"/a b/tool\" -x \"y z\"");
    EXPECT_THAT(run.words, ElementsAre("/a b/tool", "-x", "y z"));
    EXPECT_EQ(run.style, platform::WindowStyle::Hidden);
    EXPECT_TRUE(run.wait);
    EXPECT_EQ(host.events.count, 3);
}

TEST_F(RunFileTest, TheHostSaysWhatOpensAFile) {
    files.AddFile("/a.txt", "x");
    host.starter.executables["/a.txt"] = "/usr/bin/xdg-open";
    EXPECT_EQ(runFile.FindExecutableOf("/a.txt"), "/usr/bin/xdg-open");
    EXPECT_EQ(runFile.FindExecutableOf("/b.txt"), "");
}

TEST_F(RunFileTest, ForAMissingFileOneOfItsKindIsAsked) {
    files.AddDirectory("/tmp");
    files.AddDirectory("/d");
    host.starter.executables["/tmp/zzzzzzzTemp_a.htm"] = "/usr/bin/browser";
    EXPECT_EQ(runFile.FindAssociatedProgram("/d/a.htm"), "/usr/bin/browser");
    for (const char* directory : {"/tmp", "/d"})
        EXPECT_THAT(files.ListDirectory(directory).value(), ::testing::IsEmpty());
}

}  // namespace
}  // namespace kivu::launch
