#include "launch/handed_file.h"

#include <gtest/gtest.h>

#include "core/form1.h"
#include "core/shut_down.h"
#include "testing/memory_file_system.h"
#include "testing/quiet_ports.h"
#include "testing/scripted_host.h"

namespace kivu::launch {
namespace {

struct HandedFileTest : ::testing::Test {
    HandedFileTest() {
        form.SetCaption("Mine");
        shutDown.hooks.EndProcess = [this] { ++ends; };
    }

    kivu::testing::MemoryFileSystem files;
    kivu::testing::ScriptedHost host{files};
    core::Form1 form{forms::Toolkit{}};
    profile::Ini ini{files};
    core::ShutDown shutDown{form, ini};
    support::AlwaysOnTop alwaysOnTop{
        form, {form.AOT_Enabled, form.AOT_Disabled, form.AOT_MouseMove}, host.userStore};
    kivu::testing::QuietChoice choice;
    kivu::testing::QuietLaunching launching;
    HandedFile handed{form,
                      {files, host.beeper, host.instance, host.log},
                      {choice, launching, shutDown, alwaysOnTop},
                      "\"/games/Zool.adf\""};
    int ends = 0;
};

TEST_F(HandedFileTest, FirstInstanceStays) {
    EXPECT_FALSE(handed.HandOver());
    EXPECT_EQ(host.instance.askedFor, "Mine");
    EXPECT_FALSE(form.Ended);
    EXPECT_EQ(ends, 0);
}

TEST_F(HandedFileTest, LaterInstanceHandsItsFileOverAndEnds) {
    host.instance.earlierRuns = true;
    EXPECT_TRUE(handed.HandOver());
    EXPECT_EQ(host.instance.handedOver, "/games/Zool.adf");
    EXPECT_TRUE(form.Ended);
    EXPECT_EQ(ends, 1);
}

}  // namespace
}  // namespace kivu::launch
