#include "ui/window_surface.h"

#include <gtest/gtest.h>

#include "core/form1.h"
#include "testing/memory_file_system.h"
#include "testing/scripted_host.h"

namespace kivu::ui {
namespace {

struct WindowSurfaceTest : ::testing::Test {
    WindowSurface Surface(const std::string& page) {
        return {form, ini, {host.dialogs, host.starter}, busy, alwaysOnTop, page};
    }

    testing::MemoryFileSystem files;
    testing::ScriptedHost host{files};
    core::Form1 form{forms::Toolkit{}};
    profile::Ini ini{files};
    core::BusyState busy{form, host.events};
    support::AlwaysOnTop alwaysOnTop{
        form, {form.AOT_Enabled, form.AOT_Disabled, form.AOT_MouseMove}, host.userStore};
};

TEST_F(WindowSurfaceTest, TitleOpensTheProjectsPage) {
    Surface("https://kivu.example/").TitleStr_Click();
    ASSERT_EQ(host.starter.runs.size(), 1U);
    EXPECT_TRUE(host.starter.runs[0].opened);
    EXPECT_EQ(host.starter.runs[0].request.command, "https://kivu.example/");
}

TEST_F(WindowSurfaceTest, TitleWithoutAPageOpensNothing) {
    Surface("").TitleStr_Click();
    EXPECT_TRUE(host.starter.runs.empty());
}

}  // namespace
}  // namespace kivu::ui
