#include "ui/window_surface.h"

#include <gtest/gtest.h>

#include "core/form1.h"
#include "testing/memory_file_system.h"
#include "testing/scripted_host.h"

namespace kivu::ui {
namespace {

struct WindowSurfaceTest : ::testing::Test {
    WindowSurface Surface() { return {form, ini, {host.dialogs, files}, busy, alwaysOnTop}; }

    testing::MemoryFileSystem files;
    testing::ScriptedHost host{files};
    core::Form1 form{forms::Toolkit{}};
    profile::Ini ini{files};
    core::BusyState busy{form, host.events};
    support::AlwaysOnTop alwaysOnTop{
        form, {form.AOT_Enabled, form.AOT_Disabled, form.AOT_MouseMove}, host.userStore};
};

TEST_F(WindowSurfaceTest, FirstTitleMakesTheSkinsDirectory) {
    files.AddDirectory("/k/Config/Alpha");
    form.ColorsIniName = "/k/Config/Alpha/Skin/Skin.ini";
    const auto dblClick = [&] { Surface().MyCaptionLabel_DblClick(); };
    dblClick();
    EXPECT_FALSE(files.IsDirectory("/k/Config/Alpha/Skin")) << "no answer";
    host.dialogs.inputs.push_back("Amiga");
    dblClick();
    EXPECT_TRUE(files.FileExists(form.ColorsIniName));
    EXPECT_EQ(form.MyCaptionLabel.Caption(), "Amiga");
}

}  // namespace
}  // namespace kivu::ui
