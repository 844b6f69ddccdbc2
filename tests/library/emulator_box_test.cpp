#include "library/emulator_box.h"

#include <gmock/gmock.h>
#include <string>
#include <vector>

#include "core/form1.h"
#include "testing/memory_file_system.h"
#include "testing/quiet_ports.h"
#include "testing/scripted_host.h"

namespace kivu::library {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct Tabs : kivu::testing::QuietFront {
    void Label1_Click() override { clicked.push_back("favourites"); }
    void Label2_Click() override { clicked.push_back("simple"); }
    std::vector<std::string> clicked;
};

// Two emulators, of which the second is loaded.
struct EmulatorBoxTest : ::testing::Test {
    EmulatorBoxTest() {
        for (const char* name : {"Alpha", "Beta"}) {
            form.EmuListbox.AddItem(name);
            form.EmulatorLongListbox.AddItem(name);
        }
        form.EmuListbox.onClick = [this] { box.EmuListbox_Click(); };
        form.EmuListbox.SetListIndex(1);
        form.CurrentEmuIndex = 1;
        form.SetMode(core::Front::complete);
        box.ports.front = tabs;
        box.ports.watch = watch;
        box.ports.layout = layout;
    }

    kivu::testing::MemoryFileSystem files;
    kivu::testing::ScriptedHost host{files};
    core::Form1 form{forms::Toolkit{}};
    profile::Ini ini{files};
    core::BusyState busy{form, host.events};
    kivu::testing::QuietSwitching switching;
    kivu::testing::QuietWatch watch;
    kivu::testing::QuietLayout layout;
    Tabs tabs;
    EmulatorBox box{form, ini, files, busy, switching};
};

TEST_F(EmulatorBoxTest, LeavingAnOpenChoicePutsTheGamesInFront) {
    box.ShowEmulatorBox(true);
    form.EmuListbox.SetListIndex(0);
    box.LeaveChoice();
    EXPECT_FALSE(box.ChoiceIsOpen());
    EXPECT_EQ(form.EmuListbox.ListIndex(), 1);
    EXPECT_THAT(tabs.clicked, ElementsAre("simple"));
    EXPECT_EQ(form.ListMode, "2");
}

TEST_F(EmulatorBoxTest, LeavingAClosedChoiceTakesTheRowBackAndLeavesTheListInFront) {
    form.EmuListbox.SetListIndex(0);
    form.SetMode(core::Front::complete);
    box.LeaveChoice();
    EXPECT_EQ(form.EmuListbox.ListIndex(), 1);
    EXPECT_EQ(form.ListMode, "3");
    EXPECT_THAT(tabs.clicked, IsEmpty());
}

TEST_F(EmulatorBoxTest, OnlyAnOpenChoiceIsLeftForATab) {
    form.EmuListbox.SetListIndex(0);
    box.LeaveOpenChoice();
    EXPECT_EQ(form.EmuListbox.ListIndex(), 0);
    EXPECT_THAT(tabs.clicked, IsEmpty());
    form.FavoritenListe.AddItem("Zool");
    box.ShowEmulatorBox(true);
    box.LeaveOpenChoice();
    EXPECT_FALSE(box.ChoiceIsOpen());
    EXPECT_THAT(tabs.clicked, ElementsAre("favourites"));
}

TEST_F(EmulatorBoxTest, PromptTellsWhetherThereIsAnEmulatorToChoose) {
    form.CurrentLanguage = 2;
    box.WritePrompt();
    EXPECT_EQ(form.EmuListbox.Text(), "Select Emulator:");
    form.EmuListbox.Clear();
    box.WritePrompt();
    EXPECT_EQ(form.EmuListbox.Text(), "No Emulator found");
}

}  // namespace
}  // namespace kivu::library
