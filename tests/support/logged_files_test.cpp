#include "support/logged_files.h"

#include <gmock/gmock.h>
#include <thread>

#include "testing/faulty_file_system.h"
#include "testing/memory_file_system.h"
#include "testing/scripted_host.h"

namespace kivu::support {
namespace {

using kivu::testing::FaultyFileSystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;

class LoggedFilesTest : public ::testing::Test {
 protected:
    std::vector<std::string> Lines() { return std::exchange(log.lines, {}); }

    kivu::testing::MemoryFileSystem disk;
    FaultyFileSystem faulty{disk};
    kivu::testing::ScriptedLog log;
    LoggedFiles files{faulty, log};
};

TEST_F(LoggedFilesTest, WhatSucceedsIsNotTold) {
    EXPECT_FALSE(files.MakeDirectory("/d"));
    EXPECT_FALSE(files.WriteFile("/d/a", "1"));
    EXPECT_FALSE(files.AppendFile("/d/a", "2"));
    EXPECT_EQ(files.ReadFile("/d/a"), "12");
    EXPECT_NE(files.OpenFile("/d/a"), nullptr);
    EXPECT_EQ(files.ListDirectory("/d")->size(), 1U);
    EXPECT_EQ(files.ReadDirectory("/d")->items.size(), 1U);
    EXPECT_FALSE(files.MoveFile("/d/a", "/d/b"));
    EXPECT_FALSE(files.DeleteFile("/d/b"));
    EXPECT_THAT(Lines(), IsEmpty());
}

TEST_F(LoggedFilesTest, WhatIsMissingIsNoFailure) {
    EXPECT_EQ(files.ReadFile("/none"), std::nullopt);
    EXPECT_EQ(files.OpenFile("/none"), nullptr);
    EXPECT_TRUE(files.DeleteFile("/none"));
    EXPECT_THAT(Lines(), IsEmpty());
    EXPECT_FALSE(files.ListDirectory("/none/"));
    EXPECT_TRUE(files.WriteFile("/none/a", "x"));
    EXPECT_THAT(Lines(), IsEmpty());
}

TEST_F(LoggedFilesTest, AMissingDirectoryBelowAMissingOneIsTold) {
    EXPECT_FALSE(files.ListDirectory("/drive/games/"));
    EXPECT_TRUE(files.WriteFile("/drive/games/a", "x"));
    EXPECT_THAT(Lines(), ElementsAre("directory not read: /drive/games/: not there",
                                     StartsWith("not written: /drive/games/a: ")));
}

TEST_F(LoggedFilesTest, ADirectoryThatIsMadeAgainIsNoFailure) {
    disk.AddDirectory("/d");
    static_cast<void>(files.MakeDirectory("/d"));
    EXPECT_THAT(Lines(), IsEmpty());
}

TEST_F(LoggedFilesTest, WhatCannotBeReadIsTold) {
    disk.AddFile("/a", "x");
    disk.AddDirectory("/d");
    faulty.FailFrom(FaultyFileSystem::Step::Read, 1, std::errc::permission_denied);
    faulty.FailFrom(FaultyFileSystem::Step::List, 1, std::errc::permission_denied);
    EXPECT_EQ(files.ReadFile("/a"), std::nullopt);
    EXPECT_EQ(files.OpenFile("/d"), nullptr);
    EXPECT_EQ(files.ListDirectory("/d"), std::nullopt);
    EXPECT_THAT(Lines(), ElementsAre("not read: /a: no access", "not read: /d: it is a directory",
                                     "directory not read: /d: no access"));
}

TEST_F(LoggedFilesTest, WhatCannotBeChangedIsToldWithItsReason) {
    disk.AddFile("/a", "x");
    faulty.MakeReadOnly();
    EXPECT_TRUE(files.WriteFile("/a", "y"));
    EXPECT_TRUE(files.AppendFile("/b", "y"));
    EXPECT_TRUE(files.DeleteFile("/a"));
    EXPECT_TRUE(files.MoveFile("/a", "/c"));
    EXPECT_TRUE(files.MakeDirectory("/d"));
    const std::error_code failure = std::make_error_code(std::errc::read_only_file_system);
    const std::string reason =
        ": " + failure.message() + " (" + std::to_string(failure.value()) + ")";
    EXPECT_THAT(Lines(), ElementsAre("not written: /a" + reason, "not written: /b" + reason,
                                     "not deleted: /a" + reason, "not moved: /a to /c" + reason,
                                     "directory not made: /d" + reason));
}

TEST_F(LoggedFilesTest, AFailureIsToldOnceUntilItHasGone) {
    disk.AddFile("/a", "x");
    for (int time = 0; time < 2; ++time) {
        faulty.FillDisk();
        for (int trial = 0; trial < 3; ++trial)
            EXPECT_TRUE(files.WriteFile("/a", "y"));
        EXPECT_THAT(Lines(), ElementsAre(StartsWith("not written: /a: ")));
        faulty.Heal();
        EXPECT_FALSE(files.WriteFile("/a", "y"));
    }
    // Of another file as well.
    faulty.FillDisk();
    EXPECT_TRUE(files.WriteFile("/a", "y"));
    EXPECT_TRUE(files.WriteFile("/b", "y"));
    EXPECT_EQ(Lines().size(), 2U);
}

TEST_F(LoggedFilesTest, ThreadsTellAFailureOnceToo) {
    constexpr int directories = 50;
    for (int i = 0; i < directories; ++i)
        disk.AddDirectory("/" + std::to_string(i));
    disk.SetUnreadable("/7");
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 3; ++thread) {
        threads.emplace_back([this] {
            for (int i = 0; i < directories; ++i)
                EXPECT_EQ(files.ReadDirectory("/" + std::to_string(i)).has_value(), i != 7);
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_THAT(Lines(), ElementsAre("directory not read: /7: no access"));
}

TEST_F(LoggedFilesTest, ThreadsServeWhereTheHostServesThem) {
    struct Threaded : kivu::testing::MemoryFileSystem {
        bool ServesThreads() const override { return true; }
    };
    Threaded threaded;
    EXPECT_TRUE(LoggedFiles(threaded, log).ServesThreads());
    EXPECT_FALSE(files.ServesThreads());
}

TEST_F(LoggedFilesTest, ANameForgesNoLine) {
    faulty.FillDisk();
    EXPECT_TRUE(files.WriteFile("/a\nstarted: b\xFF", "y"));
    EXPECT_THAT(Lines(), ElementsAre(StartsWith("not written: /a<0A>started: b<FF>: ")));
}

TEST_F(LoggedFilesTest, ADiskFullOfFailuresIsRememberedInParts) {
    faulty.FillDisk();
    for (int i = 0; i < 3000; ++i)
        EXPECT_TRUE(files.WriteFile("/" + std::to_string(i), "y"));
    EXPECT_EQ(Lines().size(), 3000U);
    EXPECT_TRUE(files.WriteFile("/2999", "y"));
    EXPECT_THAT(Lines(), IsEmpty());
}

}  // namespace
}  // namespace kivu::support
