// The launcher is killed while the settings window saves.

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
    // By a process of its own as well, so that the window here stays unsaved.
    void SaveWhole() {
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            Click("SaveBtn");
            ::_exit(0);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        EXPECT_TRUE(WIFEXITED(status));
    }
    // A start over what the kill has left: it finds its emulators, and no box comes up.
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
    void RemoveWhatKillsHaveLeft() {
        for (const char* directory : {"Config", "Config/Alpha"}) {
            for (const auto& entry : std::filesystem::directory_iterator(tree.Path(directory))) {
                if (entry.path().extension() == ".tmp") std::filesystem::remove(entry.path());
            }
        }
    }
    // How many of the files are new.
    std::size_t CountNew(const Files& before, const Files& after, int call) {
        const Files now = OnDisk();
        std::size_t count = 0;
        for (std::size_t i = 0; i < now.size(); ++i) {
            EXPECT_TRUE(now[i] == before[i] || now[i] == after[i])
                << names[i] << ", killed at call " << call << ":\n"
                << now[i];
            count += now[i] == after[i];
        }
        return count;
    }
};

TEST_F(KilledSave, AtAnySystemCallEachFileIsTheOldOneOrTheNewOne) {
    OpenAgain([&] {
        const Files before = OnDisk();
        ChangeAll();
        SaveWhole();
        const Files after = OnDisk();
        for (std::size_t i = 0; i < before.size(); ++i)
            EXPECT_NE(before[i], after[i]) << names[i];
        Outcome outcome = Outcome::killed;
        int kills[4] = {};  // by how many files were new
        // Behind the last file the window only reads, which a few kills are enough for.
        for (int call = 1; kills[3] < 5; ++call) {
            ASSERT_LT(call, 2000);
            PutBack(before);
            outcome = SaveAndKillAt(call);
            if (outcome != Outcome::killed) break;
            ++kills[CountNew(before, after, call)];
            ExpectStart();
            // What the kill has left lying about is in nobody's way.
            SaveWhole();
            EXPECT_EQ(OnDisk(), after) << "saved again after call " << call;
            RemoveWhatKillsHaveLeft();
        }
        Host().dialogs.answers = {platform::Answer::Ok};
        Key("Escape");
        if (outcome == Outcome::untraceable) GTEST_SKIP() << "this host traces no processes";
        // The kills have hit each step between the files.
        for (const int count : kills)
            EXPECT_GT(count, 0);
    });
}

}  // namespace
}  // namespace kivu::scenarios
