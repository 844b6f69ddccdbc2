#include <gmock/gmock.h>

#include "library/game_lists.h"
#include "library/scan_source.h"
#include "testing/memory_file_system.h"
#include "testing/scripted_host.h"

namespace kivu::library {
namespace {

using ::testing::ElementsAre;

// Every title that the window has had.
class Titles : public forms::Observer {
 public:
    explicit Titles(forms::Form& form) : form(form) { form.SetObserver(this); }
    ~Titles() override { form.SetObserver(nullptr); }
    void Changed(forms::Control& control, forms::Aspect aspect) override {
        if (&control == &form && aspect == forms::Aspect::text) seen.push_back(form.Caption());
    }
    std::vector<std::string> seen;

 private:
    forms::Form& form;
};

struct CacheProgress : ::testing::Test {
    kivu::testing::MemoryFileSystem files;
    kivu::testing::ScriptedHost host{files};
    ScanSource source{files};
    core::Form1 form{forms::Toolkit{nullptr, nullptr, &source}};
    profile::Ini ini{files};
    core::EventPacer pacer{host.events, host.clock};
    core::BusyState busy{form, host.events};
    FileScanRecursive scanner{form, source, host.beeper, pacer};
    GameLists lists{form, ini, files, busy, pacer, scanner};
};

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
