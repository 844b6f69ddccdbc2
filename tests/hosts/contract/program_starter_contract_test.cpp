#include <filesystem>
#include <gmock/gmock.h>

#include "host_starter.h"
#include "testing/eventually.h"
#include "testing/temporary_directory.h"
#include "text/paths.h"

namespace fs = std::filesystem;

// What the launcher relies on in each host's starter.
namespace kivu::testing {
namespace {

class StarterContract : public ::testing::Test {
 protected:
    void TearDown() override { AwaitStarted(); }

    platform::StartRequest StartFile(const std::string& text) {
        platform::StartRequest request;
        request.words = {directory.Write("start.bat", text)};
        request.command = "\"" + request.words[0] + "\"";
        request.directory = directory.Root();
        request.style = platform::WindowStyle::MinimizedNoFocus;
        request.startFile = true;
        return request;
    }

    const TemporaryDirectory directory;
    HostStarter starter;
};

TEST_F(StarterContract, WhatIsWaitedForHasEndedThen) {
    const std::string made = directory.Path("made");
    ASSERT_FALSE(starter.RunAndWait(StartFile(MakingStartFile(made)), [] { return true; }));
    EXPECT_TRUE(fs::exists(made));
}

TEST_F(StarterContract, TheCallerIsAskedMeanwhile) {
    const std::string awaited = directory.Path("awaited"), made = directory.Path("made");
    int asked = 0;
    const auto goOn = [&] {
        if (++asked == 2) directory.Write("awaited", "x");
        return true;
    };
    ASSERT_FALSE(starter.RunAndWait(StartFile(WaitingStartFile(awaited, made)), goOn));
    EXPECT_GE(asked, 2);
    EXPECT_TRUE(fs::exists(made));
}

TEST_F(StarterContract, GivenUpTheProgramIsLeftToItself) {
    const std::string awaited = directory.Path("awaited"), made = directory.Path("made");
    EXPECT_EQ(starter.RunAndWait(StartFile(WaitingStartFile(awaited, made)), [] { return false; }),
              std::errc::operation_canceled);
    EXPECT_FALSE(fs::exists(made));
    directory.Write("awaited", "x");
    EXPECT_TRUE(Eventually([&] { return fs::exists(made); }));
}

TEST_F(StarterContract, WhatCannotBeStartedIsNotWaitedFor) {
    platform::StartRequest request = StartFile("");
    fs::remove(request.words[0]);
    const auto failure = starter.RunAndWait(request, [] { return true; });
    EXPECT_TRUE(failure);
    EXPECT_NE(failure, std::errc::operation_canceled);
}

TEST_F(StarterContract, ItFindsProgramsWhereItSaysThatItSearches) {
    const std::string found = starter.FindInPath(everySystemsProgram);
    ASSERT_NE(found, "");
    EXPECT_TRUE(starter.MayRun(found));
    const std::string place = text::GetParentPath(found);
    EXPECT_TRUE(starter.SearchesIn(place));
    EXPECT_TRUE(starter.SearchesIn(place + "."));
    EXPECT_FALSE(starter.SearchesIn(directory.Root()));
    for (const std::string other : {"", "relative", "/nowhere/at/all"})
        EXPECT_FALSE(starter.SearchesIn(other)) << other;
}

TEST_F(StarterContract, NothingOpensWhatIsNotThere) {
    EXPECT_EQ(starter.FindExecutable(directory.Path("gone.txt")), "");
    EXPECT_EQ(starter.FindExecutable(directory.Root()), "");
    EXPECT_EQ(starter.FindExecutable(""), "");
}

}  // namespace
}  // namespace kivu::testing
