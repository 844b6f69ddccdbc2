#include "support/logged_services.h"

#include <gmock/gmock.h>

#include "testing/memory_file_system.h"
#include "testing/scripted_host.h"

namespace kivu::support {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;

class LoggedServicesTest : public ::testing::Test {
 protected:
    std::vector<std::string> Lines() { return std::exchange(host.log.lines, {}); }

    kivu::testing::MemoryFileSystem files;
    kivu::testing::ScriptedHost host{files};
    LoggedStarter starter{host.starter, host.log};
    LoggedProcesses processes{host.processes, host.log};
    LoggedInstance instance{host.instance, host.log};
};

platform::StartRequest Request() {
    platform::StartRequest request;
    request.command = "\"C:\\my emu.exe\" -f";
    request.words = {"/my emu", "-f", ""};
    request.directory = "/d";
    return request;
}

TEST_F(LoggedServicesTest, AStartIsToldInTheFormThatTheHostTakes) {
    platform::StartRequest request = Request();
    EXPECT_FALSE(starter.Run(request));
    host.starter.usesShell = false;
    request.directory.clear();
    request.style = platform::WindowStyle::Minimized;
    request.watched = true;
    EXPECT_FALSE(starter.Run(request));
    request.wait = true;
    request.watched = false;
    request.style = platform::WindowStyle::Hidden;
    EXPECT_FALSE(starter.Run(request));
    EXPECT_EQ(host.starter.runs.size(), 3U);
    EXPECT_THAT(
        Lines(),
        ElementsAre("started: \"/my emu\" -f \"\"; in /d; normal",
                    "started: \"C:\\my emu.exe\" -f; in the current directory; minimized, watched",
                    "run to its end: \"C:\\my emu.exe\" -f; in the current directory; hidden"));
}

TEST_F(LoggedServicesTest, AFailedStartIsToldWithItsReason) {
    host.starter.result = std::make_error_code(std::errc::permission_denied);
    const std::string reason =
        host.starter.result.message() + " (" + std::to_string(host.starter.result.value()) + ")";
    EXPECT_EQ(starter.Run(Request()), std::errc::permission_denied);
    EXPECT_EQ(starter.Open("https://a/\n"), std::errc::permission_denied);
    EXPECT_THAT(Lines(),
                ElementsAre("not started, " + reason + ": \"/my emu\" -f \"\"; in /d; normal",
                            "not started, " + reason + ": https://a/<0A>"));
}

TEST_F(LoggedServicesTest, WhatIsOpenedIsTold) {
    EXPECT_FALSE(starter.Open("/a.txt"));
    EXPECT_TRUE(host.starter.runs.at(0).opened);
    EXPECT_THAT(Lines(), ElementsAre("opened: /a.txt"));
}

TEST_F(LoggedServicesTest, ATextThatNoStartFileHoldsIsTold) {
    EXPECT_EQ(starter.StartFileBytes("ä"), "ä");
    EXPECT_THAT(Lines(), IsEmpty());
    host.starter.startFileBytes = [](std::string_view) { return std::nullopt; };
    EXPECT_EQ(starter.StartFileBytes("日\r\n"), std::nullopt);
    EXPECT_THAT(Lines(), ElementsAre(StartsWith("refused: ")));
}

TEST_F(LoggedServicesTest, ALostProcessListIsToldOnceUntilItIsBack) {
    for (int time = 0; time < 2; ++time) {
        host.processes.unreadable = true;
        for (int tick = 0; tick < 3; ++tick)
            EXPECT_EQ(processes.Snapshot(), std::nullopt);
        EXPECT_THAT(Lines(), ElementsAre("process list not read"));
        host.processes.unreadable = false;
        EXPECT_TRUE(processes.Snapshot());
        EXPECT_THAT(Lines(), IsEmpty());
    }
}

TEST_F(LoggedServicesTest, AHandOverIsTold) {
    EXPECT_FALSE(instance.HandOver("Kivu", "/a"));
    EXPECT_THAT(Lines(), IsEmpty());
    host.instance.earlierRuns = true;
    EXPECT_TRUE(instance.HandOver("Kivu", "/a\n"));
    EXPECT_TRUE(instance.HandOver("Kivu", ""));
    EXPECT_EQ(host.instance.askedFor, "Kivu");
    EXPECT_THAT(Lines(), ElementsAre("handed over to the instance that runs: /a<0A>",
                                     "handed over to the instance that runs: no file"));
}

TEST_F(LoggedServicesTest, TheRestReachesTheHost) {
    host.starter.path["emu"] = "/bin/emu";
    EXPECT_EQ(starter.FindInPath("emu"), "/bin/emu");
    EXPECT_TRUE(starter.UsesShell());
    host.processes.Add("emu", 5);
    processes.Kill(5);
    EXPECT_EQ(host.processes.kills.size(), 1U);
    std::string summoned;
    instance.OnSummoned([&](const std::string& file) { summoned = file; });
    host.instance.summon("/a");
    EXPECT_EQ(summoned, "/a");
}

}  // namespace
}  // namespace kivu::support
