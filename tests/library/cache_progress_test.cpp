#include <gmock/gmock.h>

#include "library/game_lists_fixture.h"

namespace kivu::library {
namespace {

using ::testing::ElementsAre;

using CacheProgress = GameListsFixture;

TEST_F(CacheProgress, LoadedCacheShowsItsProgressEvery500Rows) {
    std::string cache;
    for (int i = 0; i < 1250; ++i) {
        const std::string name = std::to_string(10000 + i);
        cache += "/" + name + ".adf\r\n" + name + "\r\n";
    }
    form.AppDir = "/kivu/";
    form.CacheName = "/kivu/Kivu_Cache.txt";
    files.AddFile(form.CacheName, cache);
    form.SetCaption("Mine");
    Titles titles(form);
    lists.LoadCacheList();
    EXPECT_THAT(titles.seen,
                ElementsAre("Loading: ", "Loading: 0", "Loading: 500", "Loading: 1000", "Mine"));
    EXPECT_EQ(form.MyCaptionLabel.Caption(), "Mine");
    EXPECT_EQ(form.UAE_FULL.ListCount(), 1250);
    EXPECT_EQ(form.UAE_Short.ListCount(), 1250);
}

TEST_F(CacheProgress, WithoutACacheThereIsNoProgress) {
    form.SetCaption("Mine");
    form.CacheName = "/kivu/none.txt";
    Titles titles(form);
    lists.LoadCacheList();
    EXPECT_THAT(titles.seen, ::testing::IsEmpty());
}

}  // namespace
}  // namespace kivu::library
