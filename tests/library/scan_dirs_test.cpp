#include <chrono>
#include <gmock/gmock.h>

#include "core/busy_state.h"
#include "core/form1.h"
#include "library/file_scan_recursive.h"
#include "library/scan_source.h"
#include "testing/memory_file_system.h"
#include "testing/scripted_host.h"

namespace kivu::library {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

// A tree of which only the numbers count: "/many" has so many empty subdirectories.
class ManyDirectories : public kivu::testing::MemoryFileSystem {
 public:
    int count = 0;

    std::optional<std::vector<Entry>> ListDirectory(const std::string& path) const override {
        if (!path.starts_with("/many")) return MemoryFileSystem::ListDirectory(path);
        std::vector<Entry> entries;
        for (int i = 0; path == "/many" && i < count; ++i)
            entries.push_back({std::to_string(100000 + i), true});
        return entries;
    }
};

// Scans a tree while every pause lets events run, and notes the window's titles and the label's
// captions.
struct Scan : ::testing::Test, forms::Observer {
    Scan() {
        form.SetCaption("Mine");
        form.LoadingBtn.SetCaption("Noted");
        host.clock.perLook = std::chrono::milliseconds(50);
        form.SetObserver(this);
    }
    ~Scan() override { form.SetObserver(nullptr); }
    void Changed(forms::Control& control, forms::Aspect aspect) override {
        if (aspect != forms::Aspect::text) return;
        if (&control == &form) titles.push_back(form.Caption());
        if (&control == &form.LoadingBtn) captions.push_back(form.LoadingBtn.Caption());
    }
    void BreakInTheNextPause() {
        host.events.onEvents = [this] { scanner.BreakScan(); };
    }
    int ScanFiles(const std::string& pattern = "*.*") {
        return scanner.ScanFiles("/roms", pattern, "P ", &form.LoadingBtn);
    }
    bool ResultShown() { return form.FileScanRecursive1.ResultList.Visible(); }
    bool StackShown() { return form.FileScanRecursive1.TmpDirList.Visible(); }

