// The launcher is killed while the settings window saves.

#include <limits>

#include "killed_process.h"
#include "scenarios/saved_files.h"

namespace kivu::scenarios {
namespace {

using testing::Outcome;

class KilledSave : public SavedFiles {
 protected:
    Outcome SaveAndKillAt(int call) {
        return testing::RunAndKillAt(call, [&] { Click("SaveBtn"); });
    }
    Outcome SaveWhole() { return SaveAndKillAt(std::numeric_limits<int>::max() / 4); }
    // A start of its own over what the kill has left: it sees its emulators, and no box comes up.
    void ExpectStart() {
        driver::Session next(files, options);
        driver::Interpreter talk(next);
        talk.Execute(Json::array({"start"}));
        const core::Form1& form = next.MainWindow();
        EXPECT_EQ(form.EmuListbox.Rows(), (std::vector<std::string>{"Alpha", "Beta"}));
        EXPECT_EQ(form.EmuListbox.SelectedText(), "Alpha");
        EXPECT_EQ(form.UAE_FULL.ListCount(), 3);
        EXPECT_EQ(form.txtWinUAEExe.Text(), tree.Path("Emu/winuae.exe"));
        EXPECT_TRUE(next.Host().dialogs.shown.empty());
    }
};

TEST_F(KilledSave, AtAnySystemCallEachFileIsTheOldOneOrTheNewOne) {
    OpenAgain([&] {
        const Files before = OnDisk();
        ChangeAll();
        Outcome outcome = SaveWhole();
        const Files after = OnDisk();
        for (std::size_t i = 0; i < before.size(); ++i)
            EXPECT_NE(before[i], after[i]) << names[i];
        int states[4] = {};  // by how many files are new
        for (int call = 1; outcome != Outcome::untraceable; ++call) {
            ASSERT_LT(call, 5000);
            PutBack(before);
            outcome = SaveAndKillAt(call);
            const Files now = OnDisk();
            int changed = 0;
            for (std::size_t i = 0; i < now.size(); ++i) {
                EXPECT_TRUE(now[i] == before[i] || now[i] == after[i])
                    << names[i] << ", killed at call " << call << ":\n"
                    << now[i];
                changed += now[i] == after[i];
            }
            ++states[changed];
            if (outcome == Outcome::done) break;
            ExpectStart();
            // What the kill has left lying about is in nobody's way.
            SaveWhole();
            EXPECT_EQ(OnDisk(), after) << "saved again after call " << call;
        }
        Do("answer", "OK");
        Key("Escape");
        if (outcome == Outcome::untraceable) GTEST_SKIP() << "this host traces no processes";
        // The kills have hit each step between the files.
        for (const int count : states)
            EXPECT_GT(count, 0);
    });
}

}  // namespace
}  // namespace kivu::scenarios
