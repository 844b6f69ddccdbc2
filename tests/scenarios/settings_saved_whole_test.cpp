// A save that the disk breaks off anywhere: each file is the old one or the new one.

#include "scenarios/saved_files.h"

namespace kivu::scenarios {
namespace {

using Fault = testing::FaultyFileSystem;
using ::testing::HasSubstr;

constexpr Fault::Step stepsOfAWrite[] = {Fault::Step::Write, Fault::Step::Flush,
                                         Fault::Step::Rename};

TEST_F(SavedFiles, AWriteThatFailsLeavesItsOldFileAndTheNextSaveMakesUpForIt) {
    for (const Fault::Step step : stepsOfAWrite) {
        for (std::size_t failing = 0; failing < 3; ++failing) {
            SCOPED_TRACE(names[failing]);
            OpenAgain([&] {
                const Files old = OnDisk();
                ChangeAll();
                session->disk.OnlyFor(tree.Path(names[failing]));
                session->disk.FailFrom(step, 1, std::errc::io_error);
                Click("SaveBtn");
                EXPECT_TRUE(Unsaved());
                const Json boxes = Boxes();
                ASSERT_EQ(boxes.size(), 1u);
                EXPECT_THAT(boxes[0]["text"].get<std::string>(),
                            HasSubstr(tree.Path(names[failing])));
                const Files now = OnDisk();
                EXPECT_EQ(now[failing], old[failing]);
                session->disk.Heal();
                Save();
                ExpectNew();
                for (std::size_t i = 0; i < 3; ++i) {
                    if (i == failing) continue;
                    EXPECT_EQ(OnDisk()[i], now[i]) << names[i];
                }
                Key("Escape");
            });
            EXPECT_TRUE(Boxes().empty());
        }
    }
}

// As a disk that goes away: from one write on nothing comes through any more.
TEST_F(SavedFiles, ADiskThatStopsAtAnyWriteLeavesWholeFilesForTheNextStart) {
    for (int writes = 0; writes <= 3; ++writes) {
        SCOPED_TRACE(writes);
        Files old;
        OpenAgain([&] {
            old = OnDisk();
            ChangeAll();
            session->disk.FailFrom(Fault::Step::Rename, writes + 1, std::errc::io_error);
            Click("SaveBtn");
            EXPECT_EQ(Unsaved(), writes < 3);
            Do("answer", "OK");
            Key("Escape");
            EXPECT_FALSE(open());
        });
        Boxes();
        const Files now = OnDisk();
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(now[i] != old[i], i < writes) << names[i];
        Start();
        Open([&] {
            EXPECT_EQ(Of("ResetScreenRes.Value"), writes > 0 ? 1 : 0);
            EXPECT_EQ(TextOf("UAELaunchParaneter"), writes > 1 ? "-x" : "");
            EXPECT_EQ(TextOf("TxtMasterConfig"), writes > 2 ? "b=2\r\n" : "a=1\r\n");
            Set("UAELaunchParaneter.Text", "");
            if (Unsaved()) Save();
            Key("Escape");
        });
        EXPECT_TRUE(Boxes().empty());
    }
}

}  // namespace
}  // namespace kivu::scenarios