    ManyDirectories files;
    kivu::testing::ScriptedHost host{files};
    ScanSource source{files};
    core::Form1 form{forms::Toolkit{nullptr, nullptr, &source}};
    core::EventPacer pacer{host.events, host.clock};
    FileScanRecursive scanner{form, source, host.beeper, pacer};
    std::vector<std::string> titles, captions;
};

TEST_F(Scan, DirectoriesCarryAClosingSeparator) {
    files.AddDirectory("/roms/b/c");
    files.AddDirectory("/roms/a");
    files.AddFile("/roms/file.adf", "");
    EXPECT_EQ(scanner.ScanDirs("/roms", "P "), 3);
    EXPECT_THAT(scanner.Result_list().Rows(), ElementsAre("/roms/a/", "/roms/b/", "/roms/b/c/"));
    EXPECT_TRUE(ResultShown());
    EXPECT_FALSE(StackShown());
    EXPECT_EQ(host.beeper.count, 0);
}

TEST_F(Scan, Every200thSubdirectoryShowsResultsAndStack) {
    files.count = 401;
    EXPECT_EQ(scanner.ScanDirs("/many", "P "), 401);
    EXPECT_THAT(titles, ElementsAre("P 200  (200)", "P 400  (400)", "Mine"));
}

TEST_F(Scan, ResultsOfEarlierDirectoriesCountInTheTitle) {
    files.AddDirectory("/roms/x");
    for (int i = 0; i < 200; ++i)
        files.AddDirectory("/roms/x/" + std::to_string(i));
    EXPECT_EQ(scanner.ScanDirs("/roms", "P "), 201);
    // One result from the first directory, which has left the stack.
    EXPECT_THAT(titles, ElementsAre("P 201  (200)", "Mine"));
}

TEST_F(Scan, MultipleOf300ShowsTheOutcomeOfAComparison) {
    files.count = 300;
    EXPECT_EQ(scanner.ScanDirs("/many", "P "), 300);
    EXPECT_THAT(titles, ElementsAre("P 200  (200)", "True", "Mine"));
    titles.clear();
    files.count = 0;
    EXPECT_EQ(scanner.ScanDirs("/many", "P "), 0);
    EXPECT_THAT(titles, ElementsAre("False", "Mine"));
    titles.clear();
    files.count = 301;
    scanner.ScanDirs("/many", "P ");
    EXPECT_THAT(titles, Not(Contains("True")));
}

TEST_F(Scan, LimitStopsTheDirectoriesWithABeepAndATitleThatStays) {
    files.count = FileScanRecursive::limit - 1;
    EXPECT_EQ(scanner.ScanDirs("/many", "P "), FileScanRecursive::limit - 1);
    EXPECT_EQ(host.beeper.count, 0);
    EXPECT_EQ(form.Caption(), "Mine");
    files.count = FileScanRecursive::limit + 100;
    EXPECT_EQ(scanner.ScanDirs("/many", "P "), FileScanRecursive::limit);
    EXPECT_EQ(host.beeper.count, 1);
    EXPECT_EQ(form.Caption(), "Überlauf - Abbruch!");
    EXPECT_EQ(form.LoadingBtn.Caption(), "Noted");
    EXPECT_TRUE(ResultShown());
    EXPECT_FALSE(StackShown());
}

TEST_F(Scan, DirectoryThatCannotBeEnteredIsAResultWithoutResultsOfItsOwn) {
    files.AddDirectory("/roms/a/b");
    files.AddDirectory("/roms/shut/inside");
    files.SetUnreadable("/roms/shut");
    EXPECT_EQ(scanner.ScanDirs("/roms", "P "), 3);
    EXPECT_THAT(scanner.Result_list().Rows(), ElementsAre("/roms/a/", "/roms/a/b/", "/roms/shut/"));
    files.SetUnreadable("/roms");
    EXPECT_EQ(scanner.ScanDirs("/roms", "P "), 0);
    EXPECT_EQ(form.Caption(), "Mine");
}

TEST_F(Scan, BreakAmongTheFilesStopsThereWithABeep) {
    for (int i = 0; i < 150; ++i)
        files.AddFile("/roms/" + std::to_string(1000 + i), "");
    int pauses = 0;
    // The file behind the pause is still taken.
    host.events.onEvents = [&] {
        if (++pauses == 2) scanner.BreakScan();
    };
    EXPECT_EQ(ScanFiles(), 102);
    EXPECT_THAT(captions, ElementsAre("P 1", "P 101", "Abbruch!"));
    EXPECT_EQ(host.beeper.count, 1);
    EXPECT_TRUE(ResultShown());
    EXPECT_FALSE(StackShown());
}

TEST_F(Scan, BreakBetweenDirectoriesLeavesAtOnce) {
    files.AddFile("/roms/a/one.adf", "");
    files.AddFile("/roms/b/two.adf", "");
    BreakInTheNextPause();
    EXPECT_EQ(ScanFiles(), 0);
    EXPECT_FALSE(ResultShown());
    EXPECT_FALSE(StackShown());
    EXPECT_EQ(host.beeper.count, 0);
    EXPECT_EQ(form.LoadingBtn.Caption(), "Noted");
}

TEST_F(Scan, BreakBehindADirectoryWithFilesLeavesTheProgressStanding) {
    files.AddFile("/roms/one.adf", "");
    files.AddFile("/roms/sub/two.adf", "");
    int pauses = 0;
    host.events.onEvents = [&] {
        if (++pauses == 2) scanner.BreakScan();
    };
    EXPECT_EQ(ScanFiles(), 1);
    EXPECT_THAT(scanner.Result_list().Rows(), ElementsAre("/roms/one.adf"));
    EXPECT_EQ(form.LoadingBtn.Caption(), "P 1");
    EXPECT_FALSE(ResultShown());
    EXPECT_EQ(host.beeper.count, 0);
}

TEST_F(Scan, BreakEndsOneScanOnly) {
    files.AddFile("/roms/a/one.adf", "");
    BreakInTheNextPause();
    EXPECT_EQ(ScanFiles(), 0);
    host.events.onEvents = nullptr;
    EXPECT_EQ(ScanFiles(), 1);
    EXPECT_TRUE(ResultShown());
    EXPECT_EQ(form.LoadingBtn.Caption(), "Noted");
}

TEST_F(Scan, BreakAmongDirectoriesStopsOrLeaves) {
    files.count = 250;
    BreakInTheNextPause();
    EXPECT_EQ(scanner.ScanDirs("/many", "P "), 201);
    EXPECT_EQ(form.Caption(), "Überlauf - Abbruch!");
    EXPECT_EQ(host.beeper.count, 1);
    EXPECT_TRUE(ResultShown());
    files.count = 300;
    int pauses = 0;
    host.events.onEvents = [&] {
        if (++pauses == 2) scanner.BreakScan();
    };
    EXPECT_EQ(scanner.ScanDirs("/many", "P "), 300);
    EXPECT_EQ(form.Caption(), "True");
    EXPECT_EQ(host.beeper.count, 1);
    EXPECT_FALSE(ResultShown());
}

TEST_F(Scan, ResizeKeepsBothListsAtTheControlsSize) {
    core::FileScanControls& controls = form.FileScanRecursive1;
    controls.ResultList.SetVisible(false);
    controls.TmpDirList.SetVisible(true);
    controls.frame.Move(700, 800, 3050, 2450);
    scanner.UserControl_Resize();
    for (const forms::ListBox* list : {&controls.ResultList, &controls.TmpDirList}) {
        EXPECT_EQ(list->Left(), controls.ResultList.Left());
        EXPECT_EQ(list->Top(), controls.ResultList.Top());
        EXPECT_EQ(list->Width(), 3000);
        EXPECT_EQ(list->Height(), 2400);
    }
    EXPECT_TRUE(ResultShown());
    EXPECT_FALSE(StackShown());
}

TEST_F(Scan, ResizeBelowTheMarginKeepsTheListsAsTheyWere) {
    core::FileScanControls& controls = form.FileScanRecursive1;
    controls.frame.Move(0, 0, 1050, 1050);
    scanner.UserControl_Resize();
    controls.frame.Move(0, 0, 20, 20);
    scanner.UserControl_Resize();
    EXPECT_EQ(controls.ResultList.Width(), 1000);
    EXPECT_EQ(controls.TmpDirList.Height(), 1000);
}

}  // namespace
}  // namespace kivu::library
