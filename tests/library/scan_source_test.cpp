#include "library/scan_source.h"

#include <gmock/gmock.h>

#include "testing/memory_file_system.h"

namespace kivu::library {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

struct ScanSourceTest : ::testing::Test {
    ScanSourceTest() {
        files.AddFile("/roms/one.adf", "");
        files.AddFile("/roms/two.adf", "");
        files.AddFile("/roms/sub/three.adf", "");
    }
    kivu::testing::MemoryFileSystem files;
    ScanSource source{files};
    std::vector<std::string_view> directories, names;
};

TEST_F(ScanSourceTest, GivesEitherListAlone) {
    for (const bool scanning : {false, true}) {
        if (scanning) source.BeginScan("/roms");
        directories.clear();
        EXPECT_TRUE(source.Read("/roms", &directories, nullptr));
        EXPECT_THAT(directories, ElementsAre("sub"));
        EXPECT_TRUE(source.Read("/roms", nullptr, &names));
        EXPECT_THAT(names, UnorderedElementsAre("one.adf", "two.adf"));
        EXPECT_TRUE(source.Read("/roms", nullptr, nullptr));
    }
}

TEST_F(ScanSourceTest, ADirectoryThatCannotBeEnteredChangesNothing) {
    directories = {"kept"};
    names = {"kept"};
    EXPECT_FALSE(source.Read("/gone", &directories, &names));
    source.BeginScan("/");
    EXPECT_FALSE(source.Read("/gone", &directories, &names));
    EXPECT_THAT(directories, ElementsAre("kept"));
    EXPECT_THAT(names, ElementsAre("kept"));
}

TEST_F(ScanSourceTest, AScanReadsADirectoryOnceForBothOfItsControls) {
    source.BeginScan("/roms");
    source.Read("/roms", &directories, nullptr);
    files.AddFile("/roms/late.adf", "");
    source.Read("/roms", nullptr, &names);
    EXPECT_THAT(names, UnorderedElementsAre("one.adf", "two.adf"));
}

TEST_F(ScanSourceTest, NamesThatHaveBeenHandedOverAreReadAnew) {
    source.BeginScan("/roms");
    source.Read("/roms", &directories, &names);
    files.AddFile("/roms/late.adf", "");
    EXPECT_TRUE(source.Read("/roms", &directories, &names));
    EXPECT_THAT(directories, ElementsAre("sub"));
    EXPECT_THAT(names, UnorderedElementsAre("late.adf", "one.adf", "two.adf"));
}

TEST_F(ScanSourceTest, AScanEntersADirectoryOnce) {
    source.BeginScan("/roms");
    EXPECT_TRUE(source.Read("/roms", &directories, nullptr));
    EXPECT_TRUE(source.Read("/roms/sub", &directories, nullptr));
    EXPECT_THAT(directories, IsEmpty());
    EXPECT_FALSE(source.Read("/roms", &directories, nullptr));
    source.EndScan();
    EXPECT_TRUE(source.Read("/roms", &directories, nullptr));
    EXPECT_TRUE(source.Read("/roms", &directories, nullptr));
}

}  // namespace
}  // namespace kivu::library
