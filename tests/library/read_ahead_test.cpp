#include "library/read_ahead.h"

#include <atomic>
#include <future>
#include <gmock/gmock.h>
#include <new>

#include "testing/memory_file_system.h"

namespace kivu::library {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// A disk that answers any thread, and tells which directories have been read.
class SharedDisk : public kivu::testing::MemoryFileSystem {
 public:
    bool ServesThreads() const override { return true; }
    std::optional<Listing> ReadDirectory(const std::string& path) const override {
        const std::lock_guard guard(lock);
        read.push_back(path);
        if (whenRead) whenRead(path);
        return MemoryFileSystem::ReadDirectory(path);
    }
    std::vector<std::string> Read() const {
        const std::lock_guard guard(lock);
        return read;
    }

    std::function<void(const std::string&)> whenRead;

 private:
    mutable std::mutex lock;
    mutable std::vector<std::string> read;
};

struct ReadAheadTest : ::testing::Test {
    ReadAheadTest() {
        for (const char* name : {"/a/one", "/b/two", "/c/three"})
            files.AddFile(name, "");
    }
    // The only name in a directory.
    static std::string NameIn(const std::optional<ReadAhead::Listing>& listing) {
        if (!listing || listing->items.size() != 1) return "no single name";
        return std::string(listing->Name(listing->items.front()));
    }
    SharedDisk files;
};

TEST_F(ReadAheadTest, ReadsTheLastOneFirst) {
    std::promise<void> last;
    files.whenRead = [&](const std::string& path) {
        if (path == "/a") last.set_value();
    };
    ReadAhead ahead(files);
    ahead.Expect({"/a", "/b", "/c"});
    last.get_future().wait();
    EXPECT_THAT(files.Read(), ElementsAre("/c", "/b", "/a"));
    EXPECT_EQ(NameIn(ahead.Read("/c")), "three");
    EXPECT_EQ(NameIn(ahead.Read("/b")), "two");
    EXPECT_EQ(NameIn(ahead.Read("/a")), "one");
    EXPECT_EQ(files.Read().size(), 3U);
}

TEST_F(ReadAheadTest, WhatHasBeenTakenIsReadAnew) {
    ReadAhead ahead(files);
    ahead.Expect({"/a"});
    EXPECT_EQ(NameIn(ahead.Read("/a")), "one");
    files.DeleteFile("/a/one");
    files.AddFile("/a/other", "");
    EXPECT_EQ(NameIn(ahead.Read("/a")), "other");
}

TEST_F(ReadAheadTest, WhatNobodyExpectsIsReadAtOnce) {
    ReadAhead ahead(files);
    EXPECT_EQ(NameIn(ahead.Read("/b")), "two");
    EXPECT_EQ(ahead.Read("/none"), std::nullopt);
    ahead.Expect({"/none"});
    EXPECT_EQ(ahead.Read("/none"), std::nullopt);
}

TEST_F(ReadAheadTest, ADirectoryIsReadOnceWhoeverDoesIt) {
    for (int i = 0; i < 200; ++i)
        files.AddFile("/many/" + std::to_string(i) + "/" + std::to_string(i), "");
    std::vector<std::string> paths;
    for (int i = 0; i < 200; ++i)
        paths.push_back("/many/" + std::to_string(i));
    ReadAhead ahead(files);
    ahead.Expect(paths);
    for (int i = 199; i >= 0; --i)
        EXPECT_EQ(NameIn(ahead.Read(paths[static_cast<std::size_t>(i)])), std::to_string(i));
    EXPECT_EQ(files.Read().size(), 200U);
}

TEST_F(ReadAheadTest, ADirectoryThatIsBeingReadIsWaitedFor) {
    std::promise<void> reached, opened;
    files.whenRead = [&](const std::string&) {
        reached.set_value();
        opened.get_future().wait();
    };
    ReadAhead ahead(files);
    ahead.Expect({"/a"});
    reached.get_future().wait();
    auto reading = std::async(std::launch::async, [&] { opened.set_value(); });
    EXPECT_EQ(NameIn(ahead.Read("/a")), "one");
}

TEST_F(ReadAheadTest, EndsInTheMiddle) {
    std::promise<void> reached;
    files.whenRead = [&](const std::string& path) {
        if (path == "/c") reached.set_value();
    };
    ReadAhead ahead(files);
    ahead.Expect({"/a", "/b", "/c"});
    reached.get_future().wait();
}

TEST_F(ReadAheadTest, NoMoreIsHeldThanAFewThousandNames) {
    for (int i = 0; i < 3; ++i) {
        for (std::size_t name = 0; name < ReadAhead::mostNames / 2; ++name)
            files.AddFile("/full" + std::to_string(i) + "/" + std::to_string(name), "");
    }
    std::promise<void> second;
    files.whenRead = [&](const std::string& path) {
        if (path == "/full1") second.set_value();
    };
    ReadAhead ahead(files);
    ahead.Expect({"/a", "/full0", "/full1", "/full2"});
    second.get_future().wait();
    EXPECT_EQ(ahead.Read("/full1")->items.size(), ReadAhead::mostNames / 2);
    EXPECT_EQ(ahead.Read("/full2")->items.size(), ReadAhead::mostNames / 2);
    EXPECT_EQ(ahead.Read("/full0")->items.size(), ReadAhead::mostNames / 2);
    EXPECT_EQ(NameIn(ahead.Read("/a")), "one");
}

TEST_F(ReadAheadTest, AfterAFailureInTheThreadTheCallerReads) {
    bool failed = false;
    std::promise<void> reached;
    files.whenRead = [&](const std::string&) {
        if (std::exchange(failed, true)) return;
        reached.set_value();
        throw std::bad_alloc();
    };
    ReadAhead ahead(files);
    ahead.Expect({"/a"});
    reached.get_future().wait();
    EXPECT_EQ(NameIn(ahead.Read("/a")), "one");
}

TEST(ReadAheadOfOneThreadsDisk, IsLeftOut) {
    kivu::testing::MemoryFileSystem files;
    files.AddFile("/a/one", "");
    ReadAhead ahead(files);
    ahead.Expect({"/a"});
    files.AddFile("/a/two", "");
    EXPECT_EQ(ahead.Read("/a")->items.size(), 2U);
}

}  // namespace
}  // namespace kivu::library
