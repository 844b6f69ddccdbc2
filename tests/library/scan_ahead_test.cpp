#include <algorithm>
#include <chrono>
#include <gtest/gtest.h>
#include <map>
#include <mutex>
#include <random>

#include "core/busy_state.h"
#include "core/form1.h"
#include "library/file_scan_recursive.h"
#include "library/scan_source.h"
#include "testing/memory_file_system.h"
#include "testing/scripted_host.h"
#include "text/collation.h"

namespace kivu::library {
namespace {

using std::string;

class SharedDisk : public kivu::testing::MemoryFileSystem {
 public:
    bool ServesThreads() const override { return shared; }
    std::optional<Listing> ReadDirectory(const string& path) const override {
        const std::lock_guard guard(lock);
        ++reads[path];
        return MemoryFileSystem::ReadDirectory(path);
    }

    bool shared = false;
    mutable std::map<string, int> reads;

 private:
    mutable std::mutex lock;
};

class Order : public forms::Collation {
 public:
    int Compare(std::string_view a, std::string_view b) const override {
        return text::CompareText(a, b);
    }
    std::uint64_t Rank(std::string_view text) const override { return text::SortRank(text); }
};

// A walk through a tree whose directories another thread reads ahead.
struct ScanAhead : ::testing::Test {
    void Plant(const string& directory, int depth) {
        const char* names[] = {"Ähre ", "ahre ", "Zoo ", "a", "10 ", "Ωmega "};
        for (auto count = random() % 150; count > 0; --count) {
            const string name = names[random() % 6] + std::to_string(random() % 500);
            files.AddFile(directory + "/" + name + (random() % 5 == 0 ? ".txt" : ".adf"), "");
        }
        for (auto count = depth > 0 ? 2 + random() % 4 : 0; count > 0; --count)
            Plant(directory + "/" + names[random() % 6] + "dir " + std::to_string(count),
                  depth - 1);
    }
    int Scan(bool shared, const string& pattern = "*.adf") {
        files.shared = shared;
        files.reads.clear();
        return scanner.ScanFiles("/roms", pattern, "P ", &form.LoadingBtn);
    }

    std::mt19937 random{17};
    SharedDisk files;
    kivu::testing::ScriptedHost host{files};
    ScanSource source{files};
    Order order;
    core::Form1 form{forms::Toolkit{nullptr, &order, &source}};
    core::EventPacer pacer{host.events, host.clock};
    FileScanRecursive scanner{form, source, host.beeper, pacer};
};

TEST_F(ScanAhead, FindsTheSameInTheSameOrder) {
    Plant("/roms", 3);
    files.AddLink("/roms/round", "/roms");
    files.AddLink("/roms/outside", "/elsewhere");
    files.AddFile("/elsewhere/found.adf", "");
    Scan(false);
    const std::vector<string> expected = scanner.Result_list().Rows();
    ASSERT_GT(expected.size(), 1000U);
    EXPECT_TRUE(std::is_sorted(expected.begin(), expected.end(), text::TextLess{}));
    for (int i = 0; i < 5; ++i) {
        Scan(true);
        EXPECT_EQ(scanner.Result_list().Rows(), expected);
        for (const auto& [path, count] : files.reads)
            EXPECT_EQ(count, 1) << path;
    }
}

TEST_F(ScanAhead, DirectoriesTooAreTheSame) {
    Plant("/roms", 3);
    scanner.ScanDirs("/roms", "P ");
    const std::vector<string> expected = scanner.Result_list().Rows();
    files.shared = true;
    scanner.ScanDirs("/roms", "P ");
    EXPECT_EQ(scanner.Result_list().Rows(), expected);
}

TEST_F(ScanAhead, ABreakEndsItInTheMiddle) {
    Plant("/roms", 3);
    host.clock.perLook = std::chrono::milliseconds(50);
    for (int pauses = 1; pauses < 12; ++pauses) {
        int found[2];
        for (const bool shared : {false, true}) {
            host.events.onEvents = [this, left = pauses]() mutable {
                if (--left == 0) scanner.BreakScan();
            };
            found[shared ? 1 : 0] = Scan(shared);
        }
        EXPECT_EQ(found[0], found[1]);
    }
    host.events.onEvents = {};
    const int all = Scan(true);
    EXPECT_EQ(all, Scan(false));
}

TEST_F(ScanAhead, RowsThatEventsAddFindTheirPlaces) {
    files.AddFile("/roms/a/one.adf", "");
    files.AddFile("/roms/b/two.adf", "");
    host.clock.perLook = std::chrono::milliseconds(50);
    host.events.onEvents = [this] { scanner.Result_list().AddItem("!"); };
    EXPECT_GE(Scan(true), 2);
    EXPECT_EQ(scanner.Result_list().List(0), "!");
}

}  // namespace
}  // namespace kivu::library
